// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/TextRecognizer.h"

#include <memory>

namespace tessaly {

/// Recognition in a process of its own, `tessaly-recognition`: what it loads costs this process nothing, a picture that
/// makes it fail takes nothing along, and its memory goes back when it has been idle for a while.
class WorkerRecognizer final : public TextRecognizer {
public:
    struct Options {
        QStringList preferredLanguages; ///< BCP 47 names, the best first
        QString program = defaultProgram();
    };
    explicit WorkerRecognizer(Options options);
    ~WorkerRecognizer() override;

    /// The program beside this one, or in its libexec folder; empty when it is not installed.
    static QString defaultProgram();
    /// The languages of the user's locale settings.
    static QStringList systemLanguages();

    std::unique_ptr<RecognitionTask> recognize(Request request, Finished finished) override;
    void prewarm() override;
    bool isSupported() const override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
