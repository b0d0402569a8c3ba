// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/SavePanels.h"

#include <QFileDialog>

class QLineEdit;

namespace tessaly {

class SaveOptionsAccessory;
class Settings;

/// The panel that asks where an image is saved and as what. The name always ends in the extension of its format.
class SaveImageDialog final : public QFileDialog {
public:
    SaveImageDialog(const SavePanels::ImageRequest &request, Settings &settings, QWidget *parent);

    SavePanels::ImageChoice choice() const;

    void accept() override;

private:
    void follow(ExportFormat format);
    void followName(const QString &name);

    QLineEdit *m_name;
    SaveOptionsAccessory *m_options;
};

} // namespace tessaly
