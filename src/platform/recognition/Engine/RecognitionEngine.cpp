// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/RecognitionEngine.h"

#include "platform/recognition/Engine/CodeReader.h"
#include "platform/recognition/Engine/InkPicture.h"
#include "platform/recognition/Engine/LineStrip.h"
#include "platform/recognition/Engine/TextLines.h"

#include <sys/resource.h>

#include <atomic>
#include <thread>

namespace tessaly {

namespace {

// Clean words have 90 and more. Names and numbers that are in no dictionary have less, and icons that are taken for
// text still less; those are rarely longer than two signs.
constexpr double minimumConfidence = 30, minimumShortConfidence = 50, minimumSignConfidence = 80;
constexpr int shortLine = 3;
constexpr int backgroundNiceness = 15;

QRectF normalised(const QRectF &box, QSizeF size)
{
    const QRectF part(
        box.x() / size.width(), box.y() / size.height(), box.width() / size.width(), box.height() / size.height());
    return part & QRectF(0, 0, 1, 1);
}

/// The ink of the line between two columns: the height that a selection of the word is drawn with.
QRectF wordBox(const TextLine &line, const LineStrip &strip, const LineReader::Word &word)
{
    QRectF box = strip.inPicture(word.left, word.right);
    box.setTop(line.box.top());
    box.setBottom(line.box.bottom() + 1);
    return box & QRectF(line.box);
}

/// Whether a line is more likely text than a piece of a picture or a frame.
bool isText(const QString &text, double confidence)
{
    const auto letters = std::ranges::count_if(text, [](QChar sign) { return sign.isLetterOrNumber(); });
    return confidence >= (letters == 0   ? minimumSignConfidence
                   : letters < shortLine ? minimumShortConfidence
                                         : minimumConfidence);
}

/// The line that the words make up; without text when they are more likely no text at all.
RecognizedContent::Line lineOf(
    const QList<LineReader::Word> &words, const TextLine &line, const LineStrip &strip, QSize pictureSize)
{
    RecognizedContent::Line result;
    double confidence = 0, letters = 0;
    QStringList texts;
    for (const LineReader::Word &word : words) {
        confidence += word.confidence * double(word.text.size());
        letters += double(word.text.size());
        texts += word.text;
        result.words += { word.text, normalised(wordBox(line, strip, word), pictureSize) };
    }
    result.text = texts.join(u' ');
    if (letters == 0 || !isText(result.text, confidence / letters))
        return {};
    result.boundingBox = normalised(line.box, pictureSize);
    return result;
}

/// Calls `work` with each number below `count`, on as many threads as there are readers.
template <class Work>
void forEach(int count, std::size_t threads, const Work &work)
{
    std::atomic<int> next = 0;
    const auto run = [&](std::size_t thread) {
        for (int i = next++; i < count; i = next++)
            work(thread, i);
    };
    std::vector<std::jthread> others;
    for (std::size_t thread = 1; thread < threads && int(thread) < count; ++thread)
        others.emplace_back(run, thread);
    run(0);
}

} // namespace

int RecognitionEngine::defaultThreads() { return std::clamp(int(std::thread::hardware_concurrency()), 1, 2); }

void RecognitionEngine::lowerPriority()
{
    ::setpriority(PRIO_PROCESS, 0, backgroundNiceness); // on Linux: of the thread
}

RecognitionEngine::RecognitionEngine(int threads) : m_threads(std::max(1, threads)) { }

Outcome RecognitionEngine::load(const ReadingModels &models)
{
    if (m_loaded == models && !m_readers.empty())
        return Done {};
    m_readers.clear();
    for (int thread = 0; thread < m_threads; ++thread) {
        auto reader = LineReader::create(models);
        if (!reader) {
            m_readers.clear();
            return reader.failure();
        }
        m_readers.push_back(*std::move(reader));
    }
    m_loaded = models;
    return Done {};
}

Result<RecognizedContent> RecognitionEngine::read(
    const QImage &gray, const Options &options, const Cancellation &cancellation)
{
    const Outcome loaded = load(options.models);
    if (!loaded)
        return loaded.failure();
    QList<RecognizedContent::Code> codes;
    if (options.codes == TextRecognizer::Codes::Detect)
        codes = readCodes(gray);
    const QImage ink = cancellation.isCancelled() ? QImage() : inkPicture(gray);
    const QList<TextLine> found = textLines(ink);
    std::vector<RecognizedContent::Line> lines(std::size_t(found.size()));
    forEach(int(found.size()), m_readers.size(), [&](std::size_t thread, int i) {
        if (cancellation.isCancelled())
            return;
        const LineStrip strip = lineStrip(ink, found[i]);
        const auto words = m_readers[thread]->read(strip.pixels, cancellation);
        lines[std::size_t(i)] = lineOf(words, found[i], strip, gray.size());
    });
    return RecognizedContent::arranged({ lines.begin(), lines.end() }, codes);
}

} // namespace tessaly
