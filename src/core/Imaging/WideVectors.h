// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Before a small free function with a hot loop: it is compiled once more for processors with AVX2, and the loader
/// picks. Both give the same bytes, for neither fuses a multiplication with an addition. Sanitizers take no part in
/// what the loader does, so their builds go without.
#if defined(__x86_64__) && defined(__gnu_linux__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)             \
    && !defined(__SANITIZE_THREAD__)
#define TESSALY_WIDE_VECTORS __attribute__((target_clones("avx2", "default")))
#else
#define TESSALY_WIDE_VECTORS
#endif
