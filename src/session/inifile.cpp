#include "session/inifile.h"

#include "session/synchronizedfolder.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::Literals;

namespace {

constexpr qint64 mostBytes = 1 << 20; // beyond it the file is none of this program's
const QString generalSection = u"General"_s;

// A value stays on its line and keeps the blanks at its ends.
QByteArray encoded(const QString &value)
{
    return value.toUtf8().toPercentEncoding("!#$&'()*+,/:;=?@[]");
}

} // namespace

IniFile::IniFile(const QString &path)
    : m_path(path)
{
}

bool IniFile::exists() const
{
    return QFileInfo::exists(m_path);
}

bool IniFile::read()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QString section = generalSection;
    for (const QByteArray &rawLine : file.read(mostBytes).split('\n')) {
        const QByteArray line = rawLine.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']'))
            section = QString::fromUtf8(line.mid(1, line.size() - 2));
        else if (equals > 0 && !line.startsWith(';')) {
            const QString key = QString::fromUtf8(line.left(equals).trimmed());
            const QByteArray value =
                QByteArray::fromPercentEncoding(line.mid(equals + 1).trimmed());
            m_values[section == generalSection ? key : section + u'/' + key] =
                QString::fromUtf8(value);
        }
    }
    return file.error() == QFileDevice::NoError;
}

QByteArray IniFile::contents() const
{
    QMap<QString, QByteArray> sections = {{generalSection, {}}};
    for (auto entry = m_values.cbegin(); entry != m_values.cend(); ++entry) {
        const qsizetype slash = entry.key().indexOf(u'/');
        const QString section = slash < 0 ? generalSection : entry.key().left(slash);
        sections[section] +=
            entry.key().mid(slash + 1).toUtf8() + '=' + encoded(entry.value()) + '\n';
    }
    QByteArray text;
    for (auto section = sections.cbegin(); section != sections.cend(); ++section)
        text += '[' + section.key().toUtf8() + "]\n" + section.value() + '\n';
    return text;
}

bool IniFile::isWritable() const
{
    QSaveFile file(m_path);
    const bool writable =
        file.open(QIODevice::WriteOnly) && file.write(contents()) >= 0 && file.flush();
    file.cancelWriting();
    return writable;
}

bool IniFile::write() const
{
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents()) < 0 || !file.commit())
        return false;
    synchronizeFolder(QFileInfo(m_path).absolutePath());
    return true;
}
