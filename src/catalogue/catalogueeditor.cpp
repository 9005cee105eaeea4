#include "catalogue/catalogueeditor.h"

#include "session/session.h"

#include <QLineEdit>

void CatalogueEditor::makeNameBox(const QString &accessibleName)
{
    txtName = makeBox(QStringLiteral("txtName"), accessibleName);
    txtName->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
}

void CatalogueEditor::showColumn(QLineEdit *box, const schema::Column &column)
{
    box->setText(session().text().toText(source().value(column)));
    box->setCursorPosition(0); // a text longer than its box shows its beginning
}

Currency CatalogueEditor::number(QLineEdit *box) const
{
    const std::optional<Currency> number = session().text().toCurrency(box->text());
    if (!number) {
        box->setFocus();
        throw std::runtime_error("a field to be stored holds no number");
    }
    return *number;
}

Value CatalogueEditor::numberOrNull(QLineEdit *box) const
{
    return box->text().trimmed().isEmpty() ? Value() : Value(number(box));
}

void CatalogueEditor::recordStored()
{
    m_storedName = txtName->text();
    RecordEditor::recordStored();
}
