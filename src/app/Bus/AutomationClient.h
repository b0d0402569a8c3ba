// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"

#include <QVariantMap>

/// The Tessaly that runs, as another program sees it.
namespace tessaly::AutomationClient {

/// Asks it to capture and waits for the end; empty where none runs. Subjects and options are those of
/// AutomationService. There must be a QCoreApplication.
std::optional<CaptureOutcome> capture(const QString &subject, const QVariantMap &options);

/// Lets it leave alone a file that is about to appear in the folder that it watches; returns when it knows.
void ignoreFile(const QString &path);

} // namespace tessaly::AutomationClient
