// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

#include <chrono>

namespace tessaly {

/// A few words over the upper edge of a canvas, which come and go softly. The pointer passes through.
class LiveTextBadge : public QWidget {
    Q_OBJECT

public:
    explicit LiveTextBadge(QWidget &canvas);

    /// Until hideText(), or for `duration` where it is not zero. `icon` may be empty.
    void showText(const QString &text, const QString &icon, std::chrono::milliseconds duration = {});
    void hideText();
    const QString &text() const { return m_text; } ///< empty while it goes

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();
    void fadeTo(double opacity);

    QWidget &m_canvas;
    QString m_text, m_shownText, m_icon;
    QVariantAnimation m_fade;
    double m_opacity = 0;
    QTimer m_end;
};

} // namespace tessaly
