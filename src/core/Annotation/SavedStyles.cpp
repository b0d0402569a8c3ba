// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/SavedStyles.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Annotation/SavedStylePresets.h"
#include "core/Preferences/Settings.h"

#include <QJsonDocument>

#include <algorithm>

namespace tessaly {

namespace {

constexpr int formatVersion = 1;
constexpr QLatin1StringView versionKey("version"), stylesKey("styles");

QByteArray written(const QList<SavedStyle> &styles)
{
    QJsonArray array;
    for (const SavedStyle &style : styles)
        array.append(style.toJson());
    const QJsonObject object { { versionKey, formatVersion }, { stylesKey, array } };
    return QJsonDocument(object).toJson(QJsonDocument::Compact); // objects are sorted by key
}

/// The styles that can be read of a stored list; empty when it is no such list.
std::optional<QList<SavedStyle>> read(const QByteArray &bytes)
{
    const QJsonValue list = QJsonDocument::fromJson(bytes).object().value(stylesKey);
    if (!list.isArray())
        return std::nullopt;
    QList<SavedStyle> styles;
    for (const QJsonValue &element : list.toArray()) {
        if (const auto style = SavedStyle::fromJson(element.toObject()))
            styles += *style;
    }
    return styles;
}

} // namespace

SavedStyles::SavedStyles(Settings &settings, QObject *parent) : QObject(parent), m_settings(settings)
{
    const auto stored = settings.value(SettingKeys::savedAnnotationStyles);
    auto styles = stored ? read(*stored) : std::nullopt;
    m_styles = styles ? *std::move(styles) : SavedStylePresets::make();
}

QList<SavedStyle> SavedStyles::styles(Tool tool) const
{
    const auto category = styleCategory(tool);
    QList<SavedStyle> matching;
    std::ranges::copy_if(
        m_styles, std::back_inserter(matching), [&](const SavedStyle &style) { return style.category == category; });
    return matching;
}

Outcome SavedStyles::replace(QList<SavedStyle> styles)
{
    if (styles == m_styles)
        return Done {};
    m_styles = std::move(styles);
    Outcome stored = m_settings.set(SettingKeys::savedAnnotationStyles, written(m_styles));
    Q_EMIT changed();
    return stored;
}

Outcome SavedStyles::add(SavedStyle style)
{
    auto styles = m_styles;
    styles += std::move(style);
    return replace(std::move(styles));
}

Outcome SavedStyles::remove(const QUuid &id)
{
    auto styles = m_styles;
    styles.removeIf([&](const SavedStyle &style) { return style.id == id; });
    return replace(std::move(styles));
}

Outcome SavedStyles::rename(const QUuid &id, const QString &name)
{
    auto styles = m_styles;
    const auto found = std::ranges::find(styles, id, &SavedStyle::id);
    if (found != styles.end())
        found->name = name;
    return replace(std::move(styles));
}

Outcome SavedStyles::restoreDefaults()
{
    auto styles = SavedStylePresets::make();
    std::ranges::copy_if(
        m_styles, std::back_inserter(styles), [](const SavedStyle &style) { return !style.preset.has_value(); });
    return replace(std::move(styles));
}

void apply(const SavedStyle &style, Tool tool, AnnotationStore &store)
{
    ToolStyle current = store.toolStyle();
    style.copyTo(current, tool);
    store.setToolStyle(current);
    if (!store.selected())
        return;
    Annotation restyled = *store.selected();
    ToolStyle own;
    own.adopt(restyled);
    for (const Tool shape : { Tool::Rectangle, Tool::Ellipse })
        style.copyTo(own, shape);
    own.applyTo(restyled);
    if (restyled != *store.selected())
        store.updateSelection(Undo::Record, [&](Annotation &mark) { mark = restyled; });
}

} // namespace tessaly
