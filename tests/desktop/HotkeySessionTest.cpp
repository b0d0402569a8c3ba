// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/SampleDesktop.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QColorSpace>

using namespace tessaly::test;

/// The keys that are heard wherever one works, while Tessaly shows no window; and how they become others.
class HotkeySessionTest : public QObject {
    Q_OBJECT

    enum class Gesture { None, Drag, Click };

    DesktopSession m_session { QStringLiteral("1280x900x24") };
    SampleDesktop m_desktop { m_session };
    const QString m_overlay = QStringLiteral("Select what to capture");

    bool shows(const QString &name) const { return m_session.tree().find(name).has_value(); }

    /// What is on the clipboard once something is.
    QImage copiedPicture() const
    {
        QImage picture;
        static_cast<void>(
            QTest::qWaitFor([&] { return !(picture = m_session.clipboardPicture()).isNull(); }, patience));
        picture = picture.convertToFormat(QImage::Format_RGB32);
        picture.setColorSpace({});
        return picture;
    }

    /// The keys of the region's hot key select, and selecting is given up again.
    bool selectsBy(const QString &keys) const
    {
        m_session.key(keys);
        const bool selects = shows(m_overlay);
        m_session.key(QStringLiteral("Escape"));
        return selects && m_session.waitUntilGone(m_overlay);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady() && m_desktop.isReady());
        QVERIFY(m_session.startResident(R"({"afterCaptureShow":false,"afterCaptureCopy":true,
            "windowCaptureShadow":false,"windowCaptureTransparentBackground":false})"));
    }

    void eachRunsItsAction_data()
    {
        columns<QString, Gesture, QRect>("keys", "gesture", "taken");
        row("region", QStringLiteral("ctrl+alt+4"), Gesture::Drag, SampleDesktop::region());
        row("last region", QStringLiteral("ctrl+alt+shift+4"), Gesture::None, SampleDesktop::region());
        row("window", QStringLiteral("ctrl+alt+5"), Gesture::Click, m_desktop.window());
        row("front window", QStringLiteral("ctrl+alt+shift+5"), Gesture::None, m_desktop.window());
        row("full screen", QStringLiteral("ctrl+alt+3"), Gesture::None, m_desktop.screen().rect());
    }

    void eachRunsItsAction()
    {
        QFETCH(QString, keys);
        QFETCH(Gesture, gesture);
        QFETCH(QRect, taken);
        m_session.clearClipboard();
        m_session.key(keys);
        QVERIFY(gesture == Gesture::None || shows(m_overlay));
        if (gesture == Gesture::Drag)
            m_session.drag(SampleDesktop::regionWay());
        if (gesture == Gesture::Click)
            m_session.click(taken.center());
        QCOMPARE(copiedPicture(), m_desktop.screen().copy(taken));
        QVERIFY(m_session.waitUntilGone(m_overlay));
    }

    void copiesTheTextOfARegion()
    {
        m_session.key(QStringLiteral("ctrl+alt+7"));
        QVERIFY(shows(m_overlay));
        m_session.drag(SampleDesktop::textWay());
        QTRY_COMPARE(m_session.clipboardText().trimmed(), SampleDesktop::words());
    }

    void anotherCombinationIsRecorded()
    {
        const QString region = QStringLiteral("Capture Region: ");
        QCOMPARE(DesktopSession::finish(*m_session.command({})), 0);
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Tessaly")));
        m_session.key(QStringLiteral("ctrl+comma"));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Settings")));
        m_session.key(QStringLiteral("ctrl+3"));
        const std::pair<const char *, const char *> attempts[] {
            { "Escape", "Ctrl+Alt+4" },
            { "ctrl+alt+5", "Already used by Capture Window" },
            { "ctrl+shift+6", "Ctrl+Shift+6" },
        };
        for (const auto &[keys, shown] : attempts) {
            QVERIFY(m_session.click(region));
            QVERIFY(shows(region + QStringLiteral("Press shortcut…")));
            m_session.key(QLatin1StringView(keys));
            QVERIFY(shows(region + QLatin1StringView(shown)));
        }
        // In these windows the menu's own keys would be heard.
        m_session.key(QStringLiteral("Escape"));
        QVERIFY(m_session.waitUntilGone(region));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Tessaly")));
        m_session.key(QStringLiteral("alt+F4"));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("Tessaly")));
    }

    void onlyTheNewCombinationIsHeard()
    {
        m_session.clearClipboard();
        m_session.key(QStringLiteral("ctrl+alt+4"));
        m_session.key(QStringLiteral("ctrl+alt+3")); // what the first would have begun is there by its end
        QCOMPARE(copiedPicture().size(), m_desktop.screen().size());
        QVERIFY(!m_session.tree().shows(m_overlay));
        QVERIFY(selectsBy(QStringLiteral("ctrl+shift+6")));
    }

    void itIsHeardAfterARestart()
    {
        QCOMPARE(m_session.stop(), 0);
        QVERIFY(m_session.startResident());
        QVERIFY(selectsBy(QStringLiteral("ctrl+shift+6")));
        QCOMPARE(m_session.tessaly({ "settings", "get", "captureHotKeyKeyLabel" }), "6\n");
    }

    /// Told by the command, without a window.
    void aResetCombinationIsHeardAtOnce()
    {
        for (const char *key : { "captureHotKeyKeyCode", "captureHotKeyModifiers", "captureHotKeyKeyLabel" })
            m_session.tessaly({ "settings", "reset", QLatin1StringView(key) });
        QTRY_VERIFY([this] { // the running program looks when it is told of the file
            m_session.key(QStringLiteral("ctrl+alt+4"));
            return QTest::qWaitFor([this] { return m_session.tree().shows(m_overlay); }, 500);
        }());
        m_session.key(QStringLiteral("Escape"));
        QVERIFY(m_session.waitUntilGone(m_overlay));
        QCOMPARE(m_session.stop(), 0);
    }
};

QTEST_GUILESS_MAIN(HotkeySessionTest)
#include "HotkeySessionTest.moc"
