// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/EmojiButton.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QWidgetAction>

namespace tessaly {

namespace {

constexpr std::array offered { u"😀", u"😂", u"😍", u"😎", u"🤔", u"😮", u"😢", u"😡", u"👍", u"👎", u"👏", u"🙏", u"👉", u"👈",
    u"👆", u"👇", u"❤️", u"🔥", u"⭐", u"🎉", u"✅", u"❌", u"⚠️", u"❓", u"💡", u"🐞", u"🚀", u"👀", u"💯", u"📌", u"🔒",
    u"⏰" };
constexpr int columns = 8;

/// The colour glyphs first: other fonts have plain drawings of some of them.
QFont emojiFont(QFont font, double factor)
{
    font.setFamilies({ QStringLiteral("Noto Color Emoji"), font.family() });
    font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

EmojiButton::EmojiButton(QWidget *parent) :
    MenuButton({}, tr("Sticker"), tr("Sticker"), parent),
    m_menu(new QMenu(this)),
    m_other(new QLineEdit)
{
    setFont(emojiFont(font(), 1.3));
    auto *action = new QWidgetAction(m_menu);
    action->setDefaultWidget(makeGrid());
    m_menu->addAction(action);
    setMenu(m_menu);
}

void EmojiButton::setEmoji(const QString &emoji)
{
    setText(emoji);
    setAccessibleDescription(emoji);
}

void EmojiButton::pick(const QString &emoji)
{
    m_menu->close();
    if (emoji.isEmpty())
        return;
    setEmoji(emoji);
    Q_EMIT picked(emoji);
}

QWidget *EmojiButton::makeGrid()
{
    auto *panel = new QWidget;
    auto *grid = new QGridLayout(panel);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->setSpacing(4);
    int index = 0;
    for (const char16_t *code : offered) {
        const QString emoji = QString::fromUtf16(code);
        auto *button = new QToolButton;
        button->setFont(emojiFont(button->font(), 1.5));
        button->setText(emoji);
        button->setAutoRaise(true);
        button->setToolTip(emoji);
        button->setAccessibleName(emoji);
        connect(button, &QToolButton::clicked, this, [this, emoji] { pick(emoji); });
        grid->addWidget(button, index / columns, index % columns);
        ++index;
    }
    m_other->setPlaceholderText(tr("Other emoji or short text"));
    m_other->setToolTip(tr("Other emoji or short text"));
    m_other->setAccessibleName(tr("Other emoji or short text"));
    m_other->setMaxLength(16);
    connect(m_other, &QLineEdit::returnPressed, this, [this] {
        pick(m_other->text().trimmed());
        m_other->clear();
    });
    grid->addWidget(m_other, index / columns + 1, 0, 1, columns);
    return panel;
}

} // namespace tessaly
