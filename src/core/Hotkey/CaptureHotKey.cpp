// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/CaptureHotKey.h"

#include "core/Hotkey/KeyCodes.h"
#include "core/Preferences/HotKeyKeys.h"
#include "core/Preferences/Settings.h"

#include <QCoreApplication>
#include <QKeySequence>

namespace tessaly {

namespace {

/// In the order of the glyphs, which is not the one of the names.
struct Modifier {
    quint32 bit;
    Qt::KeyboardModifier flag;
    const char *glyph; ///< UTF-8
};
constexpr Modifier modifierTable[] = {
    { CaptureHotKey::control, Qt::MetaModifier, "⌃" },
    { CaptureHotKey::option, Qt::AltModifier, "⌥" },
    { CaptureHotKey::shift, Qt::ShiftModifier, "⇧" },
    { CaptureHotKey::command, Qt::ControlModifier, "⌘" },
};

struct ModifierName {
    quint32 bit;
    const char *context; ///< the names that menus show are those of Qt
    const char *name;
    const char *trigger; ///< what desktops read
};
constexpr ModifierName modifierNames[] = {
    { CaptureHotKey::control, "CaptureHotKey", QT_TRANSLATE_NOOP("CaptureHotKey", "Super"), "LOGO" },
    { CaptureHotKey::command, "QShortcut", "Ctrl", "CTRL" },
    { CaptureHotKey::option, "QShortcut", "Alt", "ALT" },
    { CaptureHotKey::shift, "QShortcut", "Shift", "SHIFT" },
};

static_assert(std::size(hotKeyKeys) == enumNames<CaptureAction>.size());
const HotKeyKeys &keysOf(CaptureAction action) { return hotKeyKeys[static_cast<size_t>(action)]; }

/// What is no number of a key reads as the default.
quint32 number(const Settings &settings, const SettingKey<int> &key)
{
    const int value = settings.value(key);
    return static_cast<quint32>(value >= 0 ? value : key.fallback);
}

QString numberLabel(quint32 keyCode) { return QStringLiteral("Key %1").arg(keyCode); }

bool isCharacter(int key) { return key > Qt::Key_Space && key < Qt::Key_Escape; }

/// What the key writes without modifiers. Qt tells it with the Shift key, which changes other characters than letters;
/// those are labelled as on the layout of the United States.
QString labelOf(const KeyRow &row, const PressedKey &press)
{
    if (row.kind == KeyRow::Kind::Character && isCharacter(press.key)) {
        const auto character = static_cast<char32_t>(press.key);
        const QString written = QString::fromUcs4(&character, 1);
        if (!press.modifiers.testFlag(Qt::ShiftModifier) || written.at(0).isLetter())
            return written.toUpper().size() == written.size() ? written.toUpper() : written; // "ß" has none
    }
    return *row.label ? QString::fromUtf8(row.label) : numberLabel(row.keyCode);
}

/// The key alone, as menus name it.
QString keyName(const CaptureHotKey &hotKey)
{
    const KeyRow *row = KeyCodes::find(hotKey.keyCode);
    if (row && row->kind == KeyRow::Kind::Named)
        return QKeySequence(row->key).toString(QKeySequence::NativeText);
    if (row && row->kind == KeyRow::Kind::Keypad)
        return QKeySequence(Qt::KeypadModifier | row->key).toString(QKeySequence::NativeText);
    return hotKey.keyLabel.isEmpty() ? numberLabel(hotKey.keyCode) : hotKey.keyLabel;
}

} // namespace

CaptureHotKey CaptureHotKey::defaultOf(CaptureAction action)
{
    const HotKeyKeys &keys = keysOf(action);
    return { static_cast<quint32>(keys.keyCode.fallback), static_cast<quint32>(keys.modifiers.fallback),
        QString::fromUtf8(keys.keyLabel.fallback) };
}

CaptureHotKey CaptureHotKey::load(const Settings &settings, CaptureAction action)
{
    const HotKeyKeys &keys = keysOf(action);
    return { number(settings, keys.keyCode), number(settings, keys.modifiers), settings.value(keys.keyLabel) };
}

Outcome CaptureHotKey::save(Settings &settings, CaptureAction action) const
{
    const HotKeyKeys &keys = keysOf(action);
    // All three hold even where writing fails; a later write brings along what an earlier one could not.
    static_cast<void>(settings.set(keys.keyCode, static_cast<int>(keyCode)));
    static_cast<void>(settings.set(keys.modifiers, static_cast<int>(modifiers)));
    return settings.set(keys.keyLabel, keyLabel);
}

std::optional<CaptureHotKey> CaptureHotKey::from(const PressedKey &press)
{
    quint32 bits = 0;
    for (const Modifier &modifier : modifierTable)
        bits |= press.modifiers.testFlag(modifier.flag) ? modifier.bit : 0;
    const KeyRow *row = KeyCodes::findByEvdev(press.evdevCode);
    if (!row)
        row = KeyCodes::findByKey(press.key, press.modifiers.testFlag(Qt::KeypadModifier));
    if (bits == 0 || !row)
        return std::nullopt;
    return CaptureHotKey { row->keyCode, bits, labelOf(*row, press) };
}

std::optional<CaptureAction> CaptureHotKey::conflict(const Settings &settings, CaptureAction excluding) const
{
    for (const CaptureActionRow &row : captureActions()) {
        if (row.action != excluding && load(settings, row.action) == *this)
            return row.action;
    }
    return std::nullopt;
}

QString CaptureHotKey::displayString() const
{
    QString text;
    for (const Modifier &modifier : modifierTable) {
        if (modifiers & modifier.bit)
            text += QString::fromUtf8(modifier.glyph);
    }
    return text + keyLabel;
}

QString CaptureHotKey::keyText() const
{
    QStringList names;
    for (const ModifierName &modifier : modifierNames) {
        if (modifiers & modifier.bit)
            names += QCoreApplication::translate(modifier.context, modifier.name);
    }
    return (names << keyName(*this)).join(u'+');
}

QString CaptureHotKey::triggerText() const
{
    const KeyRow *row = KeyCodes::find(keyCode);
    if (!row)
        return {};
    QStringList names;
    for (const ModifierName &modifier : modifierNames) {
        if (modifiers & modifier.bit)
            names += QString::fromLatin1(modifier.trigger);
    }
    return (names << QString::fromLatin1(row->symbol)).join(u'+');
}

size_t qHash(const CaptureHotKey &hotKey, size_t seed) noexcept
{
    return qHashMulti(seed, hotKey.keyCode, hotKey.modifiers, hotKey.keyLabel);
}

} // namespace tessaly
