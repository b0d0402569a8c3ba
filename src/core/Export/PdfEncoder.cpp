// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/PdfEncoder.h"

#include "core/Export/ZlibPixels.h"

#include <QList>

namespace tessaly::PdfEncoder {

namespace {

/// A length in points, to a ten-thousandth; PDF knows no exponents.
QByteArray number(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 4);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text;
}

/// Numbered objects one after the other, and the table of where they begin.
class ObjectWriter {
public:
    /// The number that the next object gets; the first is 1.
    qsizetype nextNumber() const { return m_offsets.size() + 1; }

    void add(const QByteArray &dictionary)
    {
        begin();
        m_file += "<< " + dictionary + " >>\nendobj\n";
    }

    void addStream(const QByteArray &dictionary, const std::vector<QByteArray> &pieces)
    {
        qsizetype length = 0;
        for (const QByteArray &piece : pieces)
            length += piece.size();
        begin();
        m_file += "<< " + dictionary + " /Length " + QByteArray::number(length) + " >>\nstream\n";
        for (const QByteArray &piece : pieces)
            m_file += piece;
        m_file += "\nendstream\nendobj\n";
    }

    /// The whole file, whose catalogue is object 1.
    QByteArray finish()
    {
        const QByteArray start = QByteArray::number(m_file.size());
        const QByteArray count = QByteArray::number(m_offsets.size() + 1);
        m_file += "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const qsizetype offset : m_offsets)
            m_file += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
        m_file += "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
        return std::move(m_file);
    }

private:
    void begin()
    {
        m_offsets += m_file.size();
        m_file += QByteArray::number(m_offsets.size()) + " 0 obj\n";
    }

    // The comment's high bytes tell transfer programs that the file is not text.
    QByteArray m_file { "%PDF-1.5\n%\xe2\xe3\xcf\xd3\n" };
    QList<qsizetype> m_offsets;
};

/// The entries of an image whose rows are those of PixelRows: predictor 15 means PNG's filters.
QByteArray imageDictionary(const PixelRows &rows, QSize size)
{
    const QByteArray width = QByteArray::number(size.width());
    const QByteArray height = QByteArray::number(size.height());
    const QByteArray samples = QByteArray::number(rows.bytesPerPixel());
    const QByteArray space = rows.bytesPerPixel() == 1 ? "/DeviceGray" : "/DeviceRGB";
    return "/Type /XObject /Subtype /Image /Width " + width + " /Height " + height + " /BitsPerComponent 8 /ColorSpace "
        + space + " /Filter /FlateDecode /DecodeParms << /Predictor 15 /BitsPerComponent 8 /Colors " + samples
        + " /Columns " + width + " >>";
}

void addImage(ObjectWriter &writer, const RasterImage &image, int threads)
{
    const bool masked = !isOpaque(image.pixels);
    const PixelRows rows(image.pixels, PixelLayout::Rgb);
    QByteArray dictionary = imageDictionary(rows, image.pixelSize());
    if (masked)
        dictionary += " /SMask " + QByteArray::number(writer.nextNumber() + 1) + " 0 R";
    writer.addStream(dictionary, zlibPixels(rows, threads));
    if (masked) {
        const PixelRows alpha(image.pixels, PixelLayout::Alpha);
        writer.addStream(imageDictionary(alpha, image.pixelSize()), zlibPixels(alpha, threads));
    }
}

} // namespace

Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options)
{
    const QByteArray width = number(image.pointSize.width());
    const QByteArray height = number(image.pointSize.height());
    ObjectWriter writer;
    writer.add("/Type /Catalog /Pages 2 0 R");
    writer.add("/Type /Pages /Kids [3 0 R] /Count 1");
    writer.add("/Type /Page /Parent 2 0 R /MediaBox [0 0 " + width + ' ' + height
        + "] /Contents 4 0 R /Resources << /XObject << /Picture 5 0 R >> >>");
    writer.addStream({}, { "q " + width + " 0 0 " + height + " 0 0 cm /Picture Do Q" });
    addImage(writer, image, options.threads);
    return writer.finish();
}

} // namespace tessaly::PdfEncoder
