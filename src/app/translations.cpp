#include "app/translations.h"

#include <QCoreApplication>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

bool install(const QString &catalogue)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(u":/i18n/"_s + catalogue))
        return false;
    translator->setParent(qApp);
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

void installTranslations(const QStringList &languages)
{
    for (const QString &each : languages) {
        const QString language = each.section(u'-', 0, 0);
        if (language == u"en"_s)
            return;
        if (install(u"corvana_"_s + language)) {
            install(u"qtbase_"_s + language);
            return;
        }
    }
}
