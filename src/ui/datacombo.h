// A chooser of database rows.
#pragma once

#include "data/recordset.h"

#include <QComboBox>

#include <optional>

class NameFilter;

/// A combo box whose list comes from a result set: it shows a name and is bound to the row's
/// identifier. Typing any part of a name, without regard to case or accents, offers the names
/// that hold it. A typed text counts as a choice only when it is a whole name of the list; it is
/// never replaced by another one.
class DataCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit DataCombo(QWidget *parent = nullptr);

    /// Takes the rows of an open result set as the list; no row is chosen, the text is empty and
    /// no change is announced.
    void setRows(Recordset &rows, QLatin1StringView idColumn, QLatin1StringView nameColumn);

    /// The identifier of the chosen row; none while the text names no row.
    std::optional<qint32> boundValue() const { return m_boundValue; }
    /// Chooses the row of this identifier, or none; announces a change.
    void setBoundValue(std::optional<qint32> id);
    /// Shows this text, which chooses the row of that name, if there is one.
    void setDisplayedText(const QString &text);
    QString displayedText() const { return currentText(); }

Q_SIGNALS:
    void boundValueChanged();

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void highlightFirstMatch();
    void chooseRow(int row);
    void resolveText(const QString &text);
    void announceIfChanged(std::optional<qint32> id);

    NameFilter *m_filter;
    std::optional<qint32> m_boundValue;
};
