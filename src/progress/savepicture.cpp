#include "progress/savepicture.h"

#include "ui/messages.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QSaveFile>
#include <QScopeGuard>
#include <QStandardPaths>

namespace progress {

namespace {

bool isPdf(const QString &path)
{
    return path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
}

/// The first of the usual folders that there is.
QString pictureFolder()
{
    for (const auto place : {QStandardPaths::PicturesLocation, QStandardPaths::DocumentsLocation}) {
        QString folder = QStandardPaths::writableLocation(place);
        if (!folder.isEmpty() && QDir(folder).exists())
            return folder;
    }
    return QDir::homePath();
}

class PictureDialog : public QFileDialog
{
    Q_DECLARE_TR_FUNCTIONS(progress::PictureDialog)

public:
    PictureDialog(QWidget *parent, Messages &messages)
        : QFileDialog(parent, tr("Save Picture"))
        , m_messages(messages)
    {
        setObjectName(QStringLiteral("dlgSavePicture"));
        setAcceptMode(AcceptSave);
        setNameFilters({tr("PNG picture (*.png)"), tr("PDF document (*.pdf)")});
        connect(this, &QFileDialog::filterSelected, this, [this] { setDefaultSuffix(ending()); });
        setDefaultSuffix(ending());
        setDirectory(pictureFolder());
    }

    /// The file to save in, empty where there shall be none. It has an ending in any case: a file
    /// dialog's default suffix leaves names alone that have a dot.
    QString askForPath()
    {
        while (exec() == Accepted) {
            QString chosen = selectedFiles().constFirst();
            if (isPdf(chosen) || chosen.endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
                return chosen;
            const QString dot = chosen.endsWith(u'.') ? QString() : QStringLiteral(".");
            QString path = chosen + dot + ending();
            if (!QFile::exists(path) || mayReplace(path))
                return path;
        }
        return {};
    }

private:
    QString ending() const
    {
        const bool pdf = selectedNameFilter() == nameFilters().constLast();
        return pdf ? QStringLiteral("pdf") : QStringLiteral("png");
    }
    bool mayReplace(const QString &path)
    {
        return m_messages.ask(parentWidget(), tr("Are you sure?"),
                              tr("There is a file %1 already. Do you want to replace it?")
                                  .arg(QFileInfo(path).fileName()));
    }

    Messages &m_messages;
};

/// What kept the picture from being saved; empty where nothing did.
QString write(const QString &path, PageContents contents, QSize chartSize, int resolution)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
    QSaveFile file(path);
    bool isWritten = file.open(QIODevice::WriteOnly);
    if (isWritten && isPdf(path)) {
        contents.font.setPointSizeF(paperPoints);
        isWritten = writePdf(file, contents);
    } else if (isWritten) {
        // Twice the screen's resolution, so that it stays sharp when it is enlarged.
        isWritten = pictureOf(contents, 2 * chartSize, 2 * resolution).save(&file, "PNG");
    }
    return isWritten && file.commit() ? QString() : file.errorString();
}

} // namespace

void savePicture(QWidget *parent, Messages &messages, const PageContents &contents, QSize chartSize)
{
    PictureDialog dialog(parent, messages);
    dialog.selectFile(QStringLiteral("%1 %2").arg(
        contents.heading, contents.series.period().dateFrom.toString(Qt::ISODate)));
    for (;;) {
        const QString path = dialog.askForPath();
        if (path.isEmpty())
            return;
        const QString failure = write(path, contents, chartSize, parent->logicalDpiY());
        if (failure.isEmpty())
            return;
        messages.error(
            parent,
            PictureDialog::tr("Can't save the picture: %1. Please choose another name or folder")
                .arg(failure));
    }
}

} // namespace progress
