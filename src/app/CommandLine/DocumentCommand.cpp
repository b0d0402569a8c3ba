// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/InterruptionGuard.h"
#include "app/CommandLine/LoadedInput.h"
#include "app/CommandLine/OutputTargets.h"
#include "app/CommandLine/Text.h"
#include "core/Document/TessalyDocument.h"
#include "core/Rendering/FontUse.h"

#include <QDir>
#include <QFileInfo>

namespace tessaly {

namespace {

struct DocumentOptions {
    QString image;
    QString output;
    InputOptions input;
};

Outcome writeDocument(
    const DocumentOptions &options, const QString &path, const Overrides &overrides, CommandContext &context)
{
    const auto loaded = LoadedInput::read(options.image, options.input, overrides, context);
    if (!loaded)
        return loaded.failure();
    if (const Outcome size = loaded->checkFinishedSize(options.input.reading().maxPixels); !size)
        return size;
    if (needsFonts(loaded->store->annotations(), loaded->store->watermark()))
        context.requireApplication(); // for the thumbnail
    const auto package = TessalyDocument::package(*loaded->store);
    if (!package)
        return Failure { package.failure().description() };
    const InterruptionGuard guard;
    return TessalyDocument::write(*package, path);
}

ExitStatus runDocument(const DocumentOptions &options, CommandContext &context)
{
    const QString output = QDir::cleanPath(options.output);
    if (QFileInfo(output).suffix() != u"tessaly") {
        context.console().message(options.output, Text::tr("A document's name ends in .tessaly."));
        return ExitStatus::WrongUsage;
    }
    const auto overrides = Overrides::read(options.input, context.console());
    if (!overrides)
        return ExitStatus::Failed;
    auto targets = OutputTargets::create(output, QStringList(options.image) + options.input.files());
    const auto path = targets ? targets->pathFor(options.image, {}) : Result<QString>(targets.failure());
    const Outcome written = path ? writeDocument(options, *path, *overrides, context) : Outcome(path.failure());
    if (written)
        return ExitStatus::Done;
    context.console().message(ByteStream::displayName(options.image), written.failure().message);
    return ExitStatus::Failed;
}

} // namespace

CommandBody setUpDocument(CommandOptions &options)
{
    auto chosen = std::make_shared<DocumentOptions>();
    options.input(chosen->image, "IMAGE", "Image, or a document to start from; - is standard input");
    options.required(chosen->output, "-o,--output", "OUT.tessaly", "Document to write; one of that name is replaced");
    chosen->input.declareAnnotations(options);
    chosen->input.declareFrame(options);
    chosen->input.declareWatermark(options);
    chosen->input.declareScale(options);
    chosen->input.declareMaxPixels(options);
    options.closing("Example:\n"
                    "  tessaly document shot.png -o shot.tessaly --frame default");
    return [chosen](CommandContext &context) { return runDocument(*chosen, context); };
}

} // namespace tessaly
