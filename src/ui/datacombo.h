// A chooser of database rows.
#pragma once

#include "data/recordset.h"

#include <QComboBox>

#include <optional>

class NameFilter;

/// A combo box whose list comes from a result set: it shows a name and is bound to the row's
/// identifier. A text counts as a choice only when it is a whole name of the list; it is never
/// replaced by another one.
///
/// Typing any part of a name, without regard to case or accents, offers the names that hold it,
/// the first of them highlighted. Enter takes the highlighted name, Tab takes it and goes on to the
/// next field, Escape goes back to what was typed. F4 and Alt+Down open the whole list. The wheel
/// does nothing: a choice is not changed in passing. A name too long for the list is cut short
/// there, with the whole of it in the tooltip, and the box shows its beginning. Rows may have a
/// detail, which the lists show in grey beside the name; it is no part of the name.
class DataCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit DataCombo(QWidget *parent = nullptr);

    /// Where there is always to be a choice: typing something else doesn't give it up, and Escape
    /// or leaving the box with a text that names no row brings it back.
    void setKeepsChoice(bool on) { m_keepsChoice = on; }

    /// Takes the rows of an open result set as the list, with the detail of each from a column if
    /// one is given; no row is chosen, the text is empty and no change is announced.
    void setRows(Recordset &rows, const schema::Column &idColumn, const schema::Column &nameColumn,
                 const schema::Column *detailColumn = nullptr);

    /// The identifier of the chosen row; none while the text names no row.
    std::optional<qint32> boundValue() const { return m_boundValue; }
    /// Chooses the row of this identifier, or none; announces a change.
    void setBoundValue(std::optional<qint32> id);
    /// Shows this text, which chooses the row of that name, if there is one.
    void setDisplayedText(const QString &text);
    QString displayedText() const { return currentText(); }

    bool eventFilter(QObject *watched, QEvent *event) override;
    void showPopup() override;

Q_SIGNALS:
    void boundValueChanged();
    /// The chooser is entered, or its list or a text is asked for from outside: the moment for
    /// rows that are dear to read, and for other rows than before. It is not raised while a person
    /// works in the chooser.
    void rowsNeeded();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void offerMatches(const QString &part);
    void highlightFirstMatch();
    void takeMatch(bool forward);
    std::optional<qint32> idOfRow(int row) const;
    void chooseRow(int row);
    void resolveText(const QString &text);
    void returnToChoice();
    void announceIfChanged(std::optional<qint32> id);

    NameFilter *m_filter;
    QString m_typed; ///< while the matches are offered, which put their own texts into the box
    std::optional<qint32> m_boundValue;
    std::optional<qint32> m_lastChoice; ///< what typing began with, or what was taken since
    bool m_keepsChoice = false;
};
