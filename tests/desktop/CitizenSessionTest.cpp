// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/SampleDesktop.h"
#include "tests/desktop/TrayPanel.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace tessaly::test;

/// Tessaly among the programs of a desktop: its icon in the tray, its settings, what others ask it for, its end, and
/// how it comes back. In the order of one session.
class CitizenSessionTest : public QObject {
    Q_OBJECT

    enum class Gesture { None, Region, Window, Text };

    DesktopSession m_session { QStringLiteral("1280x900x24") };
    SampleDesktop m_desktop { m_session };
    TrayPanel m_panel;
    const QString m_overlay = QStringLiteral("Select what to capture");
    const QString m_hint = QStringLiteral("This desktop has no tray.");
    const QString m_canvas = QStringLiteral("Screenshot, ");
    const QString m_regionTitle = QStringLiteral("Untitled"), m_screenTitle = QStringLiteral("Display");

    bool shows(const QString &name) const { return m_session.tree().find(name).has_value(); }

    QByteArray setting(const char *key) const
    {
        return m_session.tessaly({ "settings", "get", QLatin1StringView(key) }).trimmed();
    }
    QByteArray settings() const { return m_session.tessaly({ "settings", "list", "--json" }); }

    static QString canvas(QSize size)
    {
        return QStringLiteral("Screenshot, %1 by %2 pixels").arg(size.width()).arg(size.height());
    }

    QDir saved() const { return QDir(m_session.path(QStringLiteral("saved"))); }
    QStringList savedNames() const { return saved().entryList(QDir::Files); }

    bool select(Gesture gesture) const
    {
        if (gesture == Gesture::None)
            return true;
        const bool there = shows(m_overlay);
        if (gesture == Gesture::Window)
            m_session.click(m_desktop.window().center());
        else
            m_session.drag(gesture == Gesture::Region ? SampleDesktop::regionWay() : SampleDesktop::textWay());
        return there && m_session.waitUntilGone(m_overlay);
    }

    /// Closes the one editor, whose window has this title.
    bool closeEditor(const QString &title) const
    {
        const bool there = m_session.tree().waitUntilActive(title);
        m_session.key(QStringLiteral("ctrl+w"));
        return there && m_session.waitUntilGone(m_canvas);
    }

    std::optional<SeenControl> box(const QString &name) const
    {
        return m_session.tree().find(name, QStringLiteral("check box"));
    }

    qsizetype markCount(const QString &document) const
    {
        const QByteArray info = m_session.tessaly({ "info", "--json", m_session.path(document) });
        return QJsonDocument::fromJson(info).object()[u"annotations"].toArray().size();
    }

    /// The title of the window over which the dialog lies that has the keyboard.
    QByteArray askedAbout() const
    {
        const QByteArray dialog = m_session.output("xdotool", { "getactivewindow" }).trimmed();
        const QByteArray owner = m_session.output("xprop", { "-id", dialog, "WM_TRANSIENT_FOR" });
        return m_session.output("xdotool", { "getwindowname", owner.split('#').last().trimmed() });
    }

