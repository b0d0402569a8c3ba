// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkClipboard.h"

#include "core/Annotation/AnnotationDocument.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Annotation/MarkLimits.h"
#include "core/Desktop/TextOffer.h"
#include "core/Editing/MarkOffer.h"
#include "core/Editing/MarkReshaping.h"
#include "core/Editing/NewMarks.h"
#include "core/Export/PngEncoder.h"
#include "core/Imaging/ImageReading.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

#include <algorithm>

namespace tessaly {

namespace {

constexpr QLatin1StringView uriListType("text/uri-list");

QRectF canvasOf(const AnnotationStore &store) { return { QPointF(), store.image().pointSize }; }

void add(AnnotationStore &store, const QList<Annotation> &marks)
{
    store.setAnnotations(store.annotations() + marks);
    store.setSelectedID(marks.last().id);
}

/// By how much marks that were copied are moved: their common centre to `at`, or a little away from every mark that is
/// there already; into the middle when nothing of them would be seen.
QPointF offsetOf(const QList<Annotation> &marks, const AnnotationStore &store, std::optional<QPointF> at)
{
    QRectF box;
    for (const Annotation &mark : marks)
        box |= mark.boundingRect();
    if (at)
        return *at - box.center();
    QPointF offset(10, 10);
    const auto isTaken = [&](const Annotation &mark) {
        return mark.kind == marks.first().kind && mark.p1 == marks.first().p1 + offset;
    };
    while (std::ranges::any_of(store.annotations(), isTaken))
        offset += QPointF(10, 10);
    if (!box.translated(offset).intersects(canvasOf(store)))
        return canvasOf(store).center() - box.center();
    return offset;
}

Outcome pasteMarks(AnnotationStore &store, const QByteArray &json, std::optional<QPointF> at)
{
    const auto document = AnnotationDocument::decoded(json);
    if (!document || document->annotations.isEmpty())
        return Failure { QCoreApplication::translate(
            "MarkClipboard", "What was copied is damaged and can't be pasted.") };
    const QPointF offset = offsetOf(document->annotations, store, at);
    store.beginChange();
    QList<Annotation> pasted;
    for (const Annotation &mark : document->annotations)
        pasted += MarkReshaping::moved(copyOf(mark, store), offset);
    add(store, pasted);
    return Done {};
}

void pasteText(AnnotationStore &store, const QString &text, std::optional<QPointF> at)
{
    Annotation mark(AnnotationKind::Text, {}, {});
    store.toolStyle().applyTo(mark);
    mark.text = text.left(MarkLimits::maxTextLength);
    const QPointF corner = at.value_or(canvasOf(store).center() - mark.boundingRect().center());
    store.beginChange();
    add(store, { MarkReshaping::moved(mark, { std::max(0.0, corner.x()), std::max(0.0, corner.y()) }) });
}

/// The best of the offered types that is a picture; PNG loses nothing.
QString imageType(const QStringList &offered)
{
    const QString png = QStringLiteral("image/png");
    if (offered.contains(png))
        return png;
    const QList<QByteArray> readable = QImageReader::supportedMimeTypes();
    const auto found
        = std::ranges::find_if(offered, [&](const QString &type) { return readable.contains(type.toLatin1()); });
    return found == offered.end() ? QString() : *found;
}

/// The path of the first picture among copied files.
QString copiedPicture(const QByteArray &uriList)
{
    for (const QByteArray &line : uriList.split('\n')) {
        const QUrl url = QUrl::fromEncoded(line.trimmed());
        if (url.isLocalFile() && !QImageReader::imageFormat(url.toLocalFile()).isEmpty())
            return url.toLocalFile();
    }
    return {};
}

/// The bytes of the file where every program reads its format, else the picture as PNG.
Result<QByteArray> storable(const QByteArray &file, const RasterImage &picture)
{
    constexpr auto png = "\x89PNG", jpeg = "\xFF\xD8\xFF";
    if (file.startsWith(png) || file.startsWith(jpeg))
        return file;
    return PngEncoder::encode(picture, {});
}

} // namespace

MarkClipboard::MarkClipboard(Clipboard &clipboard) : m_clipboard(clipboard) { }

void MarkClipboard::copy(const AnnotationStore &store)
{
    if (const Annotation *selected = store.selected())
        m_clipboard.offer(std::make_unique<MarkOffer>(*selected, store));
}

void MarkClipboard::cut(AnnotationStore &store)
{
    copy(store);
    store.deleteSelected();
}

bool MarkClipboard::canPaste() const
{
    const auto types = m_clipboard.knownTypes();
    return !types || std::ranges::any_of(*types, [](const QString &type) {
        return type == QLatin1StringView(mimeType) || type.startsWith(u"text/plain") || type.startsWith(u"image/")
            || type == uriListType;
    });
}

Outcome MarkClipboard::paste(AnnotationStore &store, std::optional<QPointF> at)
{
    const QStringList types = m_clipboard.types();
    if (types.contains(QLatin1StringView(mimeType)))
        return pasteMarks(store, m_clipboard.data(QLatin1StringView(mimeType)), at);
    if (const QString type = imageType(types); !type.isEmpty())
        return insertImage(
            store, m_clipboard.data(type), QCoreApplication::translate("MarkClipboard", "The copied picture"), at);
    if (types.contains(uriListType))
        if (const QString path = copiedPicture(m_clipboard.data(uriListType)); !path.isEmpty())
            return insertImageFile(store, path, at);
    const QString text = TextOffer::textOf(m_clipboard);
    if (text.trimmed().isEmpty())
        return Failure { QCoreApplication::translate(
            "MarkClipboard", "There is nothing on the clipboard that can be pasted here.") };
    pasteText(store, text, at);
    return Done {};
}

Outcome insertImage(AnnotationStore &store, const QByteArray &imageFile, const QString &name, std::optional<QPointF> at)
{
    const auto picture = readImage(imageFile, name);
    if (!picture)
        return picture.failure();
    const auto bytes = storable(imageFile, *picture);
    if (!bytes)
        return bytes.failure();
    constexpr double mostOfCanvas = 0.8;
    const QRectF canvas = canvasOf(store);
    QSizeF size = picture->pointSize;
    if (const QSizeF most = canvas.size() * mostOfCanvas; size.width() > most.width() || size.height() > most.height())
        size.scale(most, Qt::KeepAspectRatio);
    QRectF box(QPointF(), size);
    box.moveCenter(at.value_or(canvas.center()));
    Annotation mark(AnnotationKind::ImageOverlay, box.topLeft(), box.bottomRight());
    mark.imageData = *bytes;
    store.beginChange();
    add(store, { mark });
    return Done {};
}

Outcome insertImageFile(AnnotationStore &store, const QString &path, std::optional<QPointF> at)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure {
            QCoreApplication::translate("MarkClipboard", "“%1” can't be read: %2").arg(name, file.errorString())
        };
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Failure {
            QCoreApplication::translate("MarkClipboard", "“%1” can't be read: %2").arg(name, file.errorString())
        };
    return insertImage(store, bytes, name, at);
}

} // namespace tessaly
