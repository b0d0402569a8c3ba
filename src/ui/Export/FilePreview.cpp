// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/FilePreview.h"

#include "core/Document/TessalyDocument.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds readDelay = 80ms;

/// Enough for a pane of 500 points at 200 %.
constexpr QSize pixelLimit { 1024, 1024 };

QLabel *makeText()
{
    auto *label = new QLabel;
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(1);
    return label;
}

/// A name has no spaces at which it could be broken.
QString breakable(QString name)
{
    for (const QChar mark : { u'.', u'_', u'-' })
        name.replace(mark, QString(mark) + QChar(0x200b));
    return name;
}

} // namespace

FilePreview::FilePreview(QWidget *parent) :
    QFrame(parent),
    m_thumbnails(pixelLimit, this),
    m_room(new QWidget),
    m_name(makeText()),
    m_details(makeText())
{
    setObjectName(QStringLiteral("filePreview"));
    m_name->setObjectName(QStringLiteral("previewName"));
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_room, 1);
    column->addWidget(m_name);
    column->addWidget(m_details);
    QPalette quiet = m_details->palette();
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    m_details->setPalette(quiet);
    m_delay.setSingleShot(true);
    m_delay.setInterval(readDelay);
    connect(&m_delay, &QTimer::timeout, this, [this] { m_thumbnails.read(m_path); });
    connect(&m_thumbnails, &FileThumbnails::ready, this, [this] {
        m_isReady = true;
        update();
    });
}

QSize FilePreview::sizeHint() const
{
    const int letter = fontMetrics().averageCharWidth();
    return { letter * 34, letter * 34 };
}

void FilePreview::follow(QItemSelectionModel &selection)
{
    connect(&selection, &QItemSelectionModel::selectionChanged, this,
        [this, &selection] { showSelected(selection.selectedRows()); });
}

void FilePreview::showSelected(const QModelIndexList &rows)
{
    const QString path = rows.size() == 1 ? rows.first().data(QFileSystemModel::FilePathRole).toString() : QString();
    const QFileInfo file(path);
    const bool isShown = !path.isEmpty() && (!file.isDir() || TessalyDocument::isDocument(path));
    m_delay.stop();
    m_thumbnails.forget();
    m_path = isShown ? path : QString();
    m_isReady = false;
    update();
    m_name->setText(rows.size() > 1 ? tr("%1 selected").arg(rows.size()) : isShown ? breakable(file.fileName()) : "");
    if (!isShown)
        return m_details->clear();
    QStringList lines { rows.first().siblingAtColumn(2).data().toString() };
    if (!file.isDir())
        lines += QLocale().formattedDataSize(file.size());
    lines += QLocale().toString(file.lastModified(), QLocale::ShortFormat);
    m_details->setText(lines.join(u'\n'));
    m_delay.start();
}

QRect FilePreview::pictureArea() const { return m_room->geometry(); }

void FilePreview::paintEvent(QPaintEvent *)
{
    if (m_path.isEmpty())
        return;
    QPainter painter(this);
    const QImage picture = m_thumbnails.thumbnail(m_path);
    const QRect area = pictureArea();
    if (picture.isNull()) {
        if (!m_isReady)
            return;
        painter.setPen(Colors::quietText());
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, tr("No preview"));
        return;
    }
    // Pictures smaller than the room are shown pixel by pixel.
    const QSizeF own = QSizeF(picture.size()) / devicePixelRatioF();
    const bool fits = own.width() <= area.width() && own.height() <= area.height();
    const QSizeF size = fits ? own : own.scaled(QSizeF(area.size()), Qt::KeepAspectRatio);
    QRectF place({}, size);
    place.moveCenter(QRectF(area).center());
    // Not by the painter, which takes few of many pixels.
    const QSize pixels = (size * devicePixelRatioF()).toSize().expandedTo({ 1, 1 });
    painter.drawImage(place, picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.setPen(Colors::outline());
    painter.drawRect(place.toAlignedRect().adjusted(0, 0, -1, -1));
}

} // namespace tessaly
