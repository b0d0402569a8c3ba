// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/InfoReport.h"

#include "app/CommandLine/Text.h"

#include <QJsonDocument>

namespace tessaly::InfoReport {

namespace {

QJsonArray array(QPointF point) { return { point.x(), point.y() }; }
QJsonArray array(QSizeF size) { return { size.width(), size.height() }; }
QJsonArray array(QRectF rect) { return { rect.x(), rect.y(), rect.width(), rect.height() }; }

QJsonObject markObject(const Annotation &mark)
{
    QJsonObject object {
        { "id", mark.id.toString(QUuid::WithoutBraces) },
        { "kind", rawValue(mark.kind) },
        { "rect", array(mark.rect()) },
        { "boundingRect", array(mark.boundingRect()) },
    };
    if (const auto tip = mark.tailTip())
        object.insert("tailTip", array(*tip));
    if (const auto label = mark.stampLabelRect())
        object.insert("stampLabelRect", array(*label));
    return object;
}

QJsonObject documentObject(const LoadedInput::Origin &origin)
{
    return {
        { "version", origin.version },
        { "generator", origin.generator ? QJsonValue(*origin.generator) : QJsonValue() },
        { "skippedAnnotations", origin.skippedAnnotations },
    };
}

QString number(double value) { return QString::number(value, 'g', 7); }

QString shape(QSizeF size) { return QStringLiteral("%1 × %2").arg(number(size.width()), number(size.height())); }

QString place(QPointF point) { return QStringLiteral("%1, %2").arg(number(point.x()), number(point.y())); }

QString frameText(const AnnotationStore &store)
{
    if (!store.frame())
        return Text::tr("none");
    const FrameLayout layout = store.frameLayout();
    return Text::tr("%1, canvas %2 points, picture at %3")
        .arg(rawValue(store.frame()->background), shape(layout.canvasSize), place(layout.imageOrigin));
}

QString watermarkText(const AnnotationStore &store)
{
    if (!store.watermark() || !store.watermark()->isVisible())
        return Text::tr("none");
    const Watermark &mark = *store.watermark();
    const QString content = mark.kind == WatermarkKind::Text ? u'"' + mark.text.simplified() + u'"' : Text::tr("logo");
    return Text::tr("%1, %2").arg(content, rawValue(mark.position));
}

QString markText(const Annotation &mark, qsizetype number)
{
    const QRectF box = mark.boundingRect();
    return QStringLiteral("  %1  %2  %3 at %4\n")
        .arg(QString::number(number).rightJustified(5), QString(rawValue(mark.kind)).leftJustified(12),
            shape(box.size()), place(box.topLeft()));
}

} // namespace

QByteArray json(const LoadedInput &input)
{
    const AnnotationStore &store = *input.store;
    const FrameLayout layout = store.frameLayout();
    QJsonArray marks;
    for (const Annotation &mark : store.annotations())
        marks.append(markObject(mark));
    QJsonObject report {
        { "pixelSize", array(QSizeF(store.image().pixelSize())) },
        { "pointSize", array(store.image().pointSize) },
        { "dpi", store.dpi() },
        { "frameLayout",
            QJsonObject {
                { "canvasSize", array(layout.canvasSize) },
                { "imageOrigin", array(layout.imageOrigin) },
                { "imageSize", array(layout.imageSize) },
            } },
        { "annotations", marks },
    };
    if (input.document)
        report.insert("document", documentObject(*input.document));
    return QJsonDocument(report).toJson();
}

QByteArray text(const QString &name, const LoadedInput &input)
{
    const AnnotationStore &store = *input.store;
    QString report = name + u'\n';
    const auto row = [&report](const QString &label, const QString &value) {
        report += QStringLiteral("  %1 %2\n").arg(label.leftJustified(10), value);
    };
    row(Text::tr("Pixels"), shape(store.image().pixelSize()));
    row(Text::tr("Points"),
        Text::tr("%1 (scale %2, %3 dpi)")
            .arg(shape(store.image().pointSize), number(store.pixelScale()), QString::number(store.dpi())));
    row(Text::tr("Frame"), frameText(store));
    row(Text::tr("Watermark"), watermarkText(store));
    if (input.document) {
        const QString generator = input.document->generator.value_or(Text::tr("an unnamed program"));
        row(Text::tr("Document"),
            Text::tr("version %1, written by %2")
                .arg(QString::number(input.document->version), generator.simplified()));
    }
    row(Text::tr("Marks"), QString::number(store.annotations().size()));
    qsizetype count = 0;
    for (const Annotation &mark : store.annotations())
        report += markText(mark, ++count);
    return report.toLocal8Bit();
}

} // namespace tessaly::InfoReport
