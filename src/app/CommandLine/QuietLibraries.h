// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdio>

namespace tessaly {

/// Keeps the remarks of Qt and of the libraries below it off standard error while it lives: a command says once, in its
/// own words, what is wrong with a file. With QT_LOGGING_RULES set they are all let through.
class QuietLibraries {
public:
    QuietLibraries();
    ~QuietLibraries();
    QuietLibraries(const QuietLibraries &) = delete;
    QuietLibraries &operator=(const QuietLibraries &) = delete;

private:
    std::FILE *m_before = nullptr;
};

} // namespace tessaly
