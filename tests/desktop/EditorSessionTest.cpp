// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/PatientTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace tessaly::test;

/// A person's afternoon with the editor: everything by mouse and keyboard, on a desktop of its own.
class EditorSessionTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { QStringLiteral("1280x900x24") };

    QPoint m_middle; ///< of the capture on the screen
    QImage m_finished;

    static QString document() { return QStringLiteral("work.tessaly"); }

    QByteArray tessaly(const QStringList &arguments) const
    {
        return m_session.output(QStringLiteral(TESSALY_BINARIES "/tessaly"), arguments);
    }

    /// The kinds of the marks in a document.
    QSet<QString> kindsIn(const QString &document) const
    {
        const QByteArray info = tessaly({ QStringLiteral("info"), QStringLiteral("--json"), m_session.path(document) });
        QSet<QString> kinds;
        const QJsonArray marks = QJsonDocument::fromJson(info).object()[u"annotations"].toArray();
        for (const auto &mark : marks)
            kinds += mark.toObject()[u"kind"].toString();
        return kinds;
    }

    qsizetype markCount(const QString &document) const
    {
        const QByteArray info = tessaly({ QStringLiteral("info"), QStringLiteral("--json"), m_session.path(document) });
        return QJsonDocument::fromJson(info).object()[u"annotations"].toArray().size();
    }

    QPoint at(int x, int y) const { return m_middle + QPoint(x, y); }

    /// What copying the finished picture puts on the clipboard.
    QImage copiedPicture()
    {
        m_session.output(
            QStringLiteral("sh"), { QStringLiteral("-c"), QStringLiteral("xclip -selection clipboard -i /dev/null") });
        m_session.key(QStringLiteral("ctrl+shift+c"));
        QImage picture;
        static_cast<void>(
            QTest::qWaitFor([&] { return !(picture = m_session.clipboardPicture()).isNull(); }, patience));
        return picture.convertToFormat(QImage::Format_RGB32);
    }

    bool openByDialog(const QString &path)
    {
        m_session.key(QStringLiteral("ctrl+o"));
        if (!m_session.tree().waitUntilActive(QStringLiteral("Open")))
            return false;
        m_session.type(path);
        m_session.key(QStringLiteral("Return"));
        return m_session.tree().waitUntilActive(QFileInfo(path).fileName());
    }

    void addStroke()
    {
        m_session.key(QStringLiteral("p"));
        m_session.drag({ at(-100, 60), at(-40, 100), at(20, 60) });
        m_session.key(QStringLiteral("v"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        m_session.writeSettings("{\"appearance\":\"light\"}");
        m_session.output(QStringLiteral("display"),
            { QStringLiteral("-window"), QStringLiteral("root"),
                QStringLiteral(TESSALY_SOURCE "/docs/pictures/example.png") });
        tessaly({ QStringLiteral("capture"), QStringLiteral("full-screen"), QStringLiteral("-o"),
            m_session.path(QStringLiteral("screen.png")) });
        QVERIFY(QFile::exists(m_session.path(QStringLiteral("screen.png"))));
    }

    void opensTheCapture()
    {
        QVERIFY(m_session.start({ m_session.path(QStringLiteral("screen.png")) }));
        const auto canvas = m_session.tree().find(QStringLiteral("Screenshot, 1280 by 900 pixels"));
        QVERIFY(canvas);
        m_middle = canvas->rect.center();
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("screen.png")));
    }

    void drawsEveryKindOfMark()
    {
        const auto drag = [this](const char *tool, QPoint from, QPoint to) {
            m_session.key(QLatin1StringView(tool));
            m_session.drag({ from, to });
        };
        drag("a", at(-260, -140), at(-190, -100));
        drag("r", at(-160, -140), at(-90, -100));
        drag("o", at(-60, -140), at(10, -100));
        drag("l", at(40, -140), at(110, -100));
        drag("j", at(140, -140), at(210, -100));
        drag("b", at(-260, -60), at(-190, -20));
        drag("f", at(-160, -60), at(-90, -20));
        drag("g", at(-60, -60), at(0, 0));
        m_session.key(QStringLiteral("p"));
        m_session.drag({ at(40, -60), at(70, -20), at(90, -60), at(110, -20) });
        for (const auto &[tool, place] : { std::pair("s", at(150, -40)), std::pair("e", at(220, -40)) }) {
            m_session.key(QLatin1StringView(tool));
            m_session.click(place);
        }
        m_session.key(QStringLiteral("t"));
        m_session.click(at(-240, 40));
        m_session.type(QStringLiteral("Look here"));
        m_session.key(QStringLiteral("Escape"));
        // An image arrives by the clipboard.
        m_session.key(QStringLiteral("v"));
        m_session.output(QStringLiteral("sh"),
            { QStringLiteral("-c"),
                QStringLiteral("convert -size 60x40 xc:teal png:- | xclip -selection clipboard -t image/png -i") });
        m_session.click(at(60, 80));
        m_session.key(QStringLiteral("ctrl+v"));
    }

    void restylesUndoesCropsAndFrames()
    {
        m_session.key(QStringLiteral("v"));
        m_session.click(at(-125, -140)); // the rectangle, by its stroke
        m_session.key(QStringLiteral("5"));
        m_session.key(QStringLiteral("ctrl+z"));
        m_session.key(QStringLiteral("ctrl+shift+z"));
        m_session.key(QStringLiteral("k"));
        m_session.drag({ at(-290, -190), at(280, 150) });
        m_session.key(QStringLiteral("Return"));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("Screenshot, 1280 by 900 pixels")));
        m_session.key(QStringLiteral("y"));
        QVERIFY(m_session.click(QStringLiteral("Frame"), QStringLiteral("check box")));
    }

    void savesAsJpegWithItsDocument()
    {
        m_session.key(QStringLiteral("ctrl+s"));
        const auto format = m_session.tree().find(QStringLiteral("PNG"), QStringLiteral("combo box"));
        QVERIFY(format);
        m_session.click(format->rect.center());
        m_session.type(QStringLiteral("J"));
        m_session.key(QStringLiteral("Return"));
        QVERIFY(m_session.click(QStringLiteral("Also save Tessaly document")));
        QVERIFY(m_session.click(QStringLiteral("File name:"), QStringLiteral("text")));
        m_session.key(QStringLiteral("ctrl+a"));
        m_session.type(m_session.path(QStringLiteral("work.jpg")));
        m_session.key(QStringLiteral("Return"));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("File name:")));
        QTRY_VERIFY(QFile::exists(m_session.path(QStringLiteral("work.tessaly/document.json"))));
        QCOMPARE(QImage(m_session.path(QStringLiteral("work.jpg"))).isNull(), false);
        QCOMPARE(kindsIn(document()).size(), 13);
    }

    void closesAsThePromptIsAnswered()
    {
        const QString prompt = QStringLiteral("Do you want to save your annotations?");
        // Another window keeps the program, and with it the noise over obscured areas, alive.
        m_session.key(QStringLiteral("ctrl+n"));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Untitled")));
        QVERIFY(openByDialog(m_session.path(document())));
        m_finished = copiedPicture();
        QVERIFY(!m_finished.isNull());

        addStroke();
        m_session.key(QStringLiteral("ctrl+w"));
        QVERIFY(m_session.tree().find(prompt));
        QVERIFY(m_session.click(QStringLiteral("Cancel")));
        QVERIFY(m_session.waitUntilGone(prompt));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("work.tessaly")));

        m_session.key(QStringLiteral("ctrl+w"));
        QVERIFY(m_session.click(QStringLiteral("Don't Save")));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("work.tessaly")));
        QCOMPARE(markCount(document()), 13);
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Untitled")));

        QVERIFY(openByDialog(m_session.path(document())));
        addStroke();
        m_session.key(QStringLiteral("ctrl+w"));
        QVERIFY(m_session.click(QStringLiteral("Save…")));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("work.tessaly")));
        QCOMPARE(markCount(document()), 14);
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Untitled")));
    }

    void aReopenedDocumentIsWhatWasClosed()
    {
        QVERIFY(openByDialog(m_session.path(document())));
        m_session.click(m_middle);
        m_session.key(QStringLiteral("Tab"));
        m_session.key(QStringLiteral("shift+Tab")); // the last mark, which was added on top
        m_session.key(QStringLiteral("Delete"));
        QCOMPARE(copiedPicture(), m_finished);
    }
};

QTEST_GUILESS_MAIN(EditorSessionTest)
#include "EditorSessionTest.moc"
