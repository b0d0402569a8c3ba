// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferencesWindow.h"

#include "ui/Preferences/PreferenceCard.h"
#include "ui/Preferences/ShortcutsTab.h"
#include "ui/Style/WindowFrame.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace tessaly {

namespace {

/// In letters and lines of the font, so that larger fonts get a larger window.
constexpr int widthInLetters = 84, heightInLines = 40;

QList<QRect> availableScreens()
{
    QList<QRect> areas;
    for (const QScreen *screen : QGuiApplication::screens())
        areas += screen->availableGeometry();
    return areas;
}

int indexOf(const QString &name)
{
    const auto tabs = preferenceTabs();
    const auto tab
        = std::ranges::find_if(tabs, [&](const PreferenceTab &each) { return name == QLatin1StringView(each.name); });
    return tab == tabs.end() ? 0 : static_cast<int>(tab - tabs.begin());
}

} // namespace

PreferencesWindow::PreferencesWindow(const PreferencesContext &context) :
    m_with(context),
    m_tabs(new QTabBar),
    m_pages(new QStackedWidget)
{
    setObjectName(QStringLiteral("settingsWindow"));
    setWindowTitle(tr("Settings"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(8);
    auto *bar = new QHBoxLayout;
    bar->setContentsMargins(24, 0, 24, 0);
    bar->addStretch(1);
    bar->addWidget(m_tabs);
    bar->addStretch(1);
    layout->addLayout(bar);
    layout->addWidget(m_pages, 1);
    addTabs();
    addTabKeys();
    m_with.binding.follow(
        *this, SettingKeys::settingsTab, [this](const QString &name) { m_tabs->setCurrentIndex(indexOf(name)); });
    showPage(m_tabs->currentIndex());
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) {
        showPage(index);
        m_with.binding.report(m_with.binding.settings().set(
            SettingKeys::settingsTab, QLatin1StringView(preferenceTabs()[size_t(index)].name)));
    });
    place();
}

void PreferencesWindow::addTabs()
{
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_tabs->setAccessibleName(tr("Settings"));
    for (const PreferenceTab &tab : preferenceTabs()) {
        m_tabs->addTab(preferenceText(tab.title));
        auto *area = new QScrollArea;
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area->setFocusPolicy(Qt::NoFocus);
        m_pages->addWidget(area);
    }
}

void PreferencesWindow::addTabKeys()
{
    for (int index = 0; index < m_tabs->count(); ++index) {
        const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index));
        auto *shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, this, [this, index] { m_tabs->setCurrentIndex(index); });
        m_tabs->setTabToolTip(
            index, tr("%1 (%2)").arg(m_tabs->tabText(index), keys.toString(QKeySequence::NativeText)));
    }
}

QWidget *PreferencesWindow::makePage(int index)
{
    const PreferenceTab &tab = preferenceTabs()[size_t(index)];
    if (!tab.groups.empty())
        return new PreferencesPage(tab.groups, m_with);
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(PreferenceLayout::pageMargins);
    auto *card = new PreferenceCard;
    card->addRow(new ShortcutsTab(m_with.binding.settings(), m_with.services.hotkeys));
    layout->addWidget(card);
    layout->addStretch(1);
    return page;
}

void PreferencesWindow::showPage(int index)
{
    auto &area = static_cast<QScrollArea &>(*m_pages->widget(index));
    if (!area.widget()) {
        area.setWidget(makePage(index));
        area.widget()->setAutoFillBackground(false);
        area.viewport()->setAutoFillBackground(false);
        area.setMinimumWidth(area.widget()->minimumSizeHint().width() + area.verticalScrollBar()->sizeHint().width());
    }
    m_pages->setCurrentIndex(index);
}

void PreferencesWindow::place()
{
    const auto stored = m_with.binding.settings().value(SettingKeys::settingsWindowFrame);
    const auto frame = stored ? WindowFrame::fromJson(*stored) : std::nullopt;
    if (frame && frame->isReachable(availableScreens())) {
        setGeometry(frame->rect());
        return;
    }
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QSize wanted(fontMetrics().averageCharWidth() * widthInLetters, fontMetrics().height() * heightInLines);
    QRect rect({}, wanted.boundedTo(screen.size() * 9 / 10).expandedTo(minimumSizeHint()));
    rect.moveCenter(screen.center());
    setGeometry(rect);
}

void PreferencesWindow::closeEvent(QCloseEvent *event)
{
    // Where it cannot be written the window opens elsewhere next time, which nobody needs to be told.
    if (isVisible())
        static_cast<void>(m_with.binding.settings().set(
            SettingKeys::settingsWindowFrame, WindowFrame::of(geometry(), false).toJson()));
    event->accept();
    Q_EMIT closed();
}

void PreferencesWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace tessaly
