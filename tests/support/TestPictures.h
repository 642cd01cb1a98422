#pragma once

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QString>
#include <QtEndian>

namespace Korvex::Meridane::Designer::Test {

/// A picture of one colour as a file of \a format holds it.
inline QByteArray pictureBytes(const QColor& color, const QSize& size = QSize(4, 4), const char* format = "PNG")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A drawing of one colour.
inline QByteArray drawingBytes(const QColor& color, const QSize& size = QSize(24, 16))
{
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\">"
                          "<rect width=\"%1\" height=\"%2\" fill=\"%3\"/></svg>\n")
        .arg(QString::number(size.width()), QString::number(size.height()), color.name())
        .toUtf8();
}

/// Two frames of one pixel.
inline QByteArray animationBytes()
{
    return QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH/C05FVFNDQVBFMi4wAwEAAAAh+QQACgAAACwAAAAAAQABAAACAkQBACH5"
                                  "BAAKAAAALAAAAAABAAEAAAICTAEAOw==");
}

/// One pixel as WebP.
inline QByteArray webPBytes()
{
    return QByteArray::fromBase64("UklGRiQAAABXRUJQVlA4IBgAAAAwAQCdASoBAAEAAgA0JaQAA3AA/vuUAAA=");
}

/// A PNG of a few bytes that says it is \a size large.
inline QByteArray bombBytes(const QSize& size)
{
    QByteArray bytes = pictureBytes(Qt::black);
    qToBigEndian<quint32>(quint32(size.width()), bytes.data() + 16);
    qToBigEndian<quint32>(quint32(size.height()), bytes.data() + 20);
    // The checksum of the header, which readers look at first.
    quint32 sum = 0xffffffff;
    for (qsizetype i = 12; i < 29; ++i) {
        sum ^= quint8(bytes.at(i));
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? (sum >> 1) ^ 0xedb88320 : sum >> 1;
    }
    qToBigEndian<quint32>(~sum, bytes.data() + 29);
    return bytes;
}

} // namespace Korvex::Meridane::Designer::Test
