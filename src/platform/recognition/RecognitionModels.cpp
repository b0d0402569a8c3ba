// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/RecognitionModels.h"

#include "core/Text/TextRecognizer.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace tessaly::RecognitionModels {

namespace {

struct Row {
    const char *model, *language;
};

// Debian's packages are named after the models, with '-' for '_'. Where two models read a language, the usual one is
// the first.
constexpr Row rows[] { { "afr", "af" }, { "amh", "am" }, { "ara", "ar" }, { "asm", "as" }, { "aze", "az" },
    { "aze_cyrl", "az-Cyrl" }, { "bel", "be" }, { "ben", "bn" }, { "bod", "bo" }, { "bos", "bs" }, { "bre", "br" },
    { "bul", "bg" }, { "cat", "ca" }, { "ceb", "ceb" }, { "ces", "cs" }, { "chi_sim", "zh-Hans" },
    { "chi_tra", "zh-Hant" }, { "chr", "chr" }, { "cos", "co" }, { "cym", "cy" }, { "dan", "da" }, { "deu", "de" },
    { "div", "dv" }, { "dzo", "dz" }, { "ell", "el" }, { "eng", "en" }, { "epo", "eo" }, { "est", "et" },
    { "eus", "eu" }, { "fao", "fo" }, { "fas", "fa" }, { "fil", "fil" }, { "fin", "fi" }, { "fra", "fr" },
    { "fry", "fy" }, { "gla", "gd" }, { "gle", "ga" }, { "glg", "gl" }, { "guj", "gu" }, { "hat", "ht" },
    { "heb", "he" }, { "hin", "hi" }, { "hrv", "hr" }, { "hun", "hu" }, { "hye", "hy" }, { "iku", "iu" },
    { "ind", "id" }, { "isl", "is" }, { "ita", "it" }, { "jav", "jv" }, { "jpn", "ja" }, { "kan", "kn" },
    { "kat", "ka" }, { "kaz", "kk" }, { "khm", "km" }, { "kir", "ky" }, { "kmr", "ku" }, { "kor", "ko" },
    { "lao", "lo" }, { "lat", "la" }, { "lav", "lv" }, { "lit", "lt" }, { "ltz", "lb" }, { "mal", "ml" },
    { "mar", "mr" }, { "mkd", "mk" }, { "mlt", "mt" }, { "mon", "mn" }, { "mri", "mi" }, { "msa", "ms" },
    { "mya", "my" }, { "nep", "ne" }, { "nld", "nl" }, { "nor", "nb" }, { "nor", "nn" }, { "nor", "no" },
    { "oci", "oc" }, { "ori", "or" }, { "pan", "pa" }, { "pol", "pl" }, { "por", "pt" }, { "pus", "ps" },
    { "que", "qu" }, { "ron", "ro" }, { "rus", "ru" }, { "san", "sa" }, { "sin", "si" }, { "slk", "sk" },
    { "slv", "sl" }, { "snd", "sd" }, { "spa", "es" }, { "sqi", "sq" }, { "srp", "sr-Cyrl" }, { "srp_latn", "sr-Latn" },
    { "sun", "su" }, { "swa", "sw" }, { "swe", "sv" }, { "syr", "syr" }, { "tam", "ta" }, { "tat", "tt" },
    { "tel", "te" }, { "tgk", "tg" }, { "tha", "th" }, { "tir", "ti" }, { "ton", "to" }, { "tur", "tr" },
    { "uig", "ug" }, { "ukr", "uk" }, { "urd", "ur" }, { "uzb", "uz" }, { "uzb_cyrl", "uz-Cyrl" }, { "vie", "vi" },
    { "yid", "yi" }, { "yor", "yo" } };

constexpr QLatin1StringView suffix(".traineddata");

// Every further model is tried on each word that the ones before it were not sure of.
constexpr qsizetype maximumModels = 3;

QStringList languagesOf(const QStringList &models)
{
    QStringList languages;
    for (const Row &row : rows) {
        if (models.contains(QLatin1StringView(row.model)))
            languages += QLatin1StringView(row.language);
    }
    return languages;
}

QString modelOf(const QString &language)
{
    const auto row = std::ranges::find_if(
        rows, [&language](const Row &one) { return language == QLatin1StringView(one.language); });
    return row == std::end(rows) ? QString() : QString::fromLatin1(row->model);
}

QString noticeOf(const QString &preferred, const QString &model)
{
    const QString language = QLocale::languageToString(QLocale(preferred).language());
    const QString package = QLatin1StringView("tesseract-ocr-") + QString(model).replace(u'_', u'-');
    return QCoreApplication::translate("Recognition",
        "Text in %1 is not recognized because its language data is not installed; the package %2 adds it.")
        .arg(language, package);
}

} // namespace

QString folder()
{
    if (qEnvironmentVariableIsSet("TESSDATA_PREFIX"))
        return qEnvironmentVariable("TESSDATA_PREFIX");
    for (const char *place : { "/usr/share/tesseract-ocr/5/tessdata", "/usr/share/tesseract-ocr/4.00/tessdata",
             "/usr/share/tessdata", "/usr/share/tesseract/tessdata", "/usr/local/share/tessdata" }) {
        if (!installed(QString::fromLatin1(place)).isEmpty())
            return QString::fromLatin1(place);
    }
    return {};
}

QStringList installed(const QString &folder)
{
    if (folder.isEmpty())
        return {};
    QStringList models;
    for (const QString &file : QDir(folder).entryList({ u'*' + suffix }, QDir::Files | QDir::Readable, QDir::Name)) {
        const QString model = file.chopped(suffix.size());
        if (model != u"osd" && model != u"equ") // these two find orientations and formulas
            models += model;
    }
    return models;
}

Choice chosen(const QStringList &preferredLanguages, const QStringList &installedModels)
{
    static const QStringList every = [] {
        QStringList languages;
        for (const Row &row : rows)
            languages += QLatin1StringView(row.language);
        return languages;
    }();
    const QStringList readable = languagesOf(installedModels);
    Choice choice;
    for (const QString &preferred : preferredLanguages) {
        const QStringList here = TextRecognizer::preferredLanguages({ preferred }, readable);
        const QStringList anywhere = TextRecognizer::preferredLanguages({ preferred }, every);
        const QString best = anywhere.isEmpty() ? QString() : modelOf(anywhere.first());
        if (!here.isEmpty() && !choice.models.contains(modelOf(here.first())) && choice.models.size() < maximumModels)
            choice.models += modelOf(here.first());
        else if (here.isEmpty() && !best.isEmpty() && choice.notice.isEmpty())
            choice.notice = noticeOf(preferred, best);
    }
    if (choice.models.isEmpty() && !installedModels.isEmpty())
        choice.models += installedModels.contains(u"eng") ? QStringLiteral("eng") : installedModels.first();
    return choice;
}

} // namespace tessaly::RecognitionModels
