// SPDX-License-Identifier: GPL-3.0-or-later
// Stands for the clipboard in a build without the descriptions of the wlr protocols: Qt's is used then.
#include "platform/wayland/Surfaces/DataControlClipboard.h"

namespace tessaly {

struct DataControlClipboard::Implementation { };

DataControlClipboard::DataControlClipboard() = default;
DataControlClipboard::~DataControlClipboard() = default;
std::unique_ptr<Clipboard> DataControlClipboard::create() { return nullptr; }
void DataControlClipboard::offer(std::unique_ptr<ClipboardOffer>) { }
QStringList DataControlClipboard::types() const { return {}; }
std::optional<QStringList> DataControlClipboard::knownTypes() const { return QStringList(); }
QByteArray DataControlClipboard::data(const QString &) const { return {}; }

} // namespace tessaly
