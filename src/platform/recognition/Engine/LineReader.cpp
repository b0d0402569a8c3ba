// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/LineReader.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <tesseract/baseapi.h>
#include <tesseract/ocrclass.h>
#include <tesseract/resultiterator.h>

namespace tessaly {

struct LineReader::Api : tesseract::TessBaseAPI { };

LineReader::LineReader() = default;
LineReader::~LineReader() = default;

namespace {

struct Variable {
    const char *name, *value;
};

// Polarity is equal already; words that were read must not change how later lines are read.
constexpr Variable variables[] {
    { "tessedit_do_invert", "0" },
    { "tessedit_enable_doc_dict", "0" },
};

// The dictionaries are what correction by the language consists of; they can only be left out while loading.
constexpr const char *dictionaries[] { "load_system_dawg", "load_freq_dawg", "load_number_dawg", "load_punc_dawg" };

/// Before digits to the base of 16 the models, which know words, prefer a letter to the zero.
void correctHexadecimalZero(QList<LineReader::Sign> &signs)
{
    static const QRegularExpression letter(QStringLiteral("^[(\\[{\"']?O(?=x[0-9A-Fa-f]{2,})"));
    QString text;
    for (const LineReader::Sign &sign : signs)
        text += sign.text.size() == 1 ? sign.text : QStringLiteral(" "); // one letter a sign
    if (const auto match = letter.match(text); match.hasMatch())
        signs[match.capturedEnd() - 1].text = QStringLiteral("0");
}

/// Reads the signs of a word, and gives it their mean confidence; Tesseract's own figure is that of the worst one,
/// which says little of names and numbers.
LineReader::Word wordAt(const tesseract::ResultIterator &at, double left, double right)
{
    LineReader::Word word { {}, left, right };
    tesseract::ResultIterator sign(at);
    do {
        const std::unique_ptr<char[]> text(sign.GetUTF8Text(tesseract::RIL_SYMBOL));
        int signLeft = 0, top = 0, signRight = 0, bottom = 0;
        if (!text || !sign.BoundingBox(tesseract::RIL_SYMBOL, &signLeft, &top, &signRight, &bottom))
            continue;
        word.signs += { QString::fromUtf8(text.get()), double(signLeft), double(signRight) };
        word.confidence += double(sign.Confidence(tesseract::RIL_SYMBOL));
    } while (!sign.IsAtFinalElement(tesseract::RIL_WORD, tesseract::RIL_SYMBOL) && sign.Next(tesseract::RIL_SYMBOL));
    word.confidence /= std::max(1.0, double(word.signs.size()));
    correctHexadecimalZero(word.signs);
    for (const LineReader::Sign &each : word.signs)
        word.text += each.text;
    return word;
}

QList<LineReader::Word> wordsBy(tesseract::TessBaseAPI &api, const QImage &strip, const Cancellation &cancellation)
{
    api.SetImage(strip.constBits(), strip.width(), strip.height(), 1, int(strip.bytesPerLine()));
    api.SetSourceResolution(300);
    tesseract::ETEXT_DESC monitor;
    monitor.cancel = [](void *wanted, int) { return static_cast<const Cancellation *>(wanted)->isCancelled(); };
    monitor.cancel_this = const_cast<Cancellation *>(&cancellation);
    if (api.Recognize(&monitor) != 0 || cancellation.isCancelled())
        return {};
    QList<LineReader::Word> words;
    const std::unique_ptr<tesseract::ResultIterator> at(api.GetIterator());
    if (!at)
        return words;
    do {
        int left = 0, top = 0, right = 0, bottom = 0;
        if (!at->BoundingBox(tesseract::RIL_WORD, &left, &top, &right, &bottom))
            continue;
        if (LineReader::Word word = wordAt(*at, left, right); !word.text.isEmpty())
            words += std::move(word);
    } while (at->Next(tesseract::RIL_WORD));
    return words;
}

qsizetype accentsIn(const QString &text)
{
    return std::ranges::count_if(text.normalized(QString::NormalizationForm_D),
        [](QChar sign) { return sign.category() == QChar::Mark_NonSpacing; });
}

QString withoutAccents(const QString &text)
{
    return text.normalized(QString::NormalizationForm_D).removeIf([](QChar sign) {
        return sign.category() == QChar::Mark_NonSpacing;
    });
}

/// The first model is content with a word that is right but for the accents that its language lacks; a model that
/// knows them does not invent any.
void takeAccents(QList<LineReader::Word> &words, const QList<LineReader::Word> &others)
{
    for (LineReader::Word &word : words) {
        const auto other = std::ranges::find_if(others, [&word](const LineReader::Word &each) {
            const double middle = (each.left + each.right) / 2;
            return middle > word.left && middle < word.right;
        });
        if (other != others.end() && accentsIn(other->text) > accentsIn(word.text)
            && withoutAccents(other->text) == withoutAccents(word.text))
            word = *other;
    }
}

} // namespace

std::unique_ptr<LineReader::Api> LineReader::loaded(const ReadingModels &models)
{
    auto api = std::make_unique<Api>();
    api->SetVariable("debug_file", "/dev/null"); // loading complains too, to stderr
    std::vector<std::string> names, values;
    if (models.level == TextRecognizer::Level::Fast) {
        for (const char *dictionary : dictionaries) {
            names.emplace_back(dictionary);
            values.emplace_back("0");
        }
    }
    const QByteArray languages = models.names.join(u'+').toUtf8();
    if (models.names.isEmpty()
        || api->Init(nullptr, languages.constData(), tesseract::OEM_LSTM_ONLY, nullptr, 0, &names, &values, false) != 0)
        return nullptr;
    for (const Variable &variable : variables)
        api->SetVariable(variable.name, variable.value);
    api->SetPageSegMode(tesseract::PSM_SINGLE_LINE);
    return api;
}

Result<std::unique_ptr<LineReader>> LineReader::create(const ReadingModels &models)
{
    std::unique_ptr<LineReader> reader(new LineReader);
    reader->m_api = loaded(models);
    const bool hasSeveral = models.names.size() > 1;
    if (hasSeveral)
        reader->m_reversed = loaded({ { models.names.rbegin(), models.names.rend() }, models.level });
    if (!reader->m_api || (hasSeveral && !reader->m_reversed)) {
        return Failure { QCoreApplication::translate(
            "Recognition", "The language data \"%1\" for text recognition could not be loaded.")
                             .arg(models.names.join(u'+')) };
    }
    return reader;
}

QList<LineReader::Word> LineReader::read(const QImage &strip, const Cancellation &cancellation)
{
    QList<Word> words = wordsBy(*m_api, strip, cancellation);
    if (m_reversed && !words.isEmpty())
        takeAccents(words, wordsBy(*m_reversed, strip, cancellation));
    return words;
}

} // namespace tessaly
