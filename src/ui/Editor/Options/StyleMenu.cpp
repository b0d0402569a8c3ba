// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/StyleMenu.h"

#include "core/Editing/MarkCommands.h"
#include "core/Imaging/ColorHex.h"
#include "ui/Editor/Options/MenuButton.h"

#include <QMenu>
#include <QPainter>

namespace tessaly {

namespace {

/// A stroke in the style's colour and, within bounds, its width.
QIcon sampleOf(const SavedStyle &style)
{
    QPixmap picture(64, 64); // as sharp as any screen needs for an icon of 16
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = ColorHex::toColor(style.colorHex);
    const double width = std::clamp(style.lineWidth, 3.0, 14.0) * 1.4;
    if (style.category == StyleCategory::Text) {
        QFont font = painter.font();
        font.setPixelSize(56);
        font.setBold(style.bold);
        font.setItalic(style.italic);
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(picture.rect(), Qt::AlignCenter, QStringLiteral("A"));
    } else if (style.category == StyleCategory::Shape) {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(style.filled ? QBrush(color) : Qt::NoBrush);
        painter.drawRect(QRectF(12, 14, 40, 36));
    } else {
        painter.setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(12, 52, 52, 12);
    }
    return QIcon(picture);
}

/// A name as a menu shows it: its own "&" is no mnemonic.
QString menuText(const SavedStyle &style) { return style.displayName().replace(u'&', QStringLiteral("&&")); }

} // namespace

StyleMenu::StyleMenu(AnnotationStore &store, SavedStyles &styles, NameQuestion askName, QObject *parent) :
    QObject(parent),
    m_store(store),
    m_styles(styles),
    m_askName(std::move(askName))
{
}

Tool StyleMenu::tool() const
{
    const Annotation *mark = m_store.selected();
    return mark ? toolOf(mark->kind) : m_store.tool();
}

bool StyleMenu::canSave() const { return styleCategory(tool()).has_value(); }

void StyleMenu::report(const Outcome &outcome)
{
    if (!outcome)
        Q_EMIT failed(outcome.failure().message);
}

void StyleMenu::save()
{
    const Tool present = tool();
    const QString proposal = tr("Style %1").arg(m_styles.styles(present).size() + 1);
    const ToolStyle style = optionSubject(m_store).style;
    if (const auto name = m_askName(tr("Save Style"), tr("Save"), proposal))
        report(m_styles.add(SavedStyle::capturing(style, present, *name)));
}

void StyleMenu::rename(const QUuid &id, const QString &present)
{
    if (const auto name = m_askName(tr("Rename Style"), tr("Rename"), present))
        report(m_styles.rename(id, *name));
}

void StyleMenu::addEach(QMenu &menu, const std::function<void(const SavedStyle &)> &act)
{
    const QList<SavedStyle> styles = m_styles.styles(tool());
    for (const SavedStyle &style : styles)
        connect(
            menu.addAction(sampleOf(style), menuText(style)), &QAction::triggered, this, [act, style] { act(style); });
    menu.menuAction()->setEnabled(!styles.isEmpty());
}

void StyleMenu::fill(QMenu &menu)
{
    menu.clear();
    const QList<SavedStyle> styles = m_styles.styles(tool());
    for (qsizetype index = 0; index < styles.size(); ++index) {
        QString text = menuText(styles[index]);
        if (index < 9)
            text += tr("\tAlt+%1").arg(index + 1);
        connect(menu.addAction(sampleOf(styles[index]), text), &QAction::triggered, this,
            [this, style = styles[index]] { apply(style, tool(), m_store); });
    }
    if (styles.isEmpty())
        menu.addAction(tr("No saved styles"))->setEnabled(false);
    menu.addSeparator();
    connect(menu.addAction(tr("Save Style…")), &QAction::triggered, this, &StyleMenu::save);
    addEach(*menu.addMenu(tr("Rename")), [this](const SavedStyle &style) { rename(style.id, style.displayName()); });
    addEach(*menu.addMenu(tr("Delete")), [this](const SavedStyle &style) { report(m_styles.remove(style.id)); });
    menu.addSeparator();
    connect(menu.addAction(tr("Restore Default Styles")), &QAction::triggered, this,
        [this] { report(m_styles.restoreDefaults()); });
}

OptionItem StyleMenu::makeItem()
{
    auto *button = new MenuButton(tr("Styles"), tr("Saved styles"), tr("Saved styles (Alt+1 to Alt+9)"));
    button->setObjectName(QStringLiteral("savedStyles"));
    auto *menu = new QMenu(button);
    button->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { fill(*menu); });
    return { button,
        [this](const OptionSubject &subject) { return subject.topic == OptionSubject::Topic::Marks && canSave(); },
        [](const OptionSubject &) {} };
}

} // namespace tessaly
