// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Tool.h"
#include "core/Annotation/ToolStyle.h"

#include <QObject>

namespace tessaly {

class AnnotationStore;
class Settings;

/// Which tools share a list of saved styles.
enum class StyleCategory { Arrow, Text, Shape };

template <>
inline constexpr auto enumNames<StyleCategory> = std::to_array<EnumName<StyleCategory>>({
    { StyleCategory::Arrow, QLatin1StringView("arrow") },
    { StyleCategory::Text, QLatin1StringView("text") },
    { StyleCategory::Shape, QLatin1StringView("shape") },
});

/// The category of a tool; empty for a tool without saved styles.
std::optional<StyleCategory> styleCategory(Tool tool);

/// A named bundle of drawing settings. It holds a value for every setting; only those that its category uses are ever
/// applied.
struct SavedStyle {
    QUuid id = QUuid::createUuid();
    StyleCategory category = StyleCategory::Arrow;
    std::optional<QString> name; ///< the user's; absent for a preset
    std::optional<QString> preset; ///< key of a built-in style; absent for the user's own
    QString colorHex = QStringLiteral("#FF3366");
    double lineWidth = 4;
    ArrowHeadStyle arrowHead = ArrowHeadStyle::Tapered;
    bool doubleHeaded = false;
    bool curved = false;
    double textSize = 18;
    bool bold = false;
    bool italic = false;
    QString fontName;
    bool filled = false;

    /// What `tool` draws with now, under a name.
    static SavedStyle capturing(const ToolStyle &style, Tool tool, const QString &name);

    /// Sets the fields that the category uses. Fill is set for the shape that `tool` draws.
    void copyTo(ToolStyle &style, Tool tool) const;

    /// The user's name or else that of the preset; empty for a preset that this version does not know.
    QString displayName() const;

    QJsonObject toJson() const;

    /// Empty without an identity or a category, or when a value is of another type.
    static std::optional<SavedStyle> fromJson(const QJsonObject &object);

    bool operator==(const SavedStyle &) const = default;
};

/// The user's saved styles, kept in the settings. Main thread only.
class SavedStyles : public QObject {
    Q_OBJECT

public:
    /// Keeps the reference. Without a readable stored list there are the presets; of a list in which some styles cannot
    /// be read there are the others.
    explicit SavedStyles(Settings &settings, QObject *parent = nullptr);

    const QList<SavedStyle> &all() const { return m_styles; }
    QList<SavedStyle> styles(Tool tool) const;

    /// Each stores the list at once; where storing fails, the change still holds for this run.
    Outcome add(SavedStyle style);
    Outcome remove(const QUuid &id);
    Outcome rename(const QUuid &id, const QString &name);

    /// The presets as they were made, followed by the user's own styles.
    Outcome restoreDefaults();

Q_SIGNALS:
    void changed();

private:
    Outcome replace(QList<SavedStyle> styles);

    Settings &m_settings;
    QList<SavedStyle> m_styles;
};

/// Gives the tool the style's values and, when a mark is selected, restyles it as one undoable change. A mark of
/// another kind takes those values that it has a use for: a rectangle the colour and width of an arrow style.
void apply(const SavedStyle &style, Tool tool, AnnotationStore &store);

} // namespace tessaly
