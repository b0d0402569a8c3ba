// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/PaletteList.h"

#include "ui/Menu/KeyCaps.h"
#include "ui/Menu/PaletteMatch.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QPainter>
#include <QTextLayout>

namespace tessaly {

namespace {

// Points.
constexpr int sidePadding = 10;
constexpr int iconSide = 18;
constexpr int gap = 10;
constexpr int linePadding = 8;
constexpr qreal selectedTint = 0.16; ///< of the accent

QFont smaller(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * 0.9);
    return font;
}

QColor tinted(QColor color)
{
    color.setAlphaF(selectedTint);
    return color;
}

} // namespace

void PaletteModel::show(QList<PaletteEntry> found, const QString &query)
{
    beginResetModel();
    m_entries = std::move(found);
    m_query = query;
    endResetModel();
}

int PaletteModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : int(m_entries.size()); }

QVariant PaletteModel::data(const QModelIndex &index, int role) const
{
    const PaletteEntry &entry = m_entries.at(index.row());
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return entry.title;
    if (role != Qt::AccessibleTextRole)
        return {};
    QStringList parts { entry.title, entry.place };
    if (!entry.keys.isEmpty())
        parts += entry.keys.join(u' ');
    if (!entry.enabled)
        parts += QCoreApplication::translate("CommandPalette", "not available now");
    return parts.join(QStringLiteral(", "));
}

QSize PaletteDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int text = std::max(option.fontMetrics.height(), iconSide) + 2 * linePadding;
    const int caps = KeyCapsPainting::size({ QStringLiteral("A") }, QFontMetrics(smaller(option.font))).height();
    return { 1, std::max(text, caps + linePadding) };
}

int PaletteDelegate::drawTitle(
    QPainter &painter, const QRect &place, const QFont &font, const PaletteEntry &entry, const QString &query) const
{
    QFont met = font;
    met.setWeight(QFont::Bold);
    // Measured in bold, so that it fits however many letters are.
    const QString shown = QFontMetrics(met).elidedText(entry.title, Qt::ElideRight, place.width());
    QTextLayout layout(shown, font);
    QList<QTextLayout::FormatRange> formats;
    const auto match = matchPalette(query, { entry.title, entry.place + u' ' + entry.keywords });
    for (const int letter : match ? match->letters : QList<int>()) {
        QTextCharFormat format;
        format.setFontWeight(QFont::Bold);
        if (letter < shown.size())
            formats += { letter, 1, format };
    }
    layout.setFormats(formats);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const int width = qCeil(line.naturalTextWidth());
    const qreal x = painter.layoutDirection() == Qt::RightToLeft ? place.right() + 1 - width : place.left();
    layout.draw(&painter, { x, place.top() + (place.height() - line.height()) / 2 });
    return width;
}

void PaletteDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto &model = static_cast<const PaletteModel &>(*index.model());
    const PaletteEntry &entry = model.entry(index.row());
    const auto placed = [&](const QRect &rect) { return QStyle::visualRect(option.direction, option.rect, rect); };
    painter->save();
    painter->setLayoutDirection(option.direction);
    if (option.state & QStyle::State_Selected)
        ControlShapes::box(*painter, option.rect, tinted(Colors::accent()), Qt::transparent);
    QRect free = option.rect.adjusted(sidePadding, 0, -sidePadding, 0);
    const QRect iconPlace(free.left(), free.top() + (free.height() - iconSide) / 2, iconSide, iconSide);
    entry.icon.paint(painter, placed(iconPlace), Qt::AlignCenter, entry.enabled ? QIcon::Normal : QIcon::Disabled);
    free.setLeft(iconPlace.right() + 1 + gap);

    const QFont small = smaller(option.font);
    QPalette palette = option.palette;
    palette.setCurrentColorGroup(entry.enabled ? QPalette::Active : QPalette::Disabled);
    painter->setFont(small);
    const QSize caps = KeyCapsPainting::size(entry.keys, painter->fontMetrics());
    const QRect capsPlace(
        QPoint(free.right() + 1 - caps.width(), free.top() + (free.height() - caps.height()) / 2), caps);
    KeyCapsPainting::draw(*painter, placed(capsPlace).topLeft(), entry.keys, palette);
    free.setRight(capsPlace.left() - 1 - (caps.isEmpty() ? 0 : gap));

    painter->setPen(palette.color(QPalette::Text));
    painter->setFont(option.font);
    free.setLeft(free.left() + drawTitle(*painter, placed(free), option.font, entry, model.query()) + gap);
    painter->setFont(small);
    painter->setPen(entry.enabled ? Colors::quietText() : palette.color(QPalette::Text));
    // Left out rather than cut.
    if (painter->fontMetrics().horizontalAdvance(entry.place) <= free.width())
        painter->drawText(placed(free), int(Qt::AlignVCenter | Qt::AlignLeading) | Qt::TextSingleLine, entry.place);
    painter->restore();
}

PaletteList::PaletteList(QWidget *parent) : QListView(parent), m_model(new PaletteModel(this))
{
    setModel(m_model);
    setItemDelegate(new PaletteDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    viewport()->setAutoFillBackground(false);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
        [this](const QModelIndex &current) { announce(current); });
}

void PaletteList::step(int rows)
{
    const int count = m_model->rowCount();
    if (count == 0)
        return;
    int row = currentIndex().row() + rows;
    if (std::abs(rows) == 1)
        row = (row + count) % count;
    setCurrentIndex(m_model->index(std::clamp(row, 0, count - 1)));
}

int PaletteList::rowHeight() const
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return itemDelegate()->sizeHint(option, {}).height();
}

int PaletteList::rowsOfPage() const { return std::max(1, viewport()->height() / rowHeight() - 1); }

/// A screen reader says the row although the focus is in the field.
void PaletteList::announce(const QModelIndex &current)
{
    if (!current.isValid() || !QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

} // namespace tessaly
