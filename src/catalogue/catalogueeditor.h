// What the editors of the catalogues share.
#pragma once

#include "ui/recordeditor.h"

/// Edits a record that is known by its name. Numbers are stored as currency numbers of their
/// texts.
class CatalogueEditor : public RecordEditor
{
    Q_OBJECT

public:
    /// The text of the name box as it was stored, untrimmed; empty where nothing was stored.
    QString storedName() const { return m_storedName; }
    Reselection reselection() const override { return {.name = m_storedName}; }

protected:
    using RecordEditor::RecordEditor;

    void recordStored() override;

    /// Makes `txtName`.
    void makeNameBox(const QString &accessibleName);
    /// Shows a column of the record in a box; Null shows as nothing.
    void showColumn(QLineEdit *box, const schema::Column &column);
    /// The number in a box. Throws std::runtime_error, with the focus moved there, where the box
    /// holds none.
    Currency number(QLineEdit *box) const;
    /// The same, but blanks alone give Null.
    Value numberOrNull(QLineEdit *box) const;

    QLineEdit *txtName = nullptr;

private:
    QString m_storedName;
};
