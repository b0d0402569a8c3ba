// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/desktop/DesktopSession.h"

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QStringList>

namespace tessaly::test {

/// What there is to capture on a screen of 1280 by 900 pixels: a background without two equal places, a window of
/// another program, and words to read.
class SampleDesktop {
public:
    explicit SampleDesktop(DesktopSession &session);
    ~SampleDesktop();

    bool isReady() const { return m_window.isValid() && !m_screen.isNull(); }

    /// As another program than Tessaly sees it.
    const QImage &screen() const { return m_screen; }
    QRect window() const { return m_window; }

    /// The ways of a mouse that select: a part of the background, with what is taken then, and the words.
    static QList<QPoint> regionWay() { return { { 101, 203 }, { 332, 404 } }; }
    static QRect region() { return { 101, 203, 231, 201 }; }
    static QList<QPoint> textWay() { return { { 660, 580 }, { 1220, 655 } }; }
    static QByteArray words() { return "Report of the harbour"; }

private:
    DesktopSession &m_session;
    QProcess m_shown;
    QImage m_screen;
    QRect m_window;
};

} // namespace tessaly::test
