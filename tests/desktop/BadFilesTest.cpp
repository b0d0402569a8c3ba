// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QDir>

#include <sys/stat.h>

using namespace tessaly::test;

/// Files that cannot be read and places that cannot be written to: an alert says why, and everything stays as it was.
class BadFilesTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { QStringLiteral("1280x900x24") };

    static constexpr auto edited = "good.png* — Tessaly";

    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_session.path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    /// Waits for the alert, reads why, and takes it away.
    bool acknowledge(const QString &alert, const QString &reason)
    {
        if (!m_session.tree().find(reason) || !m_session.tree().waitUntilActive(alert))
            return false;
        m_session.key(QStringLiteral("Return"));
        return m_session.waitUntilGone(reason);
    }

    bool nameInDialog(const QString &path)
    {
        if (!m_session.tree().waitUntilActive({}, QStringLiteral("dialog"))
            || !m_session.click(QStringLiteral("File name:"), QStringLiteral("text")))
            return false;
        m_session.key(QStringLiteral("ctrl+a"));
        m_session.type(path);
        return true;
    }

    bool isAsBefore() const
    {
        const auto controls = m_session.tree().controls();
        QStringList windows;
        for (const SeenControl &control : controls) {
            if (control.showing && control.role == u"frame")
                windows += control.name;
        }
        return windows == QStringList(QString::fromUtf8(edited));
    }

    QStringList files() const
    {
        return QDir(m_session.path(QStringLiteral("work")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        QDir().mkpath(m_session.path(QStringLiteral("work")));
        QImage picture(400, 300, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        QVERIFY(picture.save(m_session.path(QStringLiteral("good.png"))));
        put(QStringLiteral("text.png"), "this is no picture\n");
        put(QStringLiteral("empty.png"), {});
        put(QStringLiteral("file.tessaly"), "x");
        QCOMPARE(::mkfifo(qPrintable(m_session.path(QStringLiteral("pipe.png"))), 0600), 0);
    }

    void opensTheGoodOneOfMany()
    {
        QVERIFY(m_session.start({ m_session.path(QStringLiteral("text.png")),
            m_session.path(QStringLiteral("good.png")), m_session.path(QStringLiteral("empty.png")) }));
        const QString alert = QStringLiteral("Couldn't open the document");
        QVERIFY(acknowledge(alert, m_session.path(QStringLiteral("text.png is not a picture"))));
        QVERIFY(acknowledge(alert, m_session.path(QStringLiteral("empty.png is empty"))));
        const auto canvas = m_session.tree().find(QStringLiteral("Screenshot, 400 by 300 pixels"));
        QVERIFY(canvas && m_session.tree().waitUntilActive(QStringLiteral("good.png")));
        m_session.key(QStringLiteral("r"));
        const QPoint middle = canvas->rect.center();
        m_session.drag({ middle - QPoint(50, 30), middle + QPoint(40, 40) });
        QVERIFY(m_session.tree().find(QString::fromUtf8(edited)));
    }

    void opensNothingBad_data()
    {
        columns<QString, QString>("file", "reason");
        row("text", "text.png", "text.png is not a picture");
        row("pipe", "pipe.png", "pipe.png is not a file");
        row("document", "file.tessaly", "The document is damaged");
    }

    void opensNothingBad()
    {
        QFETCH(QString, file);
        QFETCH(QString, reason);
        QVERIFY(m_session.tree().waitUntilActive(QString::fromUtf8(edited)));
        m_session.key(QStringLiteral("ctrl+o"));
        QVERIFY(nameInDialog(m_session.path(file)));
        m_session.key(QStringLiteral("Return"));
        const QString sentence = file == u"file.tessaly" ? reason : m_session.path(reason);
        QVERIFY(acknowledge(QStringLiteral("Couldn't open the document"), sentence));
        QTRY_VERIFY(isAsBefore());
    }

    void aFailedSaveLosesNothing_data()
    {
        // path: below the home folder
        columns<QString, QString, QString, QString>("keys", "alert", "path", "reason");
        for (const auto &[keys, kind, extension] :
            { std::tuple("ctrl+s", "image", "png"), std::tuple("ctrl+shift+s", "document", "tessaly") }) {
            const QString alert = QStringLiteral("Couldn't save the %1").arg(QLatin1StringView(kind));
            const QString name = QStringLiteral("out.") + QLatin1StringView(extension);
            QTest::addRow("%s to a folder that vanished", kind)
                << keys << alert << "gone/" + name << "No such file or directory";
            QTest::addRow("%s below a file", kind) << keys << alert << "good.png/" + name << "Not a directory";
            QTest::addRow("%s on a full disk", kind) << keys << alert << "work/" + name << "File too large";
        }
    }

    void aFailedSaveLosesNothing()
    {
        QFETCH(QString, keys);
        QFETCH(QString, alert);
        QFETCH(QString, path);
        QFETCH(QString, reason);
        const QString folder = m_session.path(QStringLiteral("gone"));
        QDir().mkpath(folder);
        QVERIFY(m_session.tree().waitUntilActive(QString::fromUtf8(edited)));
        m_session.key(keys);
        QVERIFY(nameInDialog(m_session.path(path)));
        QDir().rmdir(folder);
        m_session.limitFiles(path.startsWith(u"work/") ? 100 : -1);
        m_session.key(QStringLiteral("Return"));
        QVERIFY(acknowledge(alert, QStringLiteral("%1 could not be written: %2").arg(m_session.path(path), reason)));
        m_session.limitFiles(-1);
        QTRY_VERIFY(isAsBefore());
        QCOMPARE(files(), QStringList());
    }

    void aLaterSaveSucceeds()
    {
        QVERIFY(m_session.tree().waitUntilActive(QString::fromUtf8(edited)));
        m_session.key(QStringLiteral("ctrl+s"));
        QVERIFY(nameInDialog(m_session.path(QStringLiteral("work/out.png"))));
        m_session.key(QStringLiteral("Return"));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("good.png — Tessaly")));
        QCOMPARE(files(), QStringList("out.png"));
        m_session.key(QStringLiteral("ctrl+q"));
        QCOMPARE(m_session.waitForEnd(), 0);
    }
};

QTEST_GUILESS_MAIN(BadFilesTest)
#include "BadFilesTest.moc"
