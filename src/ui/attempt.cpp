#include "ui/attempt.h"

#include "data/numbers.h"
#include "data/storeerror.h"
#include "ui/messages.h"

#include <QCoreApplication>

namespace {

struct RefusalTexts
{
    Q_DECLARE_TR_FUNCTIONS(RefusalTexts)
};

QString causeOf(StoreError::Kind kind)
{
    switch (kind) {
    case StoreError::Kind::Busy:
        return RefusalTexts::tr("Another program is using the database.");
    case StoreError::Kind::Full:
        return RefusalTexts::tr("The disk is full.");
    case StoreError::Kind::InputOutput:
        return RefusalTexts::tr("The disk reported an error.");
    case StoreError::Kind::Uncertain:
        return RefusalTexts::tr(
            "The disk reported an error at the very end: the change may have been stored. "
            "Please look before you repeat it.");
    case StoreError::Kind::ReadOnly:
        return RefusalTexts::tr("The database file can't be written.");
    case StoreError::Kind::Damaged:
        return RefusalTexts::tr(
            "The database file is damaged. Please keep a copy of it as it is; the help page "
            "\"Your data\" says how to go on.");
    case StoreError::Kind::Locked:
        return RefusalTexts::tr("The database file is locked with another password.");
    case StoreError::Kind::Replaced:
        return RefusalTexts::tr(
            "Another program has put another file in the place of the database file, or has "
            "changed its password. Please end this program and start it again.");
    case StoreError::Kind::Gone:
        return RefusalTexts::tr("The record has been deleted meanwhile.");
    case StoreError::Kind::Changed:
        return RefusalTexts::tr(
            "Another program has changed the record since it was opened. Stored once more, "
            "your values take the place of the other ones.");
    case StoreError::Kind::ParametersChanged:
        return RefusalTexts::tr(
            "Another program has changed the common parameters meanwhile. Please check your "
            "values against the units that stand beside them now.");
    case StoreError::Kind::NameTaken:
    case StoreError::Kind::ReferenceRefused:
    case StoreError::Kind::Other:
        break;
    }
    return {};
}

} // namespace

QString causeOf(const std::exception &error)
{
    if (const auto *refusal = dynamic_cast<const StoreError *>(&error))
        return causeOf(refusal->kind());
    if (dynamic_cast<const OverflowError *>(&error))
        return RefusalTexts::tr("A number is outside the range of what can be stored.");
    return {};
}

QString whatIsMissing(size_t leftOut, bool isCutShort)
{
    QStringList sentences;
    if (leftOut > 0)
        sentences +=
            RefusalTexts::tr(
                "Records that can't be shown, since their identifiers are out of range: %1.")
                .arg(leftOut);
    if (isCutShort)
        sentences += RefusalTexts::tr("There may be more records.") + u' ' +
                     causeOf(StoreError::Kind::Damaged);
    return sentences.join(u'\n');
}

void tellFailure(QWidget *window, Messages &messages, const std::exception &error,
                 const QString &failure)
{
    QString cause = causeOf(error);
    if (cause.isEmpty())
        cause = QString::fromUtf8(error.what());
    messages.error(window,
                   failure.isEmpty() ? RefusalTexts::tr("The last action could not be carried out")
                                     : failure,
                   cause);
}

bool attempt(QWidget *window, Messages &messages, const std::function<void()> &action,
             const QString &failure)
{
    try {
        action();
        return true;
    } catch (const std::exception &error) {
        tellFailure(window, messages, error, failure);
        return false;
    }
}
