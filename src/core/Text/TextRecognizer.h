// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"
#include "core/Text/RecognizedContent.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace tessaly {

/// A recognition under way. Destroying it cancels it: its result will not come, and its work ends soon.
class RecognitionTask {
public:
    virtual ~RecognitionTask();
};

/// Reads text and codes out of pictures, off the main thread. All calls and answers are on the main thread.
class TextRecognizer {
public:
    /// Accurate corrects what it read by the language; fast does not.
    enum class Level { Accurate = 0, Fast = 1 };
    enum class Codes { Skip, Detect };
    /// One heavy recognition runs at a time. What the user waits for goes before what fills the history, also when
    /// that has begun: it is then done again later.
    enum class Urgency { User, Background };

    struct Request {
        RasterImage image;
        Level level = Level::Accurate;
        Codes codes = Codes::Detect;
        Urgency urgency = Urgency::User;
    };
    using Finished = std::function<void(Result<RecognizedContent>)>;

    virtual ~TextRecognizer();

    /// Starts a recognition. `finished` is called once, later, from the event loop, unless the task is destroyed
    /// before.
    [[nodiscard]] virtual std::unique_ptr<RecognitionTask> recognize(Request request, Finished finished) = 0;

    /// Makes the first recognition as fast as the others.
    virtual void prewarm() = 0;

    /// Whether anything can be recognised on this machine.
    virtual bool isSupported() const = 0;

    /// Called with a sentence that the user should see once, such as a wanted language that is not installed.
    std::function<void(const QString &sentence)> notice = [](const QString &) {};

    /// Which of the `supported` languages to read, by the user's `preferred` ones in their order, all as BCP 47 names
    /// ("en-US", "es"): for each the one that is the same with script and territory filled in, else the first of the
    /// same language. Empty when none fits.
    static QStringList preferredLanguages(const QStringList &preferred, const QStringList &supported);
};

} // namespace tessaly
