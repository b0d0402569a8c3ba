// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionOverlay.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace tessaly {

class Clipboard;
class Settings;
class WindowLayers;

/// The selection on every monitor: one kept window each, made ahead of time. There must be a QApplication.
class OverlayController final : public QObject, public SelectionOverlay {
    Q_OBJECT

public:
    struct Surroundings {
        WindowLayers &layers;
        WindowPicker &picker;
        const Settings &settings;
        Clipboard &clipboard;
        std::chrono::milliseconds rest { 60'000 }; ///< without an opening, then release() happens by itself
    };
    explicit OverlayController(const Surroundings &surroundings);
    ~OverlayController() override;

    bool showsLiveScreen() const override;
    void prepare(OverlayUse use) override;
    void release() override;
    /// Ends cancelled at once when none of the displays is a screen of Qt's, and when one of them goes away later.
    int begin(Opening opening, Completion completion) override;
    void setSnapshots(DisplaySnapshots snapshots, int session) override;
    void setMode(OverlayMode mode) override;
    bool isOpen() const override;
    void cancel() override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
