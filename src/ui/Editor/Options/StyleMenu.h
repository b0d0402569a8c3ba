// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/SavedStyles.h"
#include "ui/Editor/Options/OptionItem.h"

#include <QObject>

class QMenu;
class QWidget;

namespace tessaly {

/// Asks for the name of a style: title, button, proposal; empty when cancelled.
using NameQuestion
    = std::function<std::optional<QString>(const QString &title, const QString &button, const QString &proposal)>;

/// The menu of saved styles of the active tool or the selected mark.
class StyleMenu : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    StyleMenu(AnnotationStore &store, SavedStyles &styles, NameQuestion askName, QObject *parent = nullptr);

    OptionItem makeItem();

    /// The tool whose styles are offered: that of the selected mark, or the active one.
    Tool tool() const;
    bool canSave() const;
    /// Asks for a name and saves what the tool draws with now.
    void save();
    /// Fills a menu with the styles and the commands on them.
    void fill(QMenu &menu);

Q_SIGNALS:
    /// A sentence: the list could not be stored.
    void failed(const QString &sentence);

private:
    void rename(const QUuid &id, const QString &present);
    void addEach(QMenu &menu, const std::function<void(const SavedStyle &)> &act);
    void report(const Outcome &outcome);

    AnnotationStore &m_store;
    SavedStyles &m_styles;
    NameQuestion m_askName;
};

} // namespace tessaly
