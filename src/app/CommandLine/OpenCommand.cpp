// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/DesktopProgram.h"

#include <QFile>

namespace tessaly {

CommandBody setUpOpen(CommandOptions &options)
{
    auto files = std::make_shared<QStringList>();
    options.inputs(*files, "FILE", "Pictures, and documents, which are folders whose names end in .tessaly");
    options.closing("They open in the Tessaly that runs, where one does.");
    return [files](CommandContext &context) {
        QByteArrayList texts { "tessaly", "--" };
        for (const QString &file : *files)
            texts += QFile::encodeName(file);
        QList<char *> arguments;
        for (QByteArray &text : texts)
            arguments += text.data();
        arguments += nullptr;
        return DesktopProgram::become(arguments.data(), context.console());
    };
}

} // namespace tessaly
