// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>
#include <QRect>
#include <QTemporaryDir>

namespace tessaly::test {

struct OffscreenScreen {
    const char *name;
    int x;
    QSize pixelSize;
    double scale;
};

/// Lets Qt's offscreen platform have these screens side by side. Before the QApplication is made; the folder stays.
inline void useOffscreenScreens(const QTemporaryDir &folder, const QList<OffscreenScreen> &screens)
{
    QByteArrayList texts;
    for (const auto &[name, x, size, scale] : screens)
        texts += QStringLiteral(R"({"name":"%1","x":%2,"y":0,"width":%3,"height":%4,"logicalDpi":96,)"
                                R"("logicalBaseDpi":96,"dpr":%5})")
                     .arg(QLatin1StringView(name))
                     .arg(x)
                     .arg(size.width())
                     .arg(size.height())
                     .arg(scale)
                     .toUtf8();
    QFile file(folder.filePath(QStringLiteral("screens.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write("{\"screens\":[" + texts.join(',') + "]}") < 0)
        qFatal("no file for the screens");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
}

} // namespace tessaly::test
