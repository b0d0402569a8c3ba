// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/Adjustment.h"
#include "ui/Editor/Options/OptionItem.h"

#include <QObject>

class QGridLayout;

namespace tessaly {

class FrameSettings;
class PopoverButton;
class Settings;
class SwatchButton;

/// The options of the frame. What is chosen is remembered for the captures to come.
class FrameOptions : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    FrameOptions(AnnotationStore &store, FrameSettings &frameSettings, Settings &settings, QObject *parent = nullptr);

    QList<OptionItem> makeItems();

Q_SIGNALS:
    /// A sentence: what was chosen could not be remembered.
    void failed(const QString &sentence);

private:
    FrameStyle frame() const;
    void change(const std::function<void(FrameStyle &)> &edit);
    void setOn(bool on);
    void remember();
    OptionItem switchItem();
    OptionItem background();
    template <class Row>
    OptionItem slider(const Row &row);
    OptionItem aspect();
    OptionItem applyToNew();
    SwatchButton *addSwatch(QGridLayout &grid, int row, int column, const QStringList &colors, const QString &name,
        const std::function<void(FrameStyle &)> &edit);
    void pickSolid(QWidget *parent);
    void fillBackgroundPanel(PopoverButton &button);
    void showBackground(const FrameStyle &style);

    AnnotationStore &m_store;
    FrameSettings &m_frameSettings;
    Settings &m_settings;
    Adjustment m_adjustment;
    SwatchButton *m_current = nullptr; ///< the background in use
    SwatchButton *m_otherSolid = nullptr;
    QList<SwatchButton *> m_swatches;
};

} // namespace tessaly
