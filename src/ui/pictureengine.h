// Icons that read their picture files no earlier than they are shown.
#pragma once

#include <QIconEngine>
#include <QList>
#include <QPixmap>

#include <map>
#include <optional>

/// An icon drawn in several sizes, one file each: "<path>-<size>.png". An icon of Qt's own loads
/// every size when it is made, which for a toolbar takes a good part of the program's start.
class PictureEngine : public QIconEngine
{
public:
    /// The sizes in pixels, ascending.
    PictureEngine(const QString &path, const QList<int> &sizes);

    QIconEngine *clone() const override { return new PictureEngine(*this); }
    QString key() const override { return QStringLiteral("PictureEngine"); }
    bool isNull() override;
    /// Of the sizes those that a window's title bar or its task may want.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override;
    QSize actualSize(const QSize &size, QIcon::Mode, QIcon::State) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;

private:
    QString fileOf(int size) const;

    QString m_path;
    QList<int> m_sizes;
    std::optional<bool> m_exists;                           ///< once it was asked for
    std::map<std::pair<int, QIcon::Mode>, QPixmap> m_shown; ///< by width
};
