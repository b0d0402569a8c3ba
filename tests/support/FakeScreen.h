// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"

#include <QHash>

namespace tessaly::test {

/// Monitors that show what the test painted.
class FakeScreen final : public ScreenSource {
public:
    QList<Display> monitors;
    QHash<quint32, QImage> pictures; ///< what each shows, by the display's id
    std::optional<Failure> failure; ///< of the next captures
    bool immediate = true;
    QList<Shot> shots;
    int settled = 0, prepared = 0, released = 0;
    std::optional<QString> way; ///< wayOut()
    bool defers = false; ///< answers wait in `waiting`
    QList<std::function<void()>> waiting;
    std::function<void(const QString &)> note = [](const QString &) {}; ///< told of every shot and settling

    void add(const QString &name, const QRect &layoutRect, double scale, const QImage &picture)
    {
        monitors += Display { name, layoutRect, picture.size(), scale, monitors.isEmpty() };
        pictures.insert(monitors.last().id(), picture);
    }

    Result<QList<Display>> displays() override { return monitors; }
    void capture(const Shot &shot, Answer answer) override
    {
        shots += shot;
        note(QStringLiteral("shot ") + shot.display.name);
        const auto give = [this, shot, answer] {
            if (failure)
                return answer(*failure);
            answer(RasterImage::fromPixels(pictures.value(shot.display.id()).copy(shot.pixelRect), shot.display.scale));
        };
        if (defers)
            waiting += give;
        else
            give();
    }
    bool canLeaveOutDesktopIcons() const override { return true; }
    bool isImmediate() const override { return immediate; }
    void whenSettled(std::function<void()> then) override
    {
        ++settled;
        note(QStringLiteral("settle"));
        then();
    }
    std::optional<QString> wayOut() const override { return way; }
    void prepare() override { ++prepared; }
    void release() override { ++released; }
};

/// Windows that the test says are there.
class FakeWindows final : public WindowSource {
public:
    QList<ScreenWindow> list;
    std::optional<Application> front;
    bool listable = true;
    QList<ScreenWindow> captured;
    int stillShown = 0; ///< so many times showsAny() says yes
    std::optional<Failure> failure; ///< of the next captures
    Look look; ///< of the last one
    int prepared = 0, released = 0;
    std::function<void(const QString &)> note = [](const QString &) {}; ///< told of every capture

    bool canList() const override { return listable; }
    Result<QList<ScreenWindow>> windows() override { return list; }
    std::optional<Application> frontApplication() override { return front; }
    void prepare(const QList<ScreenWindow> &) override { ++prepared; }
    void release() override { ++released; }
    void capture(const ScreenWindow &window, Look asked, ScreenSource::Answer answer) override
    {
        captured += window;
        look = asked;
        note(QStringLiteral("window ") + window.title);
        if (failure)
            return answer(*failure);
        QImage image(window.layoutRect.size().toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::green);
        answer(RasterImage::fromPixels(image));
    }
    bool showsAny(const QList<quint64> &) override { return stillShown-- > 0; }
};

} // namespace tessaly::test
