#include "about/components.h"

#include "data/connection.h"
#include "exchange/csvreader.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QCoreApplication>
#include <QFile>
#include <QMap>

using namespace Qt::Literals;

namespace {

class Components
{
    Q_DECLARE_TR_FUNCTIONS(Components)
};

QString licenceFile(const QString &name)
{
    QFile file(u":/licences/"_s + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The fields of a paragraph in the distribution's format for copyright files: a line that begins
/// with a blank goes on with the field above, and in it a lone dot is an empty line.
using Paragraph = QMap<QString, QString>;

Paragraph paragraphOf(const QString &lines)
{
    Paragraph fields;
    QString field;
    for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u' ')) {
            const QString more = line.trimmed();
            fields[field] += u'\n' + (more == u"."_s ? QString() : more);
        } else {
            const auto colon = line.indexOf(u':');
            field = line.first(colon);
            fields[field] = line.sliced(colon + 1).trimmed();
        }
    }
    return fields;
}

/// The notices about files in packaging/copyright, each with its licence in full.
class Notices
{
public:
    Notices()
    {
        for (const QString &lines : licenceFile(u"copyright"_s).split(u"\n\n"_s)) {
            const Paragraph paragraph = paragraphOf(lines);
            if (paragraph.contains(u"Files"_s))
                m_paragraphs.push_back(paragraph);
            else if (const QString licence = paragraph[u"License"_s]; !licence.isEmpty())
                m_licences[licence.section(u'\n', 0, 0)] = licence.section(u'\n', 1);
        }
    }

    /// Those about files of these names; what is taken is taken once.
    QString take(const QString &files)
    {
        QStringList texts;
        for (Paragraph &paragraph : m_paragraphs)
            if (paragraph[u"Files"_s].startsWith(files))
                texts += textOf(std::exchange(paragraph, {}));
        return texts.join(u"\n\n"_s);
    }

private:
    QString textOf(const Paragraph &paragraph) const
    {
        const QString licence = paragraph[u"License"_s];
        const QString name = licence.section(u'\n', 0, 0);
        const QString body = licence.section(u'\n', 1);
        return paragraph[u"Files"_s] + u"\nCopyright: "_s + paragraph[u"Copyright"_s] + u"\n\n"_s +
               (body.isEmpty() ? m_licences[name] : body);
    }

    std::vector<Paragraph> m_paragraphs;
    QMap<QString, QString> m_licences;
};

QString told(Connection &journal, const char *query)
{
    return guarded([&] {
        const StatementUse statement = journal.prepared(query);
        statement->executeStep();
        return QString::fromStdString(statement->getColumn(0).getString());
    });
}

} // namespace

std::vector<Component> components(Connection &journal)
{
    Notices notices;
    const QString engine = notices.take(u"sqlite3mc/sqlite3.c"_s);
    const QString lesser = licenceFile(u"LGPL-3"_s) + u'\n' + licenceFile(u"GPL-3"_s);
    return {
        {u"Corvana"_s, QCoreApplication::applicationVersion(), u"MIT"_s, licenceFile(u"LICENSE"_s)},
        {u"Qt"_s, QString::fromLatin1(qVersion()), u"LGPL 3"_s,
         Components::tr("Copyright: The Qt Company Ltd. and other contributors") + u"\n\n"_s +
             lesser + licenceFile(u"qt-notices.txt"_s) + u'\n' + notices.take(u"qtbase_"_s)},
        {u"SQLite"_s, told(journal, "select sqlite_version()"), Components::tr("public domain"),
         engine},
        {u"SQLite3 Multiple Ciphers"_s,
         told(journal, "select sqlite3mc_version()").section(u' ', -1), u"MIT"_s,
         notices.take(u"sqlite3mc/"_s)},
        {u"SQLiteCpp"_s, QStringLiteral(SQLITECPP_VERSION), u"MIT"_s,
         notices.take(u"SQLiteCpp/"_s)},
        {u"libcsv"_s, libcsvVersion(), u"LGPL 2.1"_s,
         notices.take(u"libcsv/"_s) + u"\n\n"_s + licenceFile(u"LGPL-2.1"_s)},
    };
}
