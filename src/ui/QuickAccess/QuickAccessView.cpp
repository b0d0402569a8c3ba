// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/QuickAccessView.h"

#include "core/Export/DragFile.h"
#include "core/Export/DraggedPicture.h"
#include "ui/QuickAccess/QuickAccessButton.h"
#include "ui/QuickAccess/ThumbnailPicture.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"

#include <QApplication>
#include <QDrag>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>

namespace tessaly {

namespace {

using enum QuickAccessAction;
using Shape = QuickAccessButton::Shape;

constexpr int usualWidth = 200; // points, as all below
constexpr int leastHeight = 116;
constexpr int mostHeight = 150;
constexpr int air = 8; ///< around the buttons

struct ButtonRow {
    QuickAccessAction action;
    const char *words;
    const char *toolTip;
    QLatin1StringView icon;
    Shape shape;
    Qt::Alignment corner; ///< of a symbol
};

constexpr ButtonRow buttonTable[] = {
    { Copy, QT_TRANSLATE_NOOP("QuickAccess", "Copy"), QT_TRANSLATE_NOOP("QuickAccess", "Copy the picture"),
        QLatin1StringView("copy-image"), Shape::Words, {} },
    { Save, QT_TRANSLATE_NOOP("QuickAccess", "Save"),
        QT_TRANSLATE_NOOP("QuickAccess", "Save the picture in the default folder"), QLatin1StringView("save"),
        Shape::Words, {} },
    { Annotate, QT_TRANSLATE_NOOP("QuickAccess", "Annotate"), QT_TRANSLATE_NOOP("QuickAccess", "Annotate"),
        QLatin1StringView("pen"), Shape::Symbol, Qt::AlignBottom | Qt::AlignLeft },
    { Pin, QT_TRANSLATE_NOOP("QuickAccess", "Pin to Screen"), QT_TRANSLATE_NOOP("QuickAccess", "Pin to Screen"),
        QLatin1StringView("pin"), Shape::Symbol, Qt::AlignTop | Qt::AlignRight },
    { CopyText, QT_TRANSLATE_NOOP("QuickAccess", "Copy Text"), QT_TRANSLATE_NOOP("QuickAccess", "Copy Text"),
        QLatin1StringView("text-viewfinder"), Shape::Symbol, Qt::AlignBottom | Qt::AlignRight },
    { Close, QT_TRANSLATE_NOOP("QuickAccess", "Close"), QT_TRANSLATE_NOOP("QuickAccess", "Close"),
        QLatin1StringView("xmark"), Shape::Symbol, Qt::AlignTop | Qt::AlignLeft },
};

const ButtonRow &rowOf(QuickAccessAction action) { return buttonTable[static_cast<int>(action)]; }
QString translated(const char *text) { return QCoreApplication::translate("QuickAccess", text); }

} // namespace

QuickAccessView::QuickAccessView(RasterImage image, bool showsTextButton, double cornerRadius, QWidget *parent) :
    QWidget(parent),
    m_image(std::move(image)),
    m_cornerRadius(cornerRadius)
{
    setAccessibleName(tr("Screenshot"));
    setAccessibleDescription(tr("Drag to share"));
    setToolTip(tr("Drag to share"));
    setCursor(Qt::OpenHandCursor);
    addButtons(showsTextButton);
}

void QuickAccessView::addButtons(bool showsTextButton)
{
    for (const ButtonRow &row : buttonTable) {
        if (row.action == CopyText && !showsTextButton)
            continue;
        auto *button = new QuickAccessButton(row.shape, row.icon, translated(row.words), this);
        button->setToolTip(translated(row.toolTip));
        connect(button, &QPushButton::clicked, this, [this, action = row.action] { Q_EMIT chosen(action); });
        m_buttons.emplaceBack(row.action, button);
    }
}

QuickAccessButton *QuickAccessView::button(QuickAccessAction action) const
{
    const auto found = std::ranges::find(m_buttons, action, [](const auto &each) { return each.first; });
    return found == m_buttons.end() ? nullptr : found->second;
}

QSize QuickAccessView::sizeHint() const
{
    const QSize symbol = button(Close)->sizeHint();
    const QSize copy = button(Copy)->sizeHint();
    const QSize save = button(Save)->sizeHint();
    const int wordsWidth = std::max(copy.width(), save.width());
    const int width = std::max(usualWidth, wordsWidth + 2 * (symbol.width() + 2 * air));
    const int height = qRound(width * m_image.pointSize.height() / m_image.pointSize.width());
    const int forWords = copy.height() + save.height() + 3 * air;
    return { width, std::max(std::clamp(height, leastHeight, mostHeight), forWords) };
}

void QuickAccessView::setRevealed(bool revealed)
{
    m_revealed = revealed;
    for (const auto &each : m_buttons)
        each.second->setRevealed(revealed);
    update();
}

/// The words one below the other in the middle and equally wide, the symbols in the corners.
void QuickAccessView::resizeEvent(QResizeEvent *)
{
    m_thumbnail = {};
    const QRect inner = rect().adjusted(air, air, -air, -air);
    for (const auto &[action, button] : m_buttons)
        button->setGeometry(QStyle::alignedRect(layoutDirection(), rowOf(action).corner, button->sizeHint(), inner));
    QWidget *copy = button(Copy);
    QWidget *save = button(Save);
    const int width = std::max(copy->width(), save->width());
    const int left = (this->width() - width) / 2;
    const int top = (height() - copy->height() - air - save->height()) / 2;
    copy->setGeometry(left, top, width, copy->height());
    save->setGeometry(left, top + copy->height() + air, width, save->height());
}

/// Made once for a screen's scale: the capture may have a hundred times its pixels.
const QPixmap &QuickAccessView::thumbnail()
{
    const double scale = devicePixelRatioF();
    if (m_thumbnail.isNull() || !qFuzzyCompare(m_thumbnail.devicePixelRatio(), scale)) {
        m_thumbnail = QPixmap::fromImage(thumbnailPicture(m_image, size(), scale, Colors::canvasSurround()));
        m_thumbnail.setDevicePixelRatio(scale);
    }
    return m_thumbnail;
}

void QuickAccessView::paintEvent(QPaintEvent *)
{
    constexpr QColor veil(0, 0, 0, 110);
    constexpr QColor edge(0x80, 0x80, 0x80);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(thumbnail());
    painter.drawRoundedRect(rect(), m_cornerRadius, m_cornerRadius);
    ControlShapes::box(painter, rect(), m_revealed ? veil : Qt::transparent, edge, m_cornerRadius);
}

bool QuickAccessView::event(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_thumbnail = {};
    return QWidget::event(event);
}

void QuickAccessView::mousePressEvent(QMouseEvent *event) { m_pressed = event->position().toPoint(); }

void QuickAccessView::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->position().toPoint() - m_pressed).manhattanLength();
    if (!m_dragging && (event->buttons() & Qt::LeftButton) && distance >= QApplication::startDragDistance())
        drag();
}

void QuickAccessView::drag()
{
    // It belongs to the program: this view may go while it is under way. Qt keeps its data beyond exec() for receivers
    // that fetch late.
    auto *drag = new QDrag(qApp);
    drag->setPixmap(thumbnail());
    drag->setHotSpot({ -12, -12 });
    drag->setMimeData(
        new DraggedPicture([image = m_image] { return image; }, dragFileName(SystemClock()), privateTemporaryFolder()));
    m_dragging = true;
    const QPointer<QuickAccessView> alive(this);
    drag->exec(Qt::CopyAction);
    if (!alive)
        return;
    m_dragging = false;
    Q_EMIT dragEnded();
}

} // namespace tessaly
