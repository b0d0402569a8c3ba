// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QFrame;
class QToolButton;
class QVBoxLayout;

namespace tessaly {

/// Controls side by side. Those for which there is no room move, in order, into a panel that a button at the end opens,
/// so that a narrow window or a large font clips none.
class OverflowRow : public QWidget {
    Q_OBJECT

public:
    explicit OverflowRow(QWidget *parent = nullptr);

    /// Takes the control over; it is not shown before setShown().
    void add(QWidget *control);
    /// The controls to show, in the order of add().
    void setShown(const QList<QWidget *> &controls);
    const QList<QWidget *> &shown() const { return m_shown; }
    bool isInPanel(const QWidget *control) const;
    QToolButton &moreButton() { return *m_more; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool event(QEvent *event) override;

private:
    int fitting() const;
    void arrange();
    void placeInline(qsizetype count);
    void placeInPanel(qsizetype first);
    void openPanel();

    QList<QWidget *> m_controls;
    QList<QWidget *> m_shown;
    QToolButton *m_more;
    QFrame *m_panel;
    QVBoxLayout *m_panelLayout;
    bool m_arranging = false;
};

} // namespace tessaly
