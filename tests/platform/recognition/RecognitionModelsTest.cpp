// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/RecognitionModels.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

class RecognitionModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choosesByTheUsersLanguages_data()
    {
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QString>("installed");
        QTest::addColumn<QString>("models");
        QTest::addColumn<QString>("package"); // that the notice names

        QTest::newRow("in the user's order") << "es-MX en-US"
                                             << "eng spa"
                                             << "spa eng"
                                             << "";
        QTest::newRow("each once") << "en-GB en-US en"
                                   << "eng"
                                   << "eng"
                                   << "";
        QTest::newRow("script told by the territory") << "zh-TW"
                                                      << "chi_sim chi_tra"
                                                      << "chi_tra"
                                                      << "";
        QTest::newRow("not installed: English") << "de-AT"
                                                << "eng spa"
                                                << "eng"
                                                << "tesseract-ocr-deu";
        QTest::newRow("not installed: any") << "de"
                                            << "spa"
                                            << "spa"
                                            << "tesseract-ocr-deu";
        QTest::newRow("one of two missing") << "fr es"
                                            << "eng spa"
                                            << "spa"
                                            << "tesseract-ocr-fra";
        QTest::newRow("a package with a dash") << "zh-CN"
                                               << "eng"
                                               << "eng"
                                               << "tesseract-ocr-chi-sim";
        QTest::newRow("Norwegian by either name") << "nn nb"
                                                  << "eng nor"
                                                  << "nor"
                                                  << "";
        QTest::newRow("a language without a model") << "tlh"
                                                    << "eng"
                                                    << "eng"
                                                    << "";
        QTest::newRow("no preference") << ""
                                       << "deu eng"
                                       << "eng"
                                       << "";
        QTest::newRow("nothing installed") << ""
                                           << ""
                                           << ""
                                           << "";
    }

    void choosesByTheUsersLanguages()
    {
        QFETCH(QString, preferred);
        QFETCH(QString, installed);
        QFETCH(QString, models);
        QFETCH(QString, package);
        const auto choice = RecognitionModels::chosen(
            preferred.split(u' ', Qt::SkipEmptyParts), installed.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(choice.models.join(u' '), models);
        QCOMPARE(choice.notice.isEmpty(), package.isEmpty());
        QVERIFY2(choice.notice.contains(package), qPrintable(choice.notice));
    }

    void listsModelsOfTheFolder()
    {
        const QTemporaryDir folder;
        for (const char *name : { "eng.traineddata", "osd.traineddata", "chi_sim.traineddata", "pdf.ttf" }) {
            QFile file(folder.filePath(QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QCOMPARE(RecognitionModels::installed(folder.path()),
            QStringList({ QStringLiteral("chi_sim"), QStringLiteral("eng") }));
        qputenv("TESSDATA_PREFIX", folder.path().toLocal8Bit());
        QCOMPARE(RecognitionModels::folder(), folder.path());
        qunsetenv("TESSDATA_PREFIX");
        QVERIFY(RecognitionModels::installed({}).isEmpty());
    }
};

QTEST_GUILESS_MAIN(RecognitionModelsTest)
#include "RecognitionModelsTest.moc"
