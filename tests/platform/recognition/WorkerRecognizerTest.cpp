// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/WorkerRecognizer.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

#include <unistd.h>

using namespace tessaly;
using Urgency = TextRecognizer::Urgency;

/// The real worker, and programs in its place that do not answer.
class WorkerRecognizerTest : public QObject {
    Q_OBJECT

    /// A picture with this text many times, which takes the longer the more rows it has.
    static RasterImage pictureOf(const QString &text, int rows = 1)
    {
        QImage pixels(400, 30 * rows + 10, QImage::Format_RGB32);
        pixels.fill(Qt::white);
        QPainter painter(&pixels);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(16);
        painter.setFont(font);
        for (int row = 0; row < rows; ++row)
            painter.drawText(20, 25 + 30 * row, text);
        painter.end();
        return RasterImage::fromPixels(pixels);
    }

    static WorkerRecognizer::Options options()
    {
        return { { QStringLiteral("en") }, QStringLiteral(TESSALY_RECOGNITION) };
    }

    /// The process ids of what this process has started.
    static QList<pid_t> children()
    {
        QFile file(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
        QList<pid_t> ids;
        if (file.open(QIODevice::ReadOnly)) {
            for (const QByteArray &id : file.readAll().simplified().split(' '))
                ids += id.toInt();
        }
        ids.removeAll(0);
        return ids;
    }

    /// Recognitions and the order in which they came back.
    struct Desk {
        explicit Desk(WorkerRecognizer &recognizer) : m_recognizer(recognizer) { }

        void start(const QString &name, const RasterImage &image, Urgency urgency = Urgency::User)
        {
            tasks[name] = m_recognizer.recognize(
                { image, TextRecognizer::Level::Accurate, TextRecognizer::Codes::Skip, urgency },
                [this, name](const Result<RecognizedContent> &result) {
                    order += name;
                    if (result)
                        texts[name] = result->text();
                    else
                        failures[name] = result.failure().message;
                });
        }

        std::map<QString, std::unique_ptr<RecognitionTask>> tasks;
        QStringList order;
        QMap<QString, QString> texts, failures;

    private:
        WorkerRecognizer &m_recognizer;
    };

    static constexpr int patience = 60000;

private Q_SLOTS:
    void cleanup() { QTRY_VERIFY_WITH_TIMEOUT(children().isEmpty(), patience); }

    void readsAndKeepsItsWorker()
    {
        WorkerRecognizer recognizer(options());
        QVERIFY(recognizer.isSupported());
        Desk desk(recognizer);
        const RasterImage first = pictureOf(QStringLiteral("First words"));
        desk.start(QStringLiteral("a"), first);
        desk.start(QStringLiteral("b"), pictureOf(QStringLiteral("Second words")));
        QVERIFY(desk.order.isEmpty()); // never from within the call
        QTRY_COMPARE_WITH_TIMEOUT(desk.order.size(), 2, patience);
        QCOMPARE(desk.texts[QStringLiteral("a")], QStringLiteral("First words"));
        QCOMPARE(desk.texts[QStringLiteral("b")], QStringLiteral("Second words"));
        QCOMPARE(children().size(), 1);
        QVERIFY2(first.pixels.isDetached(), "a task that is over still has the picture");
    }

    void takesTheUsersBeforeTheBackgrounds()
    {
        WorkerRecognizer recognizer(options());
        Desk desk(recognizer);
        desk.start(QStringLiteral("history"), pictureOf(QStringLiteral("History"), 20), Urgency::Background);
        desk.start(QStringLiteral("more history"), pictureOf(QStringLiteral("More history")), Urgency::Background);
        QTRY_VERIFY_WITH_TIMEOUT(!children().isEmpty(), patience); // the first has begun
        desk.start(QStringLiteral("user"), pictureOf(QStringLiteral("User")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.order.size(), 3, patience);
        QCOMPARE(desk.order,
            QStringList({ QStringLiteral("user"), QStringLiteral("history"), QStringLiteral("more history") }));
        QCOMPARE(desk.texts[QStringLiteral("history")].count(QStringLiteral("History")), 20);
    }

    void cancelsForReal()
    {
        WorkerRecognizer recognizer(options());
        Desk desk(recognizer);
        desk.start(QStringLiteral("warm"), pictureOf(QStringLiteral("Warm")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.order.size(), 1, patience);
        desk.start(QStringLiteral("long"), pictureOf(QStringLiteral("A long text of very many words in each row"), 40));
        QTRY_VERIFY_WITH_TIMEOUT(!children().isEmpty(), patience);
        const QList<pid_t> worker = children();
        desk.tasks.clear();
        desk.start(QStringLiteral("short"), pictureOf(QStringLiteral("Short")));
        QTRY_COMPARE_WITH_TIMEOUT(
            desk.order, QStringList({ QStringLiteral("warm"), QStringLiteral("short") }), patience);
        QCOMPARE(children(), worker); // it stayed warm
    }

    void survivesACrash()
    {
        WorkerRecognizer recognizer(options());
        Desk desk(recognizer);
        desk.start(QStringLiteral("doomed"), pictureOf(QStringLiteral("Doomed"), 100));
        QTRY_VERIFY_WITH_TIMEOUT(!children().isEmpty(), patience);
        ::kill(children().first(), SIGKILL);
        QTRY_COMPARE_WITH_TIMEOUT(desk.order.size(), 1, patience);
        QVERIFY(desk.failures.contains(QStringLiteral("doomed")));
        desk.start(QStringLiteral("next"), pictureOf(QStringLiteral("Next")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.texts.value(QStringLiteral("next")), QStringLiteral("Next"), patience);
    }

    void replacesAWorkerThatDoesNotAnswer()
    {
        const QTemporaryDir folder;
        QFile script(folder.filePath(QStringLiteral("deaf")));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nexec sleep 1000\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        WorkerRecognizer recognizer({ { QStringLiteral("en") }, script.fileName() });
        Desk desk(recognizer);
        desk.start(QStringLiteral("first"), pictureOf(QStringLiteral("First")));
        QTRY_VERIFY_WITH_TIMEOUT(!children().isEmpty(), patience);
        const QList<pid_t> deaf = children();
        desk.start(QStringLiteral("second"), pictureOf(QStringLiteral("Second")));
        desk.tasks.erase(QStringLiteral("first"));
        QTRY_VERIFY_WITH_TIMEOUT(!children().isEmpty() && children() != deaf, patience);
        QVERIFY(desk.order.isEmpty());
    }

    void failsWhereItIsNotInstalled_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("no program") << QString();
        QTest::newRow("one that is gone") << QStringLiteral("/nonexistent/tessaly-recognition");
        QTest::newRow("another program") << QStringLiteral("/bin/true");
    }

    void failsWhereItIsNotInstalled()
    {
        QFETCH(QString, program);
        WorkerRecognizer recognizer({ { QStringLiteral("en") }, program });
        QCOMPARE(recognizer.isSupported(), QFile::exists(program));
        Desk desk(recognizer);
        recognizer.prewarm();
        desk.start(QStringLiteral("a"), pictureOf(QStringLiteral("A")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.failures.size(), 1, patience);
    }

    void saysOnceWhatLanguageIsMissing()
    {
        WorkerRecognizer recognizer(
            { { QStringLiteral("de-DE"), QStringLiteral("yo-NG") }, QStringLiteral(TESSALY_RECOGNITION) });
        QStringList notices;
        recognizer.notice = [&notices](const QString &sentence) { notices += sentence; };
        Desk desk(recognizer);
        desk.start(QStringLiteral("a"), pictureOf(QStringLiteral("Words")));
        desk.start(QStringLiteral("b"), pictureOf(QStringLiteral("Words")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.order.size(), 2, patience);
        QCOMPARE(notices.size(), 1);
        QCOMPARE(desk.texts.value(QStringLiteral("a")), QStringLiteral("Words"));
    }

    void mayBeDestroyedAtAnyTime()
    {
        std::unique_ptr<RecognitionTask> orphan;
        bool answered = false;
        {
            WorkerRecognizer recognizer(options());
            recognizer.prewarm();
            orphan = recognizer.recognize({ pictureOf(QStringLiteral("Words")) },
                [&answered](const Result<RecognizedContent> &) { answered = true; });
            QTRY_VERIFY_WITH_TIMEOUT(!children().isEmpty(), patience);
        }
        orphan.reset();
        QTRY_VERIFY_WITH_TIMEOUT(children().isEmpty(), patience);
        QVERIFY(!answered);
    }
};

QTEST_MAIN(WorkerRecognizerTest)
#include "WorkerRecognizerTest.moc"
