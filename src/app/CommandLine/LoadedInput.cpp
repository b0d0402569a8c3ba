// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/LoadedInput.h"

#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/MarkCheck.h"
#include "app/CommandLine/Text.h"
#include "core/Document/TessalyDocument.h"
#include "core/Export/FlattenService.h"
#include "core/Rendering/FontUse.h"

#include <QFileInfo>

#include <cmath>

namespace tessaly {

namespace {

/// A stream may be as long as the pixels that are read at the most, and a little more for what is not pixels.
qint64 maxImageBytes(const ImageReadOptions &options) { return options.maxPixels * 4 + (1 << 20); }

Result<RasterImage> readPicture(const QString &path, const ImageReadOptions &options)
{
    const QFileInfo file(path);
    if (file.isDir())
        return Failure { Text::tr("%1 is a folder and no Tessaly document.").arg(path) };
    if (path != u"-" && file.isFile())
        return readImageFile(path, options);
    const auto bytes = ByteStream::readAllOf(path, maxImageBytes(options));
    if (!bytes)
        return bytes.failure();
    return readImage(*bytes, ByteStream::displayName(path), options);
}

struct Opened {
    AnnotationDocument document;
    RasterImage image;
    std::optional<LoadedInput::Origin> origin;
};

/// The document's own sentence, with what exactly is wrong after it.
QString sentenceOf(const TessalyDocument::Failure &failure)
{
    QString sentence = failure.description();
    if (!failure.detail.isEmpty())
        sentence += u' ' + failure.detail;
    return sentence;
}

Result<Opened> openDocument(const QString &path, const ImageReadOptions &options, CommandContext &context)
{
    auto contents = TessalyDocument::contents(path, options);
    if (!contents)
        return Failure { sentenceOf(contents.failure()) };
    AnnotationDocument &document = contents->document;
    const LoadedInput::Origin origin { document.version, document.generator, document.skippedAnnotations };
    if (document.version > AnnotationDocument::currentVersion)
        context.console().message(path,
            Text::tr("This document comes from a newer version of Tessaly; what this version "
                     "does not understand is left out."));
    if (const auto remark = MarkCheck::setAside(document, options))
        context.console().message(path, *remark);
    return Opened { std::move(document), std::move(contents->image), origin };
}

Result<Opened> open(const QString &path, const ImageReadOptions &options, CommandContext &context)
{
    if (path != u"-" && TessalyDocument::isDocument(path))
        return openDocument(path, options, context);
    auto image = readPicture(path, options);
    if (!image)
        return image.failure();
    return Opened { {}, std::move(*image), {} };
}

} // namespace

Result<LoadedInput> LoadedInput::read(
    const QString &path, const InputOptions &options, const Overrides &overrides, CommandContext &context)
{
    auto opened = open(path, options.reading(), context);
    if (!opened)
        return opened.failure();
    overrides.applyTo(opened->document);
    auto store = std::make_unique<AnnotationStore>(opened->image, context.settings());
    store->restore({ .annotations = std::move(opened->document.annotations),
        .image = std::move(opened->image),
        .nextStampNumber = opened->document.nextStampNumber,
        .frame = std::move(opened->document.frame),
        .watermark = std::move(opened->document.watermark) });
    return LoadedInput { std::move(store), std::move(opened->origin) };
}

Outcome LoadedInput::checkFinishedSize(qint64 maxPixels) const
{
    const QSizeF canvas = store->frameLayout().canvasSize * store->pixelScale();
    const double pixels = canvas.width() * canvas.height();
    if (pixels <= static_cast<double>(maxPixels)) // false for what is not a number
        return Done {};
    return Failure {
        Text::tr("The finished picture would have more than %1 pixels; --max-pixels raises the limit.").arg(maxPixels)
    };
}

Result<RasterImage> LoadedInput::flattened(CommandContext &context, qint64 maxPixels) const
{
    const Outcome size = checkFinishedSize(maxPixels);
    if (!size)
        return size.failure();
    if (needsFonts(store->annotations(), store->watermark()))
        context.requireApplication();
    auto finished = FlattenService::flatten(*store);
    if (!finished)
        return Failure { Text::tr("The image couldn't be rendered with its annotations.") };
    return std::move(*finished);
}

} // namespace tessaly
