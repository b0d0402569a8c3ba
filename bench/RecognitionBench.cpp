// SPDX-License-Identifier: GPL-3.0-or-later
// How much of an interface is read wrongly, over forty screenshots of known text, and how long a whole screen takes
// against Tesseract as it comes, on the screen enlarged twice.
//
// --verbose prints each text that was read wrongly; --image FILE prints what is read in a picture.
#include "bench/support/CharacterErrors.h"
#include "bench/support/InterfaceText.h"
#include "bench/support/Limits.h"
#include "platform/recognition/Engine/RecognitionEngine.h"
#include "platform/recognition/GrayPicture.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <tesseract/baseapi.h>

#include <unistd.h>

using namespace tessaly;

namespace {

const RecognitionEngine::Options options { { { QStringLiteral("eng") } }, TextRecognizer::Codes::Skip };

RecognizedContent readBy(RecognitionEngine &engine, const QImage &pixels)
{
    auto result = engine.read(grayPicture(pixels), options, {});
    if (!result) {
        std::fprintf(stderr, "%s\n", qPrintable(result.failure().message));
        std::exit(1);
    }
    return *std::move(result);
}

/// What was read of each painted text: the words whose middle lies on it. Words elsewhere were read without being
/// there.
bench::CharacterErrors errorsOf(const bench::InterfaceScreenshot &shot, const RecognizedContent &content, bool verbose)
{
    const QSizeF size = shot.image.pixelSize();
    QList<QList<RecognizedContent::Word>> read(shot.texts.size());
    bench::CharacterErrors errors;
    for (const RecognizedContent::Line &line : content.lines) {
        for (const RecognizedContent::Word &word : line.words) {
            const QPointF middle(
                word.boundingBox.center().x() * size.width(), word.boundingBox.center().y() * size.height());
            const auto text = std::ranges::find_if(
                shot.texts, [middle](const bench::PaintedText &painted) { return painted.pixelBox.contains(middle); });
            if (text != shot.texts.end()) {
                read[text - shot.texts.begin()] += word;
                continue;
            }
            errors.add(QString(), word.text);
            if (verbose)
                std::printf("    not there    %s\n", qPrintable(word.text));
        }
    }
    for (qsizetype i = 0; i < read.size(); ++i) {
        std::ranges::stable_sort(read[i], {}, [](const auto &word) { return word.boundingBox.left(); });
        QStringList words;
        for (const RecognizedContent::Word &word : read[i])
            words += word.text;
        bench::CharacterErrors own;
        own.add(shot.texts[i].text, words.join(u' '));
        if (verbose && own.errors() > 0)
            std::printf("    %-50s %s\n", qPrintable(shot.texts[i].text), qPrintable(words.join(u' ')));
        errors.add(own);
    }
    return errors;
}

const char *nameOf(bench::InterfaceLook::Theme theme)
{
    static constexpr std::array names { "light", "dark", "light, dark panels" };
    return names[std::size_t(theme)];
}

struct Accuracy {
    bench::CharacterErrors all, small; ///< small: ten pixels at one pixel a point
};

Accuracy measureAccuracy(RecognitionEngine &engine, bool verbose)
{
    Accuracy accuracy;
    std::printf(
        "%5s %5s %-18s %-18s %6s %6s %7s %6s\n", "pixel", "scale", "family", "theme", "chars", "errors", "CER %", "ms");
    for (const bench::InterfaceLook &look : bench::interfaceLooks()) {
        const auto shot = bench::interfaceScreenshot(look, { 800, 600 });
        QElapsedTimer timer;
        timer.start();
        const RecognizedContent content = readBy(engine, shot.image.pixels);
        const auto milliseconds = timer.elapsed();
        const auto errors = errorsOf(shot, content, verbose);
        std::printf("%5d %5.0f %-18s %-18s %6lld %6lld %7.2f %6lld\n", look.pixelHeight, look.scale,
            qPrintable(look.family), nameOf(look.theme), qlonglong(errors.characters()), qlonglong(errors.errors()),
            errors.percent(), qlonglong(milliseconds));
        std::fflush(stdout);
        accuracy.all.add(errors);
        if (look.pixelHeight == 10 && look.scale == 1)
            accuracy.small.add(errors);
    }
    return accuracy;
}

void printKinds(const bench::CharacterErrors &errors)
{
    QList<std::pair<int, QString>> kinds;
    for (auto kind = errors.kinds().begin(); kind != errors.kinds().end(); ++kind)
        kinds.emplace_back(kind.value(), kind.key());
    std::ranges::sort(kinds, std::greater());
    std::printf("most frequent errors (written>read):");
    for (const auto &[count, kind] : kinds.mid(0, 24))
        std::printf("  %s %d", qPrintable(kind), count);
    std::printf("\n");
}

/// Seconds that Tesseract takes as it comes: the gray picture enlarged twice, its own page layout.
double plainTesseract(tesseract::TessBaseAPI &api, const QImage &pixels)
{
    QElapsedTimer timer;
    timer.start();
    const QImage gray = grayPicture(pixels);
    const QImage enlarged = gray.scaled(gray.size() * 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                .convertToFormat(QImage::Format_Grayscale8);
    api.SetImage(enlarged.constBits(), enlarged.width(), enlarged.height(), 1, int(enlarged.bytesPerLine()));
    api.SetSourceResolution(192);
    api.Recognize(nullptr);
    return double(timer.nsecsElapsed()) / 1e9;
}

/// Seconds of ours ÷ seconds of Tesseract as it comes, on a whole screen, the medians of interleaved runs.
double measureTime(RecognitionEngine &engine)
{
    const auto shot = bench::interfaceScreenshot(
        { 13, bench::InterfaceLook::Theme::LightWithDarkPanels, QStringLiteral("DejaVu Sans") }, { 1600, 900 });
    tesseract::TessBaseAPI api;
    if (api.Init(nullptr, "eng", tesseract::OEM_LSTM_ONLY) != 0)
        std::exit(1);
    api.SetPageSegMode(tesseract::PSM_AUTO);
    RecognitionEngine alone(1);
    readBy(alone, shot.image.pixels);
    std::vector<double> plain, own, single;
    for (int run = 0; run < 5; ++run) {
        plain.push_back(plainTesseract(api, shot.image.pixels));
        const auto timed = [&shot](RecognitionEngine &by) {
            QElapsedTimer timer;
            timer.start();
            readBy(by, shot.image.pixels);
            return double(timer.nsecsElapsed()) / 1e9;
        };
        own.push_back(timed(engine));
        single.push_back(timed(alone));
    }
    const double plainMedian = bench::quantile(plain, 0.5), ownMedian = bench::quantile(own, 0.5);
    std::printf("1600x900: Tesseract as it comes %.0f ms, Tessaly %.0f ms (%d threads), %.0f ms (1 thread)\n",
        plainMedian * 1e3, ownMedian * 1e3, RecognitionEngine::defaultThreads(), bench::quantile(single, 0.5) * 1e3);
    return ownMedian / plainMedian;
}

} // namespace

int main(int argc, char **argv)
{
    // The threads of OpenMP read this before main: only a program that starts with it is free of them.
    if (qgetenv("OMP_THREAD_LIMIT") != "1") {
        qputenv("OMP_THREAD_LIMIT", "1");
        ::execv("/proc/self/exe", argv);
        return 1;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    RecognitionEngine engine;
    if (const auto image = arguments.indexOf(QStringLiteral("--image")); image > 0) {
        for (const auto &line : readBy(engine, QImage(arguments.value(image + 1))).lines)
            std::printf("%s\n", qPrintable(line.text));
        return 0;
    }
    if (const auto look = arguments.indexOf(QStringLiteral("--paint")); look > 0) {
        const int number = arguments.value(look + 1).toInt();
        return bench::interfaceScreenshot(bench::interfaceLooks()[number], { 800, 600 })
                   .image.pixels.save(arguments.value(look + 2))
            ? 0
            : 1;
    }
    readBy(engine, QImage(40, 40, QImage::Format_RGB32)); // loads the models
    const Accuracy accuracy = measureAccuracy(engine, arguments.contains(QStringLiteral("--verbose")));
    printKinds(accuracy.all);
    bench::Limits limits;
    limits.check("character error rate of all", accuracy.all.percent(), 1.2, "%");
    limits.check("character error rate of 10 pixels at one pixel a point", accuracy.small.percent(), 4, "%");
    limits.check("time of a 1600x900 screen / Tesseract as it comes", measureTime(engine), 2, "");
    return limits.exitStatus();
}
