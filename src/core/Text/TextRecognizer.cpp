// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/TextRecognizer.h"

#include <QLocale>

#include <algorithm>

namespace tessaly {

namespace {

/// A language's name in parts.
struct LanguageName {
    QString language, script, territory;

    bool operator==(const LanguageName &) const = default;
};

/// Each part in its one spelling; a name that Qt does not know keeps its own.
LanguageName parsed(const QString &name)
{
    QStringList parts = QString(name).replace(u'_', u'-').split(u'-');
    LanguageName result { parts.takeFirst().toLower(), {}, {} };
    if (const auto known = QLocale::codeToLanguage(result.language); known != QLocale::AnyLanguage)
        result.language = QLocale::languageToCode(known);
    for (const QString &part : std::as_const(parts)) {
        if (const auto script = QLocale::codeToScript(part); script != QLocale::AnyScript)
            result.script = QLocale::scriptToCode(script);
        else if (const auto territory = QLocale::codeToTerritory(part); territory != QLocale::AnyTerritory)
            result.territory = QLocale::territoryToCode(territory);
    }
    return result;
}

/// With script and territory filled in as they are likely.
LanguageName maximal(LanguageName name)
{
    const auto language = QLocale::codeToLanguage(name.language);
    if (language == QLocale::AnyLanguage)
        return name;
    if (name.script.isEmpty()) {
        const QLocale likely(language, QLocale::AnyScript, QLocale::codeToTerritory(name.territory));
        name.script = QLocale::scriptToCode(likely.script());
    }
    if (name.territory.isEmpty()) {
        const QLocale likely(language, QLocale::codeToScript(name.script), QLocale::AnyTerritory);
        name.territory = QLocale::territoryToCode(likely.territory());
    }
    return name;
}

} // namespace

RecognitionTask::~RecognitionTask() = default;
TextRecognizer::~TextRecognizer() = default;

QStringList TextRecognizer::preferredLanguages(const QStringList &preferred, const QStringList &supported)
{
    QStringList chosen;
    for (const QString &wanted : preferred) {
        const LanguageName name = maximal(parsed(wanted));
        auto found = std::ranges::find(supported, name, [](const QString &each) { return maximal(parsed(each)); });
        if (found == supported.end())
            found = std::ranges::find(
                supported, name.language, [](const QString &each) { return parsed(each).language; });
        if (found != supported.end() && !chosen.contains(*found))
            chosen += *found;
    }
    return chosen;
}

} // namespace tessaly
