// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Icons.h"

#include "ui/Style/Appearance.h"

#include <QDir>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

// Outside the namespace, as the macro requires: a static library's resources are not registered by themselves.
static void registerIcons() { Q_INIT_RESOURCE(icons); }

namespace tessaly {

namespace {

QString pathOf(const QString &name) { return QStringLiteral(":/tessaly/icons/%1.svg").arg(name); }

QColor colorOf(QIcon::Mode mode, QIcon::State state)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return state == QIcon::On ? Colors::accent() : palette.color(QPalette::Active, QPalette::WindowText);
}

/// Draws one SVG file in one colour, which stands for whatever colours the file names, at the size that is asked for.
/// The file is read when the icon is first seen.
class LineIconEngine : public QIconEngine {
public:
    explicit LineIconEngine(QString name) : m_name(std::move(name)) { }

    QString key() const override { return QStringLiteral("tessaly"); }
    QString iconName() override { return m_name; }
    bool isNull() override { return false; }
    QIconEngine *clone() const override { return new LineIconEngine(m_name); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * scale, mode, state, scale));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    /// `pixelSize` is in device pixels.
    QPixmap scaledPixmap(const QSize &pixelSize, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        const QColor color = colorOf(mode, state);
        const QString key = QStringLiteral("tessaly-icon %1 %2x%3 %4 %5")
                                .arg(m_name)
                                .arg(pixelSize.width())
                                .arg(pixelSize.height())
                                .arg(color.rgba())
                                .arg(scale);
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = QPixmap::fromImage(drawn(pixelSize, color));
            pixmap.setDevicePixelRatio(scale);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

private:
    QImage drawn(const QSize &pixelSize, const QColor &color) const
    {
        QImage image(pixelSize, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const int side = std::min(pixelSize.width(), pixelSize.height());
        QSvgRenderer(pathOf(m_name))
            .render(&painter, QRectF((pixelSize.width() - side) / 2, (pixelSize.height() - side) / 2, side, side));
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), color);
        return image;
    }

    QString m_name;
};

} // namespace

QIcon Icons::icon(QLatin1StringView name)
{
    registerIcons();
    const bool exists = QFile::exists(pathOf(name));
    Q_ASSERT_X(exists, "Icons::icon", name.data());
    return exists ? QIcon(new LineIconEngine(name)) : QIcon();
}

QStringList Icons::names()
{
    registerIcons();
    QStringList names;
    const QStringList files = QDir(QStringLiteral(":/tessaly/icons")).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files)
        names += file.chopped(4);
    return names;
}

QIcon Icons::application()
{
    registerIcons();
    QSvgRenderer drawing(QStringLiteral(":/tessaly/icons/application/tessaly.svg"));
    QIcon icon;
    for (const int side : { 16, 24, 32, 48, 128 }) { // what title bars, task bars and switchers ask for
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        drawing.render(&painter, QRectF(image.rect()));
        painter.end();
        icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

} // namespace tessaly
