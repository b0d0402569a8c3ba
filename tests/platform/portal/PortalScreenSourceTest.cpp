// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalScreenSource.h"

#include "tests/platform/portal/FakePortal.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QUrl>

using namespace tessaly;
using namespace std::chrono_literals;
using test::FakePortal;

namespace {

using Turns = QList<FakePortal::Turn>;
constexpr QSize desktopSize(64, 40);
constexpr QRect rightRect(30, 0, 34, 40);

/// No two pixels alike.
QImage pattern()
{
    QImage image(desktopSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 4, y * 6, 17));
    }
    return image;
}

QList<tessaly::Display> twoMonitors()
{
    return { { "L", QRect(0, 0, 30, 40), QSize(30, 40), 1, true }, { "R", rightRect, rightRect.size(), 1, false } };
}

const QString deniedSentence = "The desktop does not allow Tessaly to take screenshots.";
const QString missingSentence = "This desktop has no portal that takes screenshots.";

} // namespace

/// Conversations with a portal that does everything a real one may do.
class PortalScreenSourceTest : public QObject {
    Q_OBJECT

    FakePortal m_portal;
    QTemporaryDir m_folder;

    QString path() const { return m_folder.filePath("a picture.png"); }
    QString uri() const { return QUrl::fromLocalFile(path()).toString(QUrl::FullyEncoded); }