    /// The place of the start window's content.
    QByteArray startWindowFrame() const
    {
        const QByteArray window
            = m_session.output("xdotool", { "search", "--onlyvisible", "--name", "^Tessaly$" }).trimmed();
        const QByteArray geometry = m_session.output("xdotool", { "getwindowgeometry", "--shell", window });
        return geometry.mid(geometry.indexOf("X="));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady() && m_desktop.isReady() && saved().mkpath("."));
        m_session.writeSettings(QJsonDocument(
            QJsonObject { { "defaultSaveFolder", saved().path() }, { "windowCaptureShadow", false },
                { "windowCaptureTransparentBackground",
                    false } }).toJson());
    }

    void startedBeforeThePanelItGetsItsIcon()
    {
        QVERIFY(m_session.start({}));
        QVERIFY(shows(m_hint));
        QVERIFY(m_panel.start());
        QTRY_COMPARE(m_panel.iconCount(), 1);
        QVERIFY(m_panel.iconSizes().contains(QSize(22, 22)));
        QVERIFY(m_session.waitUntilGone(m_hint));
        QVERIFY(m_panel.click({ "Quit Tessaly" }));
        QCOMPARE(m_session.waitForEnd(), 0);
        QTRY_COMPARE(m_panel.iconCount(), 0);
    }

    void startedAfterThePanelItIsNothingButItsIcon()
    {
        QVERIFY(m_session.start({}));
        QTRY_COMPARE(m_panel.iconCount(), 1);
        QVERIFY(m_session.ask({ "org.tessaly.Automation1.Stay" }) == "()\n");
        QVERIFY(!m_session.tree().shows(QStringLiteral("Tessaly")));
    }

    void thereIsNothingToOpenYet()
    {
        const QByteArray answer = m_session.ask({ "org.tessaly.Automation1.OpenLastCapture" });
        QVERIFY2(answer.contains("There are no captures in the history yet."), answer);
    }

    void itsMenuCaptures()
    {
        QVERIFY(m_panel.click({ "Capture Region" }));
        QVERIFY(select(Gesture::Region));
        QVERIFY(shows(canvas(SampleDesktop::region().size())));
        QVERIFY(closeEditor(m_regionTitle));
        QVERIFY(m_panel.click({ "Quick Capture", "Full Screen to File" }));
        QTRY_COMPARE(savedNames().size(), 1);
        QCOMPARE(DesktopSession::pixels(saved().filePath(savedNames().first())), m_desktop.screen());
    }

    void itsMenuSetsTheTimer()
    {
        for (const auto &[title, seconds] : { std::pair("10 seconds", "10"), std::pair("Off", "0") }) {
            QVERIFY(m_panel.click({ "Capture Timer", title }));
            QTRY_COMPARE(setting("captureDelay"), seconds);
        }
    }

    /// By the command, while the window is open.
    void aSettingChangedBesideShowsInTheWindow()
    {
        QVERIFY(m_panel.click({ "Settings…" }));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Settings")));
        m_session.key(QStringLiteral("ctrl+2"));
        for (const bool checked : { true, false }) {
            m_session.tessaly({ "settings", "set", "afterCaptureCopy", checked ? "true" : "false" });
            QTRY_VERIFY([&] {
                const auto shown = box(QStringLiteral("Copy to clipboard"));
                return shown && shown->checked == checked;
            }());
        }
    }

    void aSettingChangedInTheWindowHoldsAtOnce()
    {
        QVERIFY(m_session.click(QStringLiteral("Copy to clipboard"), QStringLiteral("check box")));
        QTRY_COMPARE(setting("afterCaptureCopy"), "true");
        m_session.key(QStringLiteral("Escape"));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("Copy to clipboard")));
        m_session.clearClipboard();
        QVERIFY(m_panel.click({ "Full Screen" }));
        QTRY_COMPARE(m_session.clipboardPicture().size(), m_desktop.screen().size());
        QVERIFY(closeEditor(m_regionTitle));
    }

    void othersAskForCaptures_data()
    {
        columns<QStringList, Gesture, QRect>("call", "gesture", "taken");
        row("region", QStringList { "CaptureRegion", "" }, Gesture::Region, SampleDesktop::region());
        row("window", QStringList { "CaptureWindow", "clipboard" }, Gesture::Window, m_desktop.window());
        row("screen", QStringList { "CaptureFullScreen", "file" }, Gesture::None, m_desktop.screen().rect());
        row("text", QStringList { "CopyTextFromRegion" }, Gesture::Text, QRect());
        row("last", QStringList { "OpenLastCapture" }, Gesture::None, m_desktop.screen().rect());
    }

    void othersAskForCaptures()
    {
        QFETCH(QStringList, call);
        QFETCH(Gesture, gesture);
        QFETCH(QRect, taken);
        const QString operation = call.takeFirst(), destination = call.value(0);
        const QStringList before = savedNames();
        m_session.clearClipboard();
        QCOMPARE(m_session.ask(QStringList(QStringLiteral("org.tessaly.Automation1.") + operation) + call), "()\n");
        QVERIFY(select(gesture));
        if (destination == u"clipboard") {
            QTRY_COMPARE(m_session.clipboardPicture().size(), taken.size());
        } else if (destination == u"file") {
            QTRY_COMPARE(savedNames().size(), before.size() + 1);
        } else if (gesture == Gesture::Text) {
            QTRY_COMPARE(m_session.clipboardText().trimmed(), SampleDesktop::words());
        } else {
            QVERIFY(shows(canvas(taken.size())));
            QVERIFY(closeEditor(gesture == Gesture::None ? m_screenTitle : m_regionTitle));
        }
    }

    void quitsAsTheQuestionsAreAnswered()
    {
        const QString question = QStringLiteral("Do you want to save your annotations?");
        const QStringList names { "first.tessaly", "second.tessaly" };
        for (const QString &name : names)
            m_session.tessaly({ "document", m_session.path(QStringLiteral("small.png")), "-o", m_session.path(name) });
        for (const QString &name : names) {
            QCOMPARE(DesktopSession::finish(*m_session.command({ m_session.path(name) })), 0);
            QVERIFY(m_session.tree().waitUntilActive(name));
            drawOn(name);
        }
        const std::pair<QStringList, bool> attempts[] {
            { { "Cancel" }, false }, // the second is not asked about
            { { "Don't Save", "Cancel" }, false },
            { { "Save…", "Don't Save" }, true },
        };
        for (const auto &[answers, ends] : attempts) {
            m_session.key(QStringLiteral("ctrl+q"));
            for (qsizetype i = 0; i < answers.size(); ++i) {
                QVERIFY(shows(question));
                QTRY_VERIFY(askedAbout().startsWith(names[i].toUtf8())); // in the order in which they were opened
                QVERIFY(m_session.click(answers[i], QStringLiteral("push button")));
            }
            if (ends)
                break;
            QVERIFY(m_session.waitUntilGone(question));
            QCOMPARE(m_session.ask({ "org.tessaly.Automation1.Stay" }), "()\n"); // it goes on, and asks nothing
            QVERIFY(!m_session.tree().shows(question));
            for (const QString &name : names)
                QVERIFY(shows(name + u'*'));
            QVERIFY(m_session.tree().waitUntilActive(names[answers.size() - 1]));
        }
        QCOMPARE(m_session.waitForEnd(), 0);
        QCOMPARE(markCount(names[0]), 1);
        QCOMPARE(markCount(names[1]), 0);
    }

    void comesBackAsItWas()
    {
        const QByteArray captures = m_session.tessaly({ "history", "list" });
        QVERIFY(!captures.isEmpty());
        for (const auto &[key, value] : { std::pair("showInDock", "true"), std::pair("defaultColor", "#00AA55") })
            m_session.tessaly({ "settings", "set", QLatin1StringView(key), QLatin1StringView(value) });
        QVERIFY(m_session.start({}));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Tessaly")));
        m_session.output("xdotool",
            { "search", "--onlyvisible", "--name", "^Tessaly$", "windowsize", "--sync", "701", "503", "windowmove",
                "--sync", "333", "222" });
        const QByteArray frame = startWindowFrame();
        QVERIFY2(frame.contains("WIDTH=701\nHEIGHT=503"), frame);
        m_session.key(QStringLiteral("ctrl+q"));
        QCOMPARE(m_session.waitForEnd(), 0);
        const QByteArray before = settings();

        QVERIFY(m_session.start({}));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Tessaly")));
        QTRY_COMPARE(startWindowFrame(), frame);
        QVERIFY(shows(m_screenTitle)); // the tile of a capture
        QCOMPARE(m_session.tessaly({ "history", "list" }), captures);
        QCOMPARE(settings(), before);
        QCOMPARE(m_session.stop(), 0);
    }

private:
    void drawOn(const QString &name) const
    {
        const auto canvas = m_session.tree().find(m_canvas);
        QVERIFY(canvas);
        m_session.key(QStringLiteral("r"));
        m_session.drag({ canvas->rect.center() - QPoint(40, 30), canvas->rect.center() + QPoint(40, 30) });
        QVERIFY(shows(name + u'*'));
    }
};

QTEST_GUILESS_MAIN(CitizenSessionTest)
#include "CitizenSessionTest.moc"
