// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/Adjustment.h"
#include "ui/Editor/Options/OptionItem.h"

#include <QObject>

class QFormLayout;
class QVBoxLayout;

namespace tessaly {

class Alerts;
class FrameSettings;
class PopoverButton;

/// The options of the watermark, in a panel of their own. What is chosen is remembered for the captures to come.
class WatermarkOptions : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    WatermarkOptions(AnnotationStore &store, FrameSettings &frameSettings, Alerts &alerts, QObject *parent = nullptr);

    OptionItem makeItem();

    /// Makes the file the logo; an alert says so when it is no picture, and the watermark stays as it is.
    void useLogo(const QString &path);

Q_SIGNALS:
    /// A sentence: what was chosen could not be remembered.
    void failed(const QString &sentence);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Watermark watermark() const;
    void change(const std::function<void(Watermark &)> &edit);
    void setOn(bool on);
    void remember();
    void chooseLogo(QWidget *parent);
    void refresh();
    void addSwitch(QVBoxLayout &layout);
    void addContent(QFormLayout &form, QWidget *panel);
    void addText(QFormLayout &form);
    void addColors(QFormLayout &form);
    void addPositions(QFormLayout &form);
    void addSliders(QFormLayout &form);

    AnnotationStore &m_store;
    FrameSettings &m_frameSettings;
    Alerts &m_alerts;
    Adjustment m_adjustment;
    QList<std::function<void(const Watermark &)>> m_refreshers;
};

} // namespace tessaly
