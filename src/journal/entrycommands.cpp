#include "journal/entrycommands.h"

#include "catalogue/frmExercise.h"
#include "catalogue/frmMeal.h"
#include "journal/frmCopyTo.h"
#include "session/session.h"

#include <QCoreApplication>

namespace {

struct EntryMenu
{
    Q_DECLARE_TR_FUNCTIONS(EntryMenu)
};

template<typename Editor>
std::optional<EntryCopies> editSubject(Session &session, Messages &messages, const EntryKind &kind,
                                       QWidget *parent, qint32 id)
{
    Editor(session, messages, parent).run(openEntry(session, kind, id).subject.toInt32());
    return std::nullopt;
}

} // namespace

std::vector<EntryCommand> entryCommands(Session &session, Messages &messages, const EntryKind &kind)
{
    return {
        {QStringLiteral("mnuShowSubject"),
         kind.isMeal() ? EntryMenu::tr("&Show What Was Eaten")
                       : EntryMenu::tr("&Show What Was Done"),
         [&](QWidget *parent, qint32 id) {
             return kind.isMeal() ? editSubject<frmMeal>(session, messages, kind, parent, id)
                                  : editSubject<frmExercise>(session, messages, kind, parent, id);
         }},
        {QStringLiteral("mnuCopyToday"), EntryMenu::tr("Copy to &Today"),
         [&](QWidget *parent, qint32 id) {
             return copyEntry(parent, session, messages, kind, id, session.clock().now().date());
         }},
        {QStringLiteral("mnuCopyTo"), EntryMenu::tr("Copy t&o\u2026"),
         [&](QWidget *parent, qint32 id) {
             return frmCopyTo(session, messages, kind, id, parent).run();
         }}};
}
