// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorTabs.h"

#include "ui/Editor/EditorView.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessaly {

EditorTabs::EditorTabs(QAction *newTab, QWidget *parent) :
    QWidget(parent),
    m_strip(new QWidget),
    m_bar(new QTabBar),
    m_stack(new QStackedWidget)
{
    m_bar->setDocumentMode(true);
    m_bar->setTabsClosable(true);
    m_bar->setMovable(true);
    m_bar->setExpanding(false);
    m_bar->setElideMode(Qt::ElideMiddle);
    m_bar->setUsesScrollButtons(true);
    m_bar->setDrawBase(false);
    m_bar->setAccessibleName(tr("Open captures"));
    auto *plus = new QToolButton;
    plus->setDefaultAction(newTab);
    plus->setAutoRaise(true);
    plus->setFocusPolicy(Qt::TabFocus);
    plus->setAccessibleName(tr("New Tab"));
    auto *row = new QHBoxLayout(m_strip);
    row->setContentsMargins(4, 0, 4, 0);
    row->setSpacing(4);
    row->addWidget(m_bar);
    row->addWidget(plus);
    row->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_strip);
    column->addWidget(m_stack, 1);
    m_strip->hide();
    connect(m_bar, &QTabBar::currentChanged, this, &EditorTabs::showCurrent);
    connect(m_bar, &QTabBar::tabCloseRequested, this, [this](int index) { Q_EMIT closeRequested(viewAt(index)); });
}

EditorView *EditorTabs::viewAt(int index) const
{
    return static_cast<EditorView *>(m_bar->tabData(index).value<QWidget *>());
}

int EditorTabs::indexOf(const EditorView *view) const
{
    for (int index = 0; index < m_bar->count(); ++index) {
        if (viewAt(index) == view)
            return index;
    }
    return -1;
}

void EditorTabs::add(EditorView *view, const QString &title)
{
    m_stack->addWidget(view);
    const int index = m_bar->addTab(QString());
    m_bar->setTabData(index, QVariant::fromValue<QWidget *>(view));
    setTitle(view, title);
    m_strip->setVisible(m_bar->count() > 1);
    m_bar->setCurrentIndex(index);
    showCurrent(); // the first tab became current before it had its data
}

void EditorTabs::remove(EditorView *view)
{
    m_stack->removeWidget(view);
    view->hide();
    m_bar->removeTab(indexOf(view));
    m_strip->setVisible(m_bar->count() > 1);
    delete view;
}

EditorView *EditorTabs::current() const { return m_bar->count() ? viewAt(m_bar->currentIndex()) : nullptr; }

QList<EditorView *> EditorTabs::views() const
{
    QList<EditorView *> all;
    for (int index = 0; index < m_bar->count(); ++index)
        all += viewAt(index);
    return all;
}

void EditorTabs::activate(EditorView *view)
{
    if (const int index = indexOf(view); index >= 0)
        m_bar->setCurrentIndex(index);
}

void EditorTabs::activateNext(int direction)
{
    if (m_bar->count())
        m_bar->setCurrentIndex((m_bar->currentIndex() + direction + m_bar->count()) % m_bar->count());
}

void EditorTabs::setTitle(EditorView *view, const QString &title)
{
    view->setProperty("title", title);
    showModified();
}

QString EditorTabs::title(const EditorView *view) const { return view->property("title").toString(); }

void EditorTabs::showModified()
{
    for (int index = 0; index < m_bar->count(); ++index) {
        EditorView *view = viewAt(index);
        if (!view)
            continue;
        const QString name = title(view);
        const QString plain = QString(name).replace(u'&', QStringLiteral("&&"));
        const QString text = view->store().hasUnsavedChanges() ? QStringLiteral("● ") + plain : plain;
        if (m_bar->tabText(index) != text)
            m_bar->setTabText(index, text);
        m_bar->setTabToolTip(index, view->store().hasUnsavedChanges() ? tr("%1 — not saved").arg(name) : name);
    }
}

void EditorTabs::showCurrent()
{
    EditorView *view = current();
    if (!view)
        return;
    m_stack->setCurrentWidget(view);
    Q_EMIT currentChanged();
}

} // namespace tessaly
