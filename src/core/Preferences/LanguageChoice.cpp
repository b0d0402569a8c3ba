// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/LanguageChoice.h"

#include "core/Preferences/AppLanguages.h"
#include "core/Preferences/Settings.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace tessaly::LanguageChoice {

namespace {

constexpr QLatin1StringView followsSystem("system");

bool isMeant(const AppLanguage &language, const QString &name)
{
    const QString code = QString::fromLatin1(language.code);
    if (code == followsSystem)
        return false;
    const QLocale::Language known = QLocale::codeToLanguage(code);
    static const QRegularExpression region(QStringLiteral("[-_.@].*"));
    return QLocale::codeToLanguage(QString(name).remove(region)) == known
        || name.compare(QLocale::languageToString(known), Qt::CaseInsensitive) == 0
        || name.compare(QString::fromUtf8(language.ownName), Qt::CaseInsensitive) == 0;
}

/// As it is stored: as the value of the setting, an older spelling would read as the default.
std::optional<QString> stored(const Settings &settings)
{
    const auto bytes = settings.value(SettingKey<SettingKeys::Bytes> { SettingKeys::appLanguage.name, {} });
    return bytes ? std::optional(QString::fromUtf8(*bytes)) : std::nullopt;
}

} // namespace

QString normalized(const QString &name)
{
    const auto language = std::ranges::find_if(
        appLanguages, [&name](const AppLanguage &each) { return isMeant(each, name.trimmed()); });
    return language == std::end(appLanguages) ? QString(followsSystem) : QString::fromLatin1(language->code);
}

QString shown(const QString &chosen, const QStringList &systemLanguages)
{
    for (const QString &wanted : QStringList(chosen) + systemLanguages) {
        if (const QString code = normalized(wanted); code != followsSystem)
            return code;
    }
    return QStringLiteral("en");
}

QString shown(const Settings &settings)
{
    return shown(stored(settings).value_or(followsSystem), QLocale::system().uiLanguages());
}

Outcome migrate(Settings &settings)
{
    const auto choice = stored(settings);
    if (!choice)
        return Done {};
    const QString &name = *choice;
    const QString code = normalized(name);
    if (code == name || (code == followsSystem && !name.trimmed().isEmpty()))
        return Done {};
    return settings.set(SettingKeys::appLanguage, code);
}

} // namespace tessaly::LanguageChoice
