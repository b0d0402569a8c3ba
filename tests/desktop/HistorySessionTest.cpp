// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/PatientTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace tessaly::test;

/// The way of a capture: taken of the screen, found by a word that was on it, marked in two goes without a question,
/// and exported with its marks.
class HistorySessionTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { QStringLiteral("1280x900x24") };

    static QString program() { return QStringLiteral(TESSALY_BINARIES "/tessaly"); }
    static QString tile() { return QStringLiteral("Screenshot, "); } ///< and the date

    /// The id of the one capture in the history.
    QString capture() const
    {
        const QJsonArray captures
            = QJsonDocument::fromJson(m_session.output(program(), { "history", "list", "--json" })).array();
        return captures.size() == 1 ? captures[0].toObject()[u"id"].toString() : QString();
    }

    QString package() const
    {
        return m_session.path(QStringLiteral("data/tessaly/History/") + capture() + QStringLiteral(".tessaly"));
    }

    /// The kinds of the capture's marks.
    QStringList marks() const
    {
        const QByteArray info = m_session.output(program(), { "info", "--json", package() });
        QStringList kinds;
        const QJsonArray annotations = QJsonDocument::fromJson(info).object()[u"annotations"].toArray();
        for (const auto &mark : annotations)
            kinds += mark.toObject()[u"kind"].toString();
        return kinds;
    }

    /// The middle of the capture in the editor, which has the keyboard by then.
    std::optional<QPoint> canvas() const
    {
        const auto found = m_session.tree().find(QStringLiteral("Screenshot, 1280 by 900 pixels"));
        return found && m_session.tree().waitUntilActive(QStringLiteral("Screenshot"))
            ? std::optional(found->rect.center())
            : std::nullopt;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        m_session.writeSettings("{\"appearance\":\"light\"}");
        const QString picture = m_session.path(QStringLiteral("background.png"));
        m_session.output("convert",
            { "-size", "1280x900", "xc:white", "-font", "DejaVu-Sans", "-pointsize", "24", "-draw",
                "text 40,60 'Quarterly report of the harbour'", picture });
        QVERIFY(QFile::exists(picture));
        m_session.output("display", { "-window", "root", picture });
    }

    void keepsWhatWasOnTheScreen()
    {
        m_session.output(program(), { "capture", "full-screen", "-o", m_session.path(QStringLiteral("screen.png")) });
        QVERIFY(QFile::exists(m_session.path(QStringLiteral("screen.png"))));
        QVERIFY(!capture().isEmpty());
    }

    void isFoundByAWordThatWasOnIt()
    {
        QVERIFY(m_session.start({}));
        QVERIFY(m_session.tree().find(tile()) && m_session.tree().waitUntilActive(QString()));
        QVERIFY(m_session.click(QStringLiteral("Search Captures")));
        m_session.type(QStringLiteral("submarine"));
        QVERIFY(m_session.waitUntilGone(tile()));
        m_session.key(QStringLiteral("ctrl+a"));
        m_session.type(QStringLiteral("harbour"));
        QVERIFY(m_session.tree().find(tile())); // once it has been read
    }

    void isMarkedAndClosedWithoutAQuestion()
    {
        const auto found = m_session.tree().find(tile());
        QVERIFY(found);
        m_session.doubleClick(found->rect.center());
        const auto middle = canvas();
        QVERIFY(middle);
        m_session.key(QStringLiteral("r"));
        m_session.drag({ *middle - QPoint(50, 30), *middle + QPoint(40, 40) });
        QVERIFY(m_session.tree().find(QStringLiteral("Screenshot*")));
        m_session.key(QStringLiteral("ctrl+q"));
        QCOMPARE(m_session.waitForEnd(), 0);
        QCOMPARE(marks(), QStringList("rectangle"));
    }

    void opensWithItsMarksAndIsEditedFurther()
    {
        QVERIFY(m_session.start({ "history", "open", capture() }));
        const auto middle = canvas();
        QVERIFY(middle);
        m_session.key(QStringLiteral("o"));
        m_session.drag({ *middle + QPoint(60, 60), *middle + QPoint(110, 90) });
        QTRY_COMPARE(marks(), QStringList({ "rectangle", "ellipse" }));
        m_session.key(QStringLiteral("ctrl+w"));
        QCOMPARE(m_session.waitForEnd(), 0);
        QCOMPARE(marks().size(), 2);
    }

    void isExportedWithItsMarks()
    {
        const QString path = m_session.path(QStringLiteral("exported.png"));
        m_session.output(program(), { "history", "export", capture(), "-o", path });
        const QImage exported(path), taken(m_session.path(QStringLiteral("screen.png")));
        QCOMPARE(exported.size(), QSize(1280, 900));
        QCOMPARE(taken.size(), exported.size());
        QRect marked;
        for (int y = 0; y < taken.height(); ++y) {
            for (int x = 0; x < taken.width(); ++x)
                marked |= taken.pixel(x, y) == exported.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
        // Both marks, which were drawn around the middle, and nothing else.
        QVERIFY2(marked.width() >= 160 && marked.height() >= 120, qPrintable(QDebug::toString(marked)));
        QVERIFY2(QRect(320, 300, 700, 450).contains(marked), qPrintable(QDebug::toString(marked)));
    }
};

QTEST_GUILESS_MAIN(HistorySessionTest)
#include "HistorySessionTest.moc"
