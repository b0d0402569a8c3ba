// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"

namespace tessaly {

/// Stands where a desktop gives no pixels: says why to whoever asks.
class MissingScreenSource final : public ScreenSource {
public:
    explicit MissingScreenSource(Failure failure) : m_failure(std::move(failure)) { }

    Result<QList<Display>> displays() override { return m_failure; }
    void capture(const Shot &, Answer answer) override { answer(m_failure); }
    std::optional<QString> wayOut() const override;
    void whenSettled(std::function<void()> then) override { then(); }

private:
    Failure m_failure;
};

/// Stands where a desktop does not tell of its windows.
class MissingWindowSource final : public WindowSource {
public:
    bool canList() const override { return false; }
    Result<QList<ScreenWindow>> windows() override { return failure(); }
    std::optional<Application> frontApplication() override { return {}; }
    void prepare(const QList<ScreenWindow> &) override { }
    void release() override { }
    void capture(const ScreenWindow &, Look, ScreenSource::Answer answer) override { answer(failure()); }
    bool showsAny(const QList<quint64> &) override { return false; }

private:
    static Failure failure();
};

} // namespace tessaly
