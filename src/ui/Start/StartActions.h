// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"

#include <QBoxLayout>
#include <QPushButton>

#include <functional>

namespace tessaly {

/// One big button of the start window.
struct StartAction {
    QString title;
    QLatin1StringView systemImage; ///< an icon's name
    bool prominent = false; ///< drawn as the primary action
    QString toolTip;
    std::function<void()> action;
    int group = 0; ///< those of one group stand together
};

/// A large button with its icon beside its title.
class StartButton : public QPushButton {
    Q_OBJECT

public:
    explicit StartButton(const StartAction &action, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon m_icon;
    bool m_isProminent;
};

/// What a capture can be started with, in one row where that fits, else group below group.
class StartActions : public QWidget {
    Q_OBJECT

public:
    struct Requests {
        std::function<void()> openFile;
        std::function<void()> paste;
        CommandTarget *program = nullptr; ///< outlives this; without it nothing can be captured
    };
    explicit StartActions(Requests requests, QWidget *parent = nullptr);

    /// "Paste" can be used only then.
    void setClipboardHasImage(bool has);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    static QList<StartAction> actionsFor(Requests requests);
    int rowWidth(int gapBetweenGroups) const;

    QBoxLayout *m_groupsLayout;
    QList<QBoxLayout *> m_groups;
    StartButton *m_paste = nullptr;
};

} // namespace tessaly
