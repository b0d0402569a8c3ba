// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/SavedStyles.h"
#include "core/Frame/FrameSettings.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "ui/Editor/Options/OptionsBar.h"

#include <QSlider>
#include <QTemporaryDir>

namespace tessaly::test {

/// The bar with a capture of 400 × 300 pixels.
struct OptionsFixture {
    QTemporaryDir folder;
    Settings settings { QString() };
    SavedStyles styles { settings };
    FrameSettings frameSettings { settings, folder.path() };
    FakeAlerts alerts;
    AnnotationStore store { RasterImage::fromPixels(QImage(400, 300, QImage::Format_RGB32)), settings };
    OptionsBar bar { store, { settings, styles, frameSettings, alerts } };

    template <class Widget = QWidget>
    Widget &control(const char *name)
    {
        auto *widget = bar.findChild<Widget *>(QLatin1StringView(name));
        Q_ASSERT(widget);
        return *widget;
    }
    QSlider &slider(const char *name) { return *control(name).findChild<QSlider *>(); }
};

} // namespace tessaly::test
