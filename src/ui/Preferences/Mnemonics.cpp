// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/Mnemonics.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeySequence>
#include <QLabel>
#include <QSet>

namespace tessaly::Mnemonics {

namespace {

/// The place of a letter that is not taken yet: where a word begins, or else anywhere; -1 where there is none.
qsizetype freePlace(const QString &text, const QSet<QChar> &taken)
{
    qsizetype inside = -1;
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar letter = text[place].toLower();
        if (!letter.isLetterOrNumber() || taken.contains(letter))
            continue;
        if (place == 0 || text[place - 1].isSpace())
            return place;
        if (inside < 0)
            inside = place;
    }
    return inside;
}

QString tooltip(const QString &text, QChar letter)
{
    if (letter.isNull())
        return text;
    const QString key = QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode())).toString();
    return QCoreApplication::translate("Mnemonics", "%1 (%2)").arg(text, key);
}

/// The text with the mark before a free letter, which it then takes; null for a text without one.
std::pair<QString, QChar> marked(const QString &text, QSet<QChar> &taken)
{
    QString escaped = text;
    const qsizetype place = freePlace(text, taken);
    if (place < 0)
        return { escaped.replace(u'&', QStringLiteral("&&")), QChar() };
    const QChar letter = text[place].toLower();
    taken.insert(letter);
    const QString before = text.left(place), after = text.mid(place);
    return { QString(before).replace(u'&', QStringLiteral("&&")) + u'&'
            + QString(after).replace(u'&', QStringLiteral("&&")),
        letter };
}

} // namespace

void assign(QWidget &page)
{
    QSet<QChar> taken;
    QSet<const QWidget *> named; // by a label, whose letter reaches them
    const QList<QWidget *> widgets = page.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (const auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
            named.insert(label->buddy());
    }
    for (QWidget *widget : widgets) {
        auto *button = qobject_cast<QAbstractButton *>(widget);
        auto *label = qobject_cast<QLabel *>(widget);
        QWidget *control = label ? label->buddy() : button;
        if (!control || (button && named.contains(button)))
            continue;
        const QString text = label ? label->text() : button->text();
        const auto [shown, letter] = marked(text, taken);
        label ? label->setText(shown) : button->setText(shown);
        if (control->accessibleName().isEmpty())
            control->setAccessibleName(text);
        control->setToolTip(tooltip(control->accessibleName(), letter));
    }
}

} // namespace tessaly::Mnemonics
