// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/GeneratedHistory.h"

#include "bench/support/Screens.h"
#include "core/Export/ImageEncoder.h"

#include <QDir>
#include <QJsonDocument>

#include <random>

namespace tessaly::bench {

namespace {

using Random = std::minstd_rand;

const char *const titles[] { "Firefox", "Files", "Terminal", "Screenshot", "LibreOffice Calc", "Visual Studio Code",
    "Thunderbird", "GIMP", "Größenvergleich", "Réunion" };
const char *const syllables[] { "con", "ta", "ri", "mo", "den", "ver", "sal", "pro", "ni", "ka", "ment", "lo", "ser",
    "vi", "ce", "pa", "ge", "er", "ror", "file", "edit", "view", "help", "win", "dow", "ü", "é", "str", "ing", "tion" };
const char *const phrases[] { "Total: 1,284.50 €", "https://example.org/reports?id=4711", "Error 404: page not found",
    "Straße 12, 80331 München", "Última actualización", "git commit --amend", "Sign in to continue" };

QString word(Random &random)
{
    QString text;
    for (auto left = 1 + random() % 4; left > 0; --left)
        text += QString::fromUtf8(syllables[random() % std::size(syllables)]);
    return random() % 6 == 0 ? text.left(1).toUpper() + text.mid(1) : text;
}

QString screenText(Random &random)
{
    const auto length = qsizetype(GeneratedHistory::textLength / 2 + int(random() % GeneratedHistory::textLength));
    QString text;
    while (text.size() < length) {
        for (auto left = 1 + random() % 9; left > 0; --left)
            text += (random() % 40 == 0 ? QString::fromUtf8(phrases[random() % std::size(phrases)]) : word(random))
                + u' ';
        text.back() = u'\n';
    }
    return text.trimmed();
}

QUuid idOf(Random &random)
{
    QByteArray bytes;
    for (int i = 0; i < 16; ++i)
        bytes += char(random() >> 8);
    return QUuid::fromRfc4122(bytes);
}

QByteArray pngOf(const QImage &image)
{
    const auto png = encodeImage(RasterImage::fromPixels(image), ExportFormat::Png, {});
    return png ? *png : QByteArray();
}

/// A few pictures are enough: what is read later are files of their sizes.
QList<TessalyDocument::Package> samples()
{
    QList<TessalyDocument::Package> packages;
    for (const QImage &screen :
        { busyDesktop({ 1920, 1080 }), flatInterface({ 1920, 1080 }), photoLike({ 1920, 1080 }) }) {
        AnnotationDocument document;
        const QImage small = screen.scaled(320, 180, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        document.canvasSize = QSizeF(small.size());
        document.pixelSize = QSizeF(small.size());
        const QImage thumbnail = screen.scaled(1024, 576, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (auto package = TessalyDocument::package(document, pngOf(small), pngOf(thumbnail)))
            packages += *package;
    }
    return packages;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

bool writePackage(const QString &path, QList<SafeFile::Entry> files, const HistoryEntry &entry)
{
    files.append({ QStringLiteral("History.json"), QJsonDocument(entry.toJson()).toJson() });
    bool isWritten = QDir().mkpath(path + QStringLiteral("/QuickLook"));
    for (const auto &[name, bytes] : files)
        isWritten = isWritten && writeFile(path + u'/' + name, bytes);
    return isWritten;
}

} // namespace

QDateTime GeneratedHistory::newest() { return { QDate(2026, 5, 20), QTime(12, 0), Qt::UTC }; }

QList<HistoryEntry> GeneratedHistory::entries(int count)
{
    Random random(11);
    QList<HistoryEntry> entries;
    QDateTime moment = newest();
    for (int index = 0; index < count; ++index) {
        entries += HistoryEntry { .id = idOf(random),
            .title = QString::fromUtf8(titles[random() % std::size(titles)]),
            .created = moment,
            .modified = moment.addMSecs(qint64(random() % 900'000)),
            .pixelWidth = 640 + int(random() % 3200),
            .pixelHeight = 400 + int(random() % 1760),
            .recognizedText = screenText(random) };
        moment = moment.addMSecs(-qint64(random() % 25'000'000));
    }
    return entries;
}

bool GeneratedHistory::write(const HistoryStore &files, const QList<HistoryEntry> &entries)
{
    const auto packages = samples();
    if (packages.isEmpty() || !files.makeFolder())
        return false;
    for (qsizetype index = 0; index < entries.size(); ++index) {
        const auto &package = packages[index % packages.size()];
        if (!writePackage(files.packagePath(entries[index].id), TessalyDocument::entries(package), entries[index]))
            return false;
    }
    return static_cast<bool>(files.save(entries));
}

} // namespace tessaly::bench
