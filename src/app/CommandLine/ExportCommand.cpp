// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ExportCommand.h"

#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/LoadedInput.h"
#include "app/CommandLine/OutputTargets.h"
#include "app/CommandLine/PictureEncoding.h"
#include "app/CommandLine/Text.h"

#include <QFileInfo>

namespace tessaly {

namespace {

/// One run of `export` over its inputs.
class ExportRun {
public:
    ExportRun(const ExportOptions &options, CommandContext &context) : m_options(options), m_context(context) { }

    ExitStatus run();

private:
    std::optional<QString> usageProblem() const;
    ExitStatus exportAll(OutputTargets &targets, const Overrides &overrides, ExportFormat format);
    Outcome exportOne(const QString &input, OutputTargets &targets, const Overrides &overrides, ExportFormat format);
    void step(const QString &input);

    const ExportOptions &m_options;
    CommandContext &m_context;
    int m_stepsDone = 0;
};

constexpr int stepsPerInput = 4; // read, draw, encode, write

/// What is wrong with options that are each well formed; empty when they fit together.
std::optional<QString> ExportRun::usageProblem() const
{
    const QFileInfo output(m_options.output);
    const bool standardOutput = m_options.output == u"-";
    if (m_options.format && !formatOfExtension(*m_options.format))
        return Text::tr("--format: \"%1\" is none of png, jpeg, webp, pdf, tiff, gif, bmp.").arg(*m_options.format);
    if (output.suffix() == u"tessaly")
        return Text::tr("%1: export writes pictures; tessaly document writes documents.").arg(m_options.output);
    if (m_options.inputs.size() > 1 && (standardOutput || (output.exists() && !output.isDir())))
        return Text::tr("Several inputs need a folder as output, and %1 is none.").arg(m_options.output);
    if (m_options.inputs.count(QStringLiteral("-")) > 1)
        return Text::tr("Standard input can be read once only.");
    if (standardOutput && Console::printsToTerminal())
        return Text::tr("Standard output is a terminal, which cannot show a picture.");
    return std::nullopt;
}

ExitStatus ExportRun::run()
{
    Console &console = m_context.console();
    if (const auto problem = usageProblem()) {
        console.message(*problem);
        return ExitStatus::WrongUsage;
    }
    auto targets = OutputTargets::create(m_options.output, m_options.inputs + m_options.input.files());
    if (targets && m_options.inputs.size() > 1 && !targets->isFolder())
        targets = Failure { Text::tr("%1 cannot be written: the folder does not exist.").arg(m_options.output) };
    if (!targets) {
        console.message(m_options.output, targets.failure().message);
        return ExitStatus::Failed;
    }
    const auto overrides = Overrides::read(m_options.input, console);
    if (!overrides)
        return ExitStatus::Failed;
    const auto chosen = m_options.format ? formatOfExtension(*m_options.format) : std::nullopt;
    return exportAll(*targets, *overrides, targets->format(chosen, m_context.settings()));
}

ExitStatus ExportRun::exportAll(OutputTargets &targets, const Overrides &overrides, ExportFormat format)
{
    ExitStatus status = ExitStatus::Done;
    for (qsizetype index = 0; index < m_options.inputs.size(); ++index) {
        const QString &input = m_options.inputs[index];
        m_stepsDone = static_cast<int>(index) * stepsPerInput;
        const Outcome exported = exportOne(input, targets, overrides, format);
        if (!exported) {
            m_context.console().message(ByteStream::displayName(input), exported.failure().message);
            status = ExitStatus::Failed;
        }
    }
    m_context.console().endProgress();
    return status;
}

Outcome ExportRun::exportOne(
    const QString &input, OutputTargets &targets, const Overrides &overrides, ExportFormat format)
{
    step(input);
    const auto path = targets.pathFor(input, extension(format));
    if (!path)
        return path.failure();
    auto loaded = LoadedInput::read(input, m_options.input, overrides, m_context);
    if (!loaded)
        return loaded.failure();
    step(input);
    auto picture = loaded->flattened(m_context, m_options.input.reading().maxPixels);
    loaded->store.reset(); // the encoder needs the memory
    if (!picture)
        return picture.failure();
    step(input);
    const auto bytes = encodePicture(*picture, format, m_options.quality, m_context);
    if (!bytes)
        return bytes.failure();
    step(input);
    return targets.write(*path, *bytes, input);
}

void ExportRun::step(const QString &input)
{
    const int total = static_cast<int>(m_options.inputs.size()) * stepsPerInput;
    m_context.console().progress(m_stepsDone++, total, ByteStream::displayName(input));
}

} // namespace

void ExportOptions::declare(CommandOptions &options)
{
    options.required(output, "-o,--output", "OUTPUT",
        "File to write, or a folder for results named like the inputs; - is standard output");
    options.optional(format, "--format", "FORMAT",
        "png, jpeg, webp, pdf, tiff, gif or bmp; by default what OUTPUT's extension says, else the format last chosen");
    options.number(quality, "--quality", { 0, 1 },
        "Quality of JPEG and WebP, 0 to 1; WebP of 1 loses nothing; by default the quality last chosen, else 0.9");
    input.declareAnnotations(options);
    input.declareFrame(options);
    input.declareWatermark(options);
}

ExitStatus runExport(const ExportOptions &options, CommandContext &context)
{
    return ExportRun(options, context).run();
}

CommandBody setUpExport(CommandOptions &options)
{
    auto chosen = std::make_shared<ExportOptions>();
    options.inputs(chosen->inputs, "INPUT", "Images or .tessaly documents; - is an image on standard input");
    chosen->declare(options);
    chosen->input.declareScale(options);
    chosen->input.declareMaxPixels(options);
    options.closing("Examples:\n"
                    "  tessaly export shot.png -o shot.webp --annotations marks.json\n"
                    "  tessaly export *.tessaly -o pictures/ --format jpeg --quality 0.8\n"
                    "  tessaly export - -o - --frame default < shot.png > framed.png");
    return [chosen](CommandContext &context) { return runExport(*chosen, context); };
}

} // namespace tessaly
