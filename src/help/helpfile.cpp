#include "help/helpfile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QResource>

namespace {

struct HelpFileTexts
{
    Q_DECLARE_TR_FUNCTIONS(HelpViewer)
};

// The bundle is followed by its sum; without a look at it, one wrong bit may send the reader of
// the resources anywhere.
bool isIntact(const QByteArray &file)
{
    constexpr qsizetype sumLength = 64;
    const QByteArray sum = QCryptographicHash::hash(file.chopped(qMin(sumLength, file.size())),
                                                    QCryptographicHash::Sha256)
                               .toHex();
    return file.size() > sumLength && file.endsWith(sum);
}

} // namespace

QString openHelpFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return HelpFileTexts::tr("Can't open the help file Corvana.hlp. Please make sure it is "
                                 "present in the program folder.");
    static QByteArray bundle; // read from as long as the program runs
    bundle = file.readAll();
    if (!isIntact(bundle) ||
        !QResource::registerResource(reinterpret_cast<const uchar *>(bundle.constData())))
        return HelpFileTexts::tr("The help file Corvana.hlp is damaged. Please put back the one "
                                 "that came with the program.");
    return {};
}
