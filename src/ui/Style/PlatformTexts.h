// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTranslator>

#include <span>

namespace tessaly {

/// The texts of the program that name things of another platform, and what stands for them on this desktop. Install it
/// with QCoreApplication::installTranslator() before the first window is made; it applies in every context.
class PlatformTexts : public QTranslator {
    Q_OBJECT

public:
    struct Row {
        const char *source; ///< as it stands in the code, UTF-8
        const char *shown; ///< as it is true on a Linux desktop, UTF-8
    };
    static std::span<const Row> rows();

    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *disambiguation, int number) const override;
    bool isEmpty() const override { return false; }
};

} // namespace tessaly
