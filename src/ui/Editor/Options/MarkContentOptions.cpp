// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/MarkContentOptions.h"

#include "ui/Editor/Options/OptionControls.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include <numbers>

namespace tessaly {

namespace {

bool isSelectedStamp(const OptionSubject &subject)
{
    return subject.topic == OptionSubject::Topic::Marks && subject.isSelection && subject.kind == AnnotationKind::Stamp;
}

} // namespace

bool hasDisc(const Annotation &stamp) { return stamp.disc.value_or(stamp.stamp == StampKind::Number); }

MarkContentOptions::MarkContentOptions(AnnotationStore &store, QObject *parent) : QObject(parent), m_store(store) { }

OptionItem MarkContentOptions::caption()
{
    auto *field = new QLineEdit;
    field->setObjectName(QStringLiteral("stampLabel"));
    field->setPlaceholderText(QCoreApplication::translate("Options", "Label"));
    field->setToolTip(QCoreApplication::translate("Options", "A caption beside the stamp"));
    field->setAccessibleName(QCoreApplication::translate("Options", "Label"));
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 16);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textEdited, this, [this](const QString &text) {
        m_store.updateSelection(m_adjustment.next(), [&](Annotation &mark) { mark.stampLabel = text; });
    });
    connect(field, &QLineEdit::returnPressed, this, &MarkContentOptions::finished);
    return { field, isSelectedStamp, [this, field](const OptionSubject &) {
                const Annotation *stamp = m_store.selected();
                if (stamp && field->text() != stamp->stampLabel)
                    field->setText(stamp->stampLabel);
            } };
}

OptionItem MarkContentOptions::tail()
{
    auto *tail = OptionControls::toggle(QCoreApplication::translate("Options", "Tail"), QLatin1StringView("tail"),
        QCoreApplication::translate("Options", "A tail that points away from the stamp"));
    tail->setObjectName(QStringLiteral("stampTail"));
    connect(tail, &QToolButton::clicked, this, [this](bool on) {
        m_store.updateSelection(Undo::Record,
            [on](Annotation &mark) { mark.tailAngle = on ? std::optional(std::numbers::pi * 3 / 4) : std::nullopt; });
    });
    return { tail, isSelectedStamp, [this, tail](const OptionSubject &) {
                if (const Annotation *stamp = m_store.selected())
                    tail->setChecked(stamp->tailAngle.has_value());
            } };
}

OptionItem MarkContentOptions::disc()
{
    auto *disc = OptionControls::toggle(QCoreApplication::translate("Options", "Disc"), QLatin1StringView("disc"),
        QCoreApplication::translate("Options", "A disc behind the sign"));
    disc->setObjectName(QStringLiteral("stampDisc"));
    connect(disc, &QToolButton::clicked, this,
        [this](bool on) { m_store.updateSelection(Undo::Record, [on](Annotation &mark) { mark.disc = on; }); });
    return { disc, isSelectedStamp, [this, disc](const OptionSubject &) {
                if (const Annotation *stamp = m_store.selected())
                    disc->setChecked(hasDisc(*stamp));
            } };
}

OptionItem MarkContentOptions::chooseImage()
{
    auto *choose = OptionControls::button(QCoreApplication::translate("Options", "Choose Image…"), {},
        QCoreApplication::translate("Options", "Choose a picture to put onto the screenshot"));
    choose->setObjectName(QStringLiteral("chooseImage"));
    connect(choose, &QToolButton::clicked, this, &MarkContentOptions::imageRequested);
    return { choose,
        [](const OptionSubject &subject) {
            return subject.topic == OptionSubject::Topic::Marks && subject.kind == AnnotationKind::ImageOverlay;
        },
        [](const OptionSubject &) {} };
}

QList<OptionItem> MarkContentOptions::makeItems() { return { disc(), tail(), caption(), chooseImage() }; }

bool MarkContentOptions::eventFilter(QObject *watched, QEvent *event)
{
    // All that is typed while the field has the focus is one undo step.
    if (event->type() == QEvent::FocusIn)
        m_adjustment.begin();
    else if (event->type() == QEvent::FocusOut)
        m_adjustment.end();
    return QObject::eventFilter(watched, event);
}

} // namespace tessaly
