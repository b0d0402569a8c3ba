// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/WidgetAlerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace tessaly {

namespace {

void prepare(QMessageBox &box, QMessageBox::Icon icon, const QString &message, const QString &informativeText)
{
    box.setIcon(icon);
    box.setWindowModality(Qt::ApplicationModal);
    box.setTextFormat(Qt::PlainText); // file names are no markup
    box.setText(message);
    box.setInformativeText(informativeText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void acknowledge(QMessageBox::Icon icon, const QString &message, const QString &informativeText)
{
    QMessageBox box(QApplication::activeWindow());
    prepare(box, icon, message, informativeText);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace

void WidgetAlerts::warn(const QString &message, const QString &informativeText)
{
    acknowledge(QMessageBox::Warning, message, informativeText);
}

void WidgetAlerts::inform(const QString &message, const QString &informativeText)
{
    acknowledge(QMessageBox::Information, message, informativeText);
}

int WidgetAlerts::ask(const Question &question)
{
    QMessageBox box(QApplication::activeWindow());
    prepare(box, QMessageBox::Warning, question.message, question.informativeText);
    QList<QPushButton *> buttons;
    for (const Answer &answer : question.answers) {
        // Buttons of one role stand in the order in which they were added, on every desktop.
        QPushButton *button = box.addButton(answer.label, QMessageBox::ActionRole);
        const QKeySequence key(answer.shortcut, QKeySequence::PortableText);
        if (!key.isEmpty()) {
            button->setShortcut(key);
            button->setToolTip(key.toString(QKeySequence::NativeText));
        }
        buttons += button;
    }
    box.setDefaultButton(buttons.value(0));
    box.setEscapeButton(buttons.value(question.escapeAnswer));
    box.exec();
    const auto *clicked = qobject_cast<QPushButton *>(box.clickedButton());
    const auto index = static_cast<int>(buttons.indexOf(const_cast<QPushButton *>(clicked)));
    return index >= 0 ? index : question.escapeAnswer;
}

} // namespace tessaly