    /// What comes of capturing, waited for in the event loop.
    static std::optional<Result<RasterImage>> captured(PortalScreenSource &source, const ScreenSource::Shot &shot)
    {
        std::optional<Result<RasterImage>> picture;
        source.capture(shot, [&](Result<RasterImage> answer) { picture = std::move(answer); });
        if (!QTest::qWaitFor([&] { return picture.has_value(); }, test::patience))
            qWarning("no answer");
        return picture;
    }

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
        PortalScreenSource source(CaptureUse::Repeated, twoMonitors);
        const auto picture = captured(source, { twoMonitors().first(), {} });
        QVERIFY(picture && !*picture);
        QCOMPARE(picture->failure().message, missingSentence); // no bus, and none is started
        QVERIFY(!m_portal.startBus().isEmpty());
    }

    void init()
    {
        m_portal.turns.clear();
        m_portal.interactive.clear();
        m_portal.withdrawn = 0;
        QVERIFY(m_portal.appear());
        QVERIFY(pattern().save(path()));
    }

    void cleanup() { m_portal.leave(); }
    void cleanupTestCase() { m_portal.stopBus(); }

    void aPictureIsTaken_data()
    {
        test::columns<Turns, QList<bool>>("turns", "interactive");
        const FakePortal::Turn granted { FakePortal::granted, uri() };
        FakePortal::Turn early = granted;
        early.early = true;
        const QList<bool> quiet { false }, both { false, true };
        test::row("granted", Turns { granted }, quiet);
        test::row("the response comes before the reply", Turns { early }, quiet);
        test::row("refused, then chosen in the dialog", Turns { { FakePortal::refused }, granted }, both);
        const FakePortal::Turn notAllowed { {}, {}, "org.freedesktop.portal.Error.NotAllowed" };
        test::row("the call refused, then chosen", Turns { notAllowed, granted }, both);
    }

    void aPictureIsTaken()
    {
        QFETCH(Turns, turns);
        for (const CaptureUse use : { CaptureUse::Repeated, CaptureUse::Once }) {
            QVERIFY(pattern().save(path()));
            m_portal.turns = turns;
            m_portal.interactive.clear();
            PortalScreenSource source(use, twoMonitors);
            const auto picture = captured(source, { twoMonitors().at(1), QRect(3, 5, 20, 30) });
            QVERIFY(picture && *picture);
            QCOMPARE((*picture)->pixels, pattern().copy(QRect(33, 5, 20, 30)));
            QTEST(m_portal.interactive, "interactive");
            QVERIFY(!QFile::exists(path()));
            QVERIFY(!source.wayOut());
        }
    }

    void aFailureHasItsSentence_data()
    {
        // wayOut: a word of it
        test::columns<Turns, QString, QString, int>("turns", "sentence", "wayOut", "withdrawn");
        const auto callFails = [](const char *error) { return FakePortal::Turn { {}, {}, error }; };
        const FakePortal::Turn cancelled { FakePortal::cancelled }, refused { FakePortal::refused };
        const QString gone = m_folder.filePath("gone.png");
        const QString unusable = "The desktop portal gave a picture that cannot be used: ";
        test::row("cancelled", Turns { cancelled }, "The screenshot was cancelled.", "", 0);
        test::row("cancelled in the dialog", Turns { refused, cancelled }, "The screenshot was cancelled.", "", 0);
        test::row("denied", Turns { refused, refused }, deniedSentence, "flatpak", 0);
        test::row("no such interface", Turns { callFails("org.freedesktop.DBus.Error.UnknownInterface") },
            missingSentence, "xdg-desktop-portal-kde", 0);
        test::row("the portal does not start", Turns { callFails("org.freedesktop.DBus.Error.Spawn.ChildExited") },
            missingSentence, "xdg-desktop-portal-kde", 0);
        test::row("never answers", Turns {}, "The desktop portal did not answer within 0.2 seconds.", "systemctl", 1);
        test::row("no file", Turns { { FakePortal::granted, QUrl::fromLocalFile(gone).toString() } },
            unusable + gone + " cannot be read.", "systemctl", 0);
        test::row("not of this computer", Turns { { FakePortal::granted, "https://example.org/a.png" } },
            unusable + "“https://example.org/a.png” is no file of this computer.", "systemctl", 0);
    }

    void aFailureHasItsSentence()
    {
        QFETCH(Turns, turns);
        QFETCH(QString, wayOut);
        m_portal.turns = turns;
        qputenv("XDG_CURRENT_DESKTOP", "KDE");
        PortalScreenSource source(CaptureUse::Repeated, twoMonitors, 200ms);
        const auto picture = captured(source, { twoMonitors().first(), QRect(0, 0, 30, 40) });
        QVERIFY(picture && !*picture);
        QTEST(picture->failure().message, "sentence");
        QCOMPARE(picture->failure().cancelled, picture->failure().message.contains("cancelled"));
        QCOMPARE(source.wayOut().has_value(), !wayOut.isEmpty());
        QVERIFY(source.wayOut().value_or(QString()).contains(wayOut));
        QFETCH(int, withdrawn);
        QTRY_COMPARE(m_portal.withdrawn, withdrawn);
    }

    void withoutAPortalItSaysSo()
    {
        m_portal.leave();
        PortalScreenSource source(CaptureUse::Repeated, twoMonitors);
        const auto picture = captured(source, { twoMonitors().first(), QRect(0, 0, 30, 40) });
        QVERIFY(picture && !*picture);
        QCOMPARE(picture->failure().message, missingSentence);
    }

    void displaysOfOneMomentShareAPicture()
    {
        m_portal.turns = { { FakePortal::granted, uri() } };
        PortalScreenSource source(CaptureUse::Repeated, twoMonitors);
        QList<QImage> pictures;
        for (const tessaly::Display &display : twoMonitors()) {
            source.capture({ display, display.pixelRect() }, [&](Result<RasterImage> answer) {
                QVERIFY(answer);
                pictures += answer->pixels;
            });
        }
        QTRY_COMPARE(pictures, (QList { pattern().copy(0, 0, 30, 40), pattern().copy(rightRect) }));
        QCOMPARE(m_portal.interactive.size(), 1);
        source.release();
        m_portal.turns = { { FakePortal::cancelled } };
        QVERIFY(!*captured(source, { twoMonitors().first(), QRect(0, 0, 30, 40) })); // asked anew
    }

    void withoutMonitorsThePictureIsOne()
    {
        m_portal.turns = { { FakePortal::granted, uri() }, { FakePortal::refused }, { FakePortal::refused } };
        PortalScreenSource source(CaptureUse::Once);
        const auto displays = source.displays();
        QVERIFY(displays);
        QCOMPARE(displays->size(), 1);
        QCOMPARE(displays->first().pixelSize, desktopSize);
        const auto picture = captured(source, { displays->first(), QRect(1, 1, 2, 2) });
        QVERIFY(picture && *picture);
        QCOMPARE((*picture)->pixels, pattern().copy(1, 1, 2, 2));
        QCOMPARE(m_portal.interactive.size(), 1); // what told the size is what is captured
        source.release();
        QCOMPARE(source.displays().failure().message, deniedSentence);
    }

    void manyCapturesLeaveNothingOpen()
    {
        PortalScreenSource source(CaptureUse::Repeated, twoMonitors);
        const auto openFiles = [] { return QDir("/proc/self/fd").entryList(QDir::Files | QDir::System).size(); };
        qsizetype atFirst = 0;
        for (int i = 0; i < 20; ++i) {
            QVERIFY(pattern().save(path()));
            m_portal.turns = { { FakePortal::granted, uri() } };
            QVERIFY(*captured(source, { twoMonitors().first(), QRect(0, 0, 30, 40) }));
            source.release();
            atFirst = i == 0 ? openFiles() : atFirst;
        }
        QTRY_VERIFY(openFiles() <= atFirst);
    }

    void aSourceMayGoWhileItAsks()
    {
        {
            PortalScreenSource source(CaptureUse::Repeated, twoMonitors);
            source.capture({ twoMonitors().first(), {} }, [](const auto &) { QFAIL("it is gone"); });
            QTRY_COMPARE(m_portal.interactive.size(), 1);
        }
        QTRY_COMPARE(m_portal.withdrawn, 1);
    }
};

QTEST_GUILESS_MAIN(PortalScreenSourceTest)
#include "PortalScreenSourceTest.moc"
