// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/RecognitionModels.h"
#include "tests/support/Rows.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessaly;

class RecognitionModelsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void choosesByTheUsersLanguages_data()
    {
        // package: that the notice names
        test::columns<QString, QString, QString, QString>("preferred", "installed", "models", "package");

        test::row("in the user's order", "es-MX en-US", "eng spa", "spa eng", "");
        test::row("each once", "en-GB en-US en", "eng", "eng", "");
        test::row("script told by the territory", "zh-TW", "chi_sim chi_tra", "chi_tra", "");
        test::row("not installed: English", "de-AT", "eng spa", "eng", "tesseract-ocr-deu");
        test::row("not installed: any", "de", "spa", "spa", "tesseract-ocr-deu");
        test::row("one of two missing", "fr es", "eng spa", "spa", "tesseract-ocr-fra");
        test::row("a package with a dash", "zh-CN", "eng", "eng", "tesseract-ocr-chi-sim");
        test::row("Norwegian by either name", "nn nb", "eng nor", "nor", "");
        test::row("a language without a model", "tlh", "eng", "eng", "");
        test::row("no preference", "", "deu eng", "eng", "");
        test::row("nothing installed", "", "", "", "");
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
