// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/TextRecognizer.h"

#include <QTest>

using namespace tessaly;

class RecognitionLanguagesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePreferredOnesThatAreThere_data()
    {
        QTest::addColumn<QStringList>("preferred");
        QTest::addColumn<QStringList>("supported");
        QTest::addColumn<QStringList>("chosen");
        const auto row = [](const char *name, QStringList preferred, QStringList supported, QStringList chosen) {
            QTest::newRow(name) << preferred << supported << chosen;
        };
        row("in the user's order", { "es-ES", "en-US" }, { "en-US", "es-ES" }, { "es-ES", "en-US" });
        row("the same when filled in", { "de" }, { "de-AT", "de-DE" }, { "de-DE" });
        row("also the supported one", { "en-US" }, { "en-GB", "en" }, { "en" });
        row("else the first of the language", { "en-AU" }, { "fr-FR", "en-GB", "en-US" }, { "en-GB" });
        row("each once", { "en-US", "en-GB", "en" }, { "en" }, { "en" });
        row("script from the territory", { "zh-TW" }, { "zh-Hans", "zh-Hant" }, { "zh-Hant" });
        row("territory from the script", { "zh-Hans" }, { "zh-TW", "zh-CN" }, { "zh-CN" });
        row("a script decides", { "sr-Latn-RS" }, { "sr-Cyrl-RS", "sr-Latn" }, { "sr-Latn" });
        row("other spellings", { "pt_BR" }, { "pt-PT", "pt-br" }, { "pt-br" });
        row("three letters", { "fr-FR" }, { "eng", "fra" }, { "fra" });
        row("a territory without data", { "en-ES" }, { "es-ES", "en-US" }, { "en-US" });
        row("none fits", { "ja-JP" }, { "en-US", "es-ES" }, {});
        row("no language at all", { "C", "" }, { "en-US" }, {});
        row("unknown, but the same", { "qaa" }, { "en-US", "qaa" }, { "qaa" });
        row("nothing supported", { "en-US" }, {}, {});
    }

    void thePreferredOnesThatAreThere()
    {
        QFETCH(QStringList, preferred);
        QFETCH(QStringList, supported);
        QTEST(TextRecognizer::preferredLanguages(preferred, supported), "chosen");
    }
};

QTEST_GUILESS_MAIN(RecognitionLanguagesTest)
#include "RecognitionLanguagesTest.moc"
