// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace tessaly {

/// A button on a thumbnail: white, whatever picture lies below. It is always there for the keyboard and for assistive
/// technology, and seen while it is revealed or has the focus.
class QuickAccessButton final : public QPushButton {
    Q_OBJECT

public:
    enum class Shape {
        Words,
        Symbol, ///< the words are told in the tooltip only
    };
    QuickAccessButton(Shape shape, QLatin1StringView icon, const QString &words, QWidget *parent);

    void setRevealed(bool revealed);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap symbol() const;

    Shape m_shape;
    bool m_revealed = false;
};

} // namespace tessaly
