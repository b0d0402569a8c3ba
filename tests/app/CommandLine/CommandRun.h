// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/CommandLine.h"
#include "tests/app/CommandLine/Program.h"

namespace tessaly::test {

/// Runs a command in this process, over what the test stands in for the desktop.
Finished runCommand(const QStringList &arguments, const CommandEnvironment &environment);

/// Answers what the test says of a picture, from the event loop.
class ScriptedRecognizer final : public TextRecognizer {
public:
    using Answer = std::function<Result<RecognizedContent>(const Request &)>;
    explicit ScriptedRecognizer(Answer answer) : m_answer(std::move(answer)) { }

    std::unique_ptr<RecognitionTask> recognize(Request request, Finished finished) override;
    void prewarm() override { }
    bool isSupported() const override { return true; }

private:
    Answer m_answer;
};

} // namespace tessaly::test
