// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QMargins>
#include <QWidget>

class QVBoxLayout;

namespace tessaly {

/// A text in the colour of what explains; it wraps.
class QuietLabel : public QLabel {
    Q_OBJECT

public:
    explicit QuietLabel(const QString &text, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void dress();
};

/// Rows that belong together, in a box with lines between them.
class PreferenceCard : public QWidget {
    Q_OBJECT

public:
    explicit PreferenceCard(QWidget *parent = nullptr);

    void addRow(QWidget *row);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVBoxLayout *m_rows;
};

/// How a row is laid out; each takes the widgets over.
namespace PreferenceLayout {

/// Around what a tab shows.
inline constexpr QMargins pageMargins { 24, 16, 24, 24 };

/// A tick box with its note below its text. The note may be null.
QWidget *checkRow(QWidget *box, QuietLabel *note);

/// A label on the left and what it names on the right, with the note below both. A control that takes the focus gets
/// its accessible name from the label, and is reached through it.
QWidget *controlRow(const QString &label, QWidget *control, QuietLabel *note);

} // namespace PreferenceLayout

} // namespace tessaly
