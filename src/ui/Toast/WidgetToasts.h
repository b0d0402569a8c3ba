// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Toasts.h"

#include <memory>

namespace tessaly {

class WindowLayers;

/// Notices as small windows of their own at the bottom of the screen, which take neither the focus nor, without a link,
/// the mouse. There must be a QApplication.
class WidgetToasts final : public Toasts {
public:
    WidgetToasts();
    ~WidgetToasts() override;

    /// From now on notices are placed through the layers: for window systems on which a window cannot place itself. It
    /// is kept, and must be there whenever a notice is shown.
    void setLayers(WindowLayers *layers);

    void show(const QString &message, std::chrono::milliseconds duration) override;
    void showLink(const QString &message, const QString &host, std::function<void()> onOpen) override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
