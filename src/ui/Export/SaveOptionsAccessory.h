// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportFormat.h"

#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QSlider;

namespace tessaly {

/// What the save panel asks beside the name: the format, its quality where it has one, and whether the editable
/// document is saved too.
class SaveOptionsAccessory final : public QWidget {
public:
    /// Keeps the reference to the settings, which hold the qualities and the check mark.
    SaveOptionsAccessory(ExportFormat format, bool offersDocument, Settings &settings, QWidget *parent = nullptr);

    ExportFormat format() const { return m_format; }
    double quality() const { return m_quality; } ///< 0 to 1
    bool alsoDocument() const;

    /// Chooses a format as the pop-up does, with the quality that is stored for it.
    void setFormat(ExportFormat format);

    /// Called after the user, or setFormat(), has chosen another format.
    std::function<void(ExportFormat)> onFormatChange = {};

private:
    void addFormatRow();
    void addQualityRow();
    void addDocumentRow();
    void showQuality();
    void takeQuality(int tick);

    Settings &m_settings;
    ExportFormat m_format;
    double m_quality;
    bool m_offersDocument;
    QGridLayout *m_grid;
    QComboBox *m_formats;
    QLabel *m_qualityLabel;
    QWidget *m_qualityRow;
    QSlider *m_slider;
    QLabel *m_percent;
    QCheckBox *m_document;
};

} // namespace tessaly
