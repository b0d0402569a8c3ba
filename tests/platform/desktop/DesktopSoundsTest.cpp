// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/DesktopSounds.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;
using namespace std::chrono_literals;

/// Against a library that writes down what is played, and whose sound server may hang.
class DesktopSoundsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QByteArrayList record() const
    {
        QFile file(m_folder.filePath("record"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().split('\n') : QByteArrayList();
    }

    void startServer() const
    {
        QFile server(m_folder.filePath("server"));
        QVERIFY(server.open(QIODevice::WriteOnly));
    }

    bool isLoaded() const
    {
        QFile maps("/proc/self/maps");
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(TESSALY_RECORDING_CANBERRA);
    }

private Q_SLOTS:
    void init()
    {
        QFile::remove(m_folder.filePath("record"));
        QFile::remove(m_folder.filePath("server"));
        qputenv("CANBERRA_RECORD", m_folder.filePath("record").toLocal8Bit());
        qputenv("CANBERRA_SERVER", m_folder.filePath("server").toLocal8Bit());
    }

    void eachSoundIsItsEvent()
    {
        startServer();
        DesktopSounds sounds(TESSALY_RECORDING_CANBERRA);
        QVERIFY(!isLoaded());
        sounds.playScreenCapture();
        sounds.beep();
        QTRY_COMPARE(record(), (QByteArrayList { "create", "screen-capture", "bell" }));
    }

    void aServerThatHangsKeepsNobodyWaiting()
    {
        DesktopSounds sounds(TESSALY_RECORDING_CANBERRA);
        sounds.playScreenCapture(); // would never return
        QVERIFY(record().isEmpty());
        startServer();
        QTRY_COMPARE(record(), (QByteArrayList { "create", "screen-capture" }));
    }

    void whatIsIdleIsGivenBack()
    {
        startServer();
        DesktopSounds sounds(TESSALY_RECORDING_CANBERRA, 50ms);
        const QByteArrayList once { "create", "bell", "destroy" };
        sounds.beep();
        QTRY_COMPARE(record(), once);
        QTRY_VERIFY(!isLoaded());
        sounds.beep();
        QTRY_COMPARE(record(), once + once);
    }

    void withoutALibraryItIsSilent()
    {
        DesktopSounds sounds("libno-such-sounds.so.0");
        sounds.playScreenCapture();
        sounds.beep();
    }
};

QTEST_GUILESS_MAIN(DesktopSoundsTest)
#include "DesktopSoundsTest.moc"
