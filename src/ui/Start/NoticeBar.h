// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QTimer>

#include <chrono>

class QLabel;
class QPushButton;

namespace tessaly {

/// A sentence at the foot of the window that goes by itself, with or without a way to take back what it tells.
class NoticeBar : public QFrame {
    Q_OBJECT

public:
    enum class Offers { Nothing, Undo };
    explicit NoticeBar(Offers offers, QWidget *parent = nullptr);

    /// Takes the place of the sentence that is shown. An empty one hides the bar.
    void tell(const QString &sentence, std::chrono::milliseconds duration);

Q_SIGNALS:
    void undoRequested();
    /// It went by itself.
    void expired();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_label;
    QPushButton *m_undo;
    QTimer m_timer { this };
};

} // namespace tessaly
