// SPDX-License-Identifier: GPL-3.0-or-later
// Carries a shared precompiled header; there is nothing to compile beside it.
