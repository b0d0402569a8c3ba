// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/WatchedFolder.h"
#include "core/Imaging/RasterImage.h"

#include <QDateTime>
#include <QObject>
#include <QSet>

#include <chrono>
#include <functional>

namespace tessaly {

class Clock;
class OpenPanels;
class Settings;

/// Opens what the desktop's own screenshot tool writes into its folder. One for the program; main thread only.
class SystemScreenshotWatcher : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        Settings &settings;
        OpenPanels &openPanels;
        const Clock &clock;
        std::chrono::milliseconds settling { 250 }; ///< between two looks at a file's size
    };
    explicit SystemScreenshotWatcher(const Surroundings &surroundings);

    /// Watches the chosen folder for files that are new from now on; nothing without one that can be watched.
    void start();
    void stop();
    bool isWatching() const { return !m_folder.path().isEmpty(); }

    /// Asks for a folder unless one is chosen, switches "watchSystemScreenshots" on and starts.
    void enableChoosingFolder();
    /// Lets the user choose; false when cancelled. What is watched goes on in the new folder.
    bool chooseFolder();
    /// Where a choice begins: the chosen folder, or the one that most desktops save screenshots in.
    QString suggestedFolder() const;

    /// The next new file of that name is skipped: this program is about to write it.
    void ignore(const QString &fileName) { m_ignoredNames.insert(fileName); }
    void stopIgnoring(const QString &fileName) { m_ignoredNames.remove(fileName); }
    /// The same for a file that may lie elsewhere; whether it will be ignored.
    bool ignorePath(const QString &path);

    /// Called for each new screenshot with its file's name.
    std::function<void(RasterImage image, QString title)> found = [](const RasterImage &, const QString &) {};

private:
    /// A file that may still be being written.
    struct Growing {
        QString name;
        qint64 size = -1; ///< at the last look
        int looks = 0;
    };

    QString chosenFolder() const;
    void scan();
    bool isAcceptable(const QString &name) const;
    void follow(const QString &name);
    void lookAt(Growing file);
    void open(const QString &name);

    Surroundings m_surroundings;
    WatchedFolder m_folder;
    QDateTime m_startedAt;
    int m_session = 0; ///< one for each start; what an earlier one has begun ends
    QSet<QString> m_knownFiles;
    QSet<QString> m_lookedAt; ///< with another look to come
    QSet<QString> m_ignoredNames;
};

} // namespace tessaly
