// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Toasts.h"

#include <memory>

namespace tessaly {

/// Notices as small windows of their own at the bottom of the screen, which take neither the focus nor, without a link,
/// the mouse. There must be a QApplication.
class WidgetToasts final : public Toasts {
public:
    WidgetToasts();
    ~WidgetToasts() override;

    void show(const QString &message, std::chrono::milliseconds duration) override;
    void showLink(const QString &message, const QString &host, std::function<void()> onOpen) override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
