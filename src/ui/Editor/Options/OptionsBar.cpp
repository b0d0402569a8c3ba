// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/OptionsBar.h"

#include "ui/Editor/Dialogs/NamePrompt.h"
#include "ui/Editor/Options/CropOptions.h"
#include "ui/Editor/Options/FrameOptions.h"
#include "ui/Editor/Options/MarkContentOptions.h"
#include "ui/Editor/Options/MarkStyleOptions.h"
#include "ui/Editor/Options/OverflowRow.h"
#include "ui/Editor/Options/StyleMenu.h"
#include "ui/Editor/Options/WatermarkOptions.h"
#include "ui/Style/Appearance.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace tessaly {

OptionsBar::OptionsBar(AnnotationStore &store, const Services &services, QWidget *parent) :
    QWidget(parent),
    m_store(store),
    m_row(new OverflowRow),
    m_hint(new QLabel(tr("Choose a tool, or select a mark to change its style."))),
    m_styleMenu(new StyleMenu(
        store, services.styles,
        [this](const QString &title, const QString &button, const QString &proposal) {
            return NamePrompt::ask(title, button, proposal, this);
        },
        this))
{
    setAccessibleName(tr("Options"));
    setMinimumHeight(standardHeight);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 5);
    layout->setSpacing(0);
    m_hint->setContentsMargins(12, 0, 12, 0);
    m_hint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_row, 1);
    makeItems(services);
    connect(m_styleMenu, &StyleMenu::failed, this, &OptionsBar::message);
    connect(&store, &AnnotationStore::changed, this, &OptionsBar::refresh);
    refresh();
}

OptionsBar::~OptionsBar() = default;

void OptionsBar::makeItems(const Services &services)
{
    auto *style = new MarkStyleOptions(m_store, this);
    auto *content = new MarkContentOptions(m_store, this);
    auto *crop = new CropOptions(m_store, this);
    auto *frame = new FrameOptions(m_store, services.frameSettings, services.settings, this);
    auto *watermark = new WatermarkOptions(m_store, services.frameSettings, services.alerts, this);
    add(style->makeItems());
    add(content->makeItems());
    add({ m_styleMenu->makeItem() });
    add(crop->makeItems());
    QList<OptionItem> presentation = frame->makeItems();
    presentation.insert(presentation.size() - 1, watermark->makeItem()); // "Apply to new captures" is about both
    add(presentation);
    connect(content, &MarkContentOptions::imageRequested, this, &OptionsBar::imageRequested);
    connect(content, &MarkContentOptions::finished, this, &OptionsBar::finished);
    connect(crop, &CropOptions::applyRequested, this, &OptionsBar::cropApplyRequested);
    connect(crop, &CropOptions::cancelRequested, this, &OptionsBar::cropCancelRequested);
    connect(frame, &FrameOptions::failed, this, &OptionsBar::message);
    connect(watermark, &WatermarkOptions::failed, this, &OptionsBar::message);
}

void OptionsBar::add(const QList<OptionItem> &items)
{
    for (const OptionItem &item : items) {
        m_items += item;
        m_row->add(item.widget);
    }
}

void OptionsBar::refresh()
{
    // A control that loses the focus here may end an adjustment, which changes the store.
    if (m_refreshing)
        return;
    m_refreshing = true;
    const OptionSubject subject = optionSubject(m_store);
    QList<QWidget *> shown;
    for (const OptionItem &item : std::as_const(m_items)) {
        if (!item.applies(subject))
            continue;
        item.refresh(subject);
        shown += item.widget;
    }
    m_row->setShown(shown);
    m_row->setVisible(!shown.isEmpty());
    m_hint->setVisible(shown.isEmpty());
    m_refreshing = false;
}

void OptionsBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), Colors::separator());
}

} // namespace tessaly
