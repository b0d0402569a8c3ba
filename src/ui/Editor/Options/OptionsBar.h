// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/OptionItem.h"

#include <QWidget>

class QLabel;

namespace tessaly {

class Alerts;
class FrameSettings;
class OverflowRow;
class SavedStyles;
class Settings;
class StyleMenu;

/// The options of the selected mark or the active tool, and only what these use. It follows the store at once.
class OptionsBar : public QWidget {
    Q_OBJECT

public:
    /// The height of the bar in points at the default font; a larger font makes it higher.
    static constexpr int standardHeight = 45;

    struct Services {
        Settings &settings;
        SavedStyles &styles;
        FrameSettings &frameSettings;
        Alerts &alerts;
    };
    /// Keeps the references.
    OptionsBar(AnnotationStore &store, const Services &services, QWidget *parent = nullptr);
    ~OptionsBar() override;

    StyleMenu &styleMenu() { return *m_styleMenu; }
    OverflowRow &row() { return *m_row; }

    /// Shows the present state: to be called when something else than the store has changed.
    void refresh();

Q_SIGNALS:
    void message(const QString &sentence);
    void imageRequested();
    void cropApplyRequested();
    void cropCancelRequested();
    /// The user is done with a field; the canvas may have the keys again.
    void finished();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void add(const QList<OptionItem> &items);
    void makeItems(const Services &services);

    AnnotationStore &m_store;
    OverflowRow *m_row;
    QLabel *m_hint;
    StyleMenu *m_styleMenu;
    QList<OptionItem> m_items;
    bool m_refreshing = false;
};

} // namespace tessaly
