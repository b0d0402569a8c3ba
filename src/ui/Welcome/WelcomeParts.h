// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QLabel>
#include <QWidget>

namespace tessaly::WelcomeParts {

/// A text in bold, `factor` times as large as the others.
QLabel *headline(const QString &text, double factor);
/// A text that may take several lines.
QLabel *paragraph(const QString &text);
/// The same, less important.
QLabel *quietParagraph(const QString &text);
/// The program's icon; `side` in points.
QLabel *programIcon(int side);

/// The program's icon beside a title and a line below it.
QWidget *header(const QString &title, const QString &subtitle);

/// An icon on a round ground, a title and what is to be said about it; at the right of the title there is room for a
/// small widget. Both texts are read together.
QWidget *feature(const QIcon &icon, const QString &title, const QString &text, QWidget *beside = nullptr);

} // namespace tessaly::WelcomeParts
