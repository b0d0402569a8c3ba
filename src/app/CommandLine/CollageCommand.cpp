// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/LoadedInput.h"
#include "app/CommandLine/OutputTargets.h"
#include "app/CommandLine/PictureEncoding.h"
#include "app/CommandLine/Text.h"
#include "core/Imaging/Collage.h"
#include "core/Imaging/ColorHex.h"

#include <QRegularExpression>

namespace tessaly {

namespace {

struct CollageOptions {
    QStringList inputs;
    QString layout;
    QString output;
    std::optional<double> gap;
    std::optional<QString> background;
    std::optional<double> quality;
    InputOptions input;
};

constexpr std::pair<QLatin1StringView, CollageLayout> layouts[] = {
    { QLatin1StringView("side-by-side"), CollageLayout::SideBySide },
    { QLatin1StringView("stacked"), CollageLayout::Stacked },
};

std::optional<CollageLayout> layoutNamed(const QString &name)
{
    for (const auto &[word, layout] : layouts) {
        if (name == word)
            return layout;
    }
    return std::nullopt;
}

/// What is wrong with options that are each well formed; empty when they fit together.
std::optional<QString> usageProblem(const CollageOptions &options)
{
    static const QRegularExpression color(QStringLiteral("^#?([0-9A-Fa-f]{3}|[0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})$"));
    if (!layoutNamed(options.layout))
        return Text::tr("--layout: \"%1\" is neither side-by-side nor stacked.").arg(options.layout);
    if (options.background && !color.match(*options.background).hasMatch())
        return Text::tr("--background: \"%1\" is no colour like #FFFFFF.").arg(*options.background);
    if (options.inputs.count(QStringLiteral("-")) > 1)
        return Text::tr("Standard input can be read once only.");
    if (options.output == u"-" && Console::printsToTerminal())
        return Text::tr("Standard output is a terminal, which cannot show a picture.");
    return std::nullopt;
}

/// A failure that names the input it is about.
Failure about(const QString &input, const Failure &failure)
{
    const QString name = ByteStream::displayName(input);
    return { failure.message.contains(name) ? failure.message : name + QStringLiteral(": ") + failure.message };
}

/// Every picture with its marks, frame and watermark; the first that cannot be had is the failure.
Result<QList<RasterImage>> pictures(const CollageOptions &options, CommandContext &context)
{
    QList<RasterImage> images;
    for (const QString &input : options.inputs) {
        context.console().progress(
            static_cast<int>(images.size()), static_cast<int>(options.inputs.size()), ByteStream::displayName(input));
        const auto loaded = LoadedInput::read(input, options.input, {}, context);
        if (!loaded)
            return about(input, loaded.failure());
        auto picture = loaded->flattened(context, options.input.reading().maxPixels);
        if (!picture)
            return about(input, picture.failure());
        images += std::move(*picture);
    }
    context.console().endProgress();
    return images;
}

Outcome makeCollage(const CollageOptions &options, CommandContext &context)
{
    auto targets = OutputTargets::create(options.output, options.inputs);
    if (!targets)
        return targets.failure();
    const auto path = targets->singlePath();
    if (!path)
        return path.failure();
    const auto images = pictures(options, context);
    if (!images)
        return images.failure();
    const qint64 maxPixels = options.input.reading().maxPixels;
    const auto collage
        = Collage::combine(*images, *layoutNamed(options.layout), options.gap.value_or(Collage::usualGap),
            options.background ? ColorHex::toColor(*options.background) : Qt::white, maxPixels);
    if (!collage)
        return Failure {
            Text::tr("The collage would have more than %1 pixels; --max-pixels raises the limit.").arg(maxPixels)
        };
    const auto bytes
        = encodePicture(*collage, targets->format(std::nullopt, context.settings()), options.quality, context);
    return bytes ? targets->write(*path, *bytes) : Outcome(bytes.failure());
}

ExitStatus runCollage(const CollageOptions &options, CommandContext &context)
{
    if (const auto problem = usageProblem(options)) {
        context.console().message(*problem);
        return ExitStatus::WrongUsage;
    }
    return context.report(makeCollage(options, context));
}

} // namespace

CommandBody setUpCollage(CommandOptions &options)
{
    auto chosen = std::make_shared<CollageOptions>();
    options.inputs(chosen->inputs, "IMAGE", "Images or .tessaly documents, in their order; - is standard input");
    options.required(chosen->layout, "--layout", "side-by-side|stacked",
        "Whether the pictures share their height or their width: the largest among them, at most 1200 points");
    options.required(chosen->output, "-o,--output", "OUT",
        "Picture to write; its extension says the format, and without one it is the format last chosen");
    options.number(chosen->gap, "--gap", { 0, 10000 }, "Points between the pictures; by default 12");
    options.optional(chosen->background, "--background", "#RRGGBB", "Colour of the gaps; by default #FFFFFF, white");
    options.number(chosen->quality, "--quality", { 0, 1 },
        "Quality of JPEG and WebP, 0 to 1; by default the quality last chosen, else 0.9");
    chosen->input.declareScale(options);
    chosen->input.declareMaxPixels(options);
    options.closing("A picture that cannot be read is named, and no collage is written.\n"
                    "Example:\n"
                    "  tessaly collage --layout stacked --gap 8 first.png second.png -o both.png");
    return [chosen](CommandContext &context) { return runCollage(*chosen, context); };
}

} // namespace tessaly
