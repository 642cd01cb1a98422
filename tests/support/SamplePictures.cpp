#include "tests/support/SamplePictures.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QtEndian>
#include <QtGui/QPainter>

#include <array>

namespace {

const std::array<QColor, 4>& quarterColors()
{
    static const std::array<QColor, 4> colors{QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255),
                                              QColor(255, 255, 0)};
    return colors;
}

template <typename Number>
QByteArray littleEndian(Number number)
{
    const Number bytes = qToLittleEndian(number);
    return {reinterpret_cast<const char*>(&bytes), sizeof(Number)};
}

QByteArray bigEndian(quint32 number)
{
    const quint32 bytes = qToBigEndian(number);
    return {reinterpret_cast<const char*>(&bytes), sizeof(bytes)};
}

/// The check sum of PNG chunks.
quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc & 1 ? 0xedb88320U ^ (crc >> 1) : crc >> 1;
    }
    return ~crc;
}

QByteArray pngChunk(const char* name, const QByteArray& content)
{
    const QByteArray named = name + content;
    return bigEndian(quint32(content.size())) + named + bigEndian(crc32(named));
}

/// \a text packed as zlib does; qCompress() puts the size in front.
QByteArray packed(const QByteArray& bytes)
{
    return qCompress(bytes, 9).sliced(4);
}

const QByteArray& gifEnd()
{
    static const QByteArray end(";");
    return end;
}

QByteArray gifHead(const QSize& size)
{
    QByteArray head = "GIF89a" + littleEndian(quint16(size.width())) + littleEndian(quint16(size.height()));
    constexpr char ColorTableOf128 = char(0x80 | 6);
    head += ColorTableOf128;
    head += QByteArray(2, '\0');
    for (int i = 0; i < 128; ++i) {
        head += char(i & 1 ? 255 : 0);
        head += char(i & 2 ? 255 : 0);
        head += char(i & 4 ? 255 : 0);
    }
    return head;
}

/// The number of \a color in the table of gifHead().
char gifColor(const QColor& color)
{
    return char((color.red() ? 1 : 0) | (color.green() ? 2 : 0) | (color.blue() ? 4 : 0));
}

/// A frame whose pixels are numbers of colours, not packed: the dictionary is cleared before the codes grow beyond a byte.
QByteArray gifFrame(const QSize& size, const QByteArray& pixels, int delay)
{
    constexpr char Clear = char(128);
    constexpr char End = char(129);
    constexpr qsizetype CodesAClear = 100;
    constexpr qsizetype LargestBlock = 255;
    QByteArray codes;
    for (qsizetype i = 0; i < pixels.size(); ++i) {
        if (i % CodesAClear == 0)
            codes += Clear;
        codes += pixels.at(i);
    }
    codes += End;

    QByteArray frame = QByteArray::fromHex("21f90404") + littleEndian(quint16(delay)) + QByteArray(2, '\0');
    frame += ',' + QByteArray(4, '\0') + littleEndian(quint16(size.width())) + littleEndian(quint16(size.height()));
    frame += '\0';
    frame += char(7); // the codes of the colours have so many bits
    for (qsizetype at = 0; at < codes.size(); at += LargestBlock) {
        const QByteArray block = codes.mid(at, LargestBlock);
        frame += char(block.size());
        frame += block;
    }
    return frame + '\0';
}

} // namespace

namespace SamplePictures {

QImage quarters(const QSize& size)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    const QSize half(size.width() / 2, size.height() / 2);
    for (int i = 0; i < 4; ++i) {
        const QPoint corner(i % 2 ? half.width() : 0, i / 2 ? half.height() : 0);
        painter.fillRect(QRect(corner, QPoint(size.width(), size.height())), quarterColors().at(std::size_t(i)));
    }
    return picture;
}

QByteArray encoded(const QImage& picture, const char* format)
{
    QByteArray file;
    QBuffer buffer(&file);
    constexpr int Best = 100;
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, format, Best))
        qFatal("no picture can be written as %s", format);
    return file;
}

QByteArray quarters(const QSize& size, const char* format)
{
    return encoded(quarters(size), format);
}

QByteArray gif(const QSize& size, const QList<QColor>& frames, int delay, int loops)
{
    QByteArray file = gifHead(size);
    if (loops != 1)
        file += QByteArray::fromHex("21ff0b") + "NETSCAPE2.0" + QByteArray::fromHex("0301")
                + littleEndian(quint16(loops)) + '\0';
    for (const QColor& color : frames)
        file += gifFrame(size, QByteArray(qsizetype(size.width()) * size.height(), gifColor(color)), delay);
    return file + gifEnd();
}

QByteArray gifQuarters(const QSize& size)
{
    const QImage picture = quarters(size);
    QByteArray pixels;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            pixels += gifColor(picture.pixelColor(x, y));
    }
    return gifHead(size) + gifFrame(size, pixels, 0) + gifEnd();
}

QByteArray gifOfFrames(const QSize& size, int count)
{
    const QByteArray frame = gifFrame(QSize(1, 1), QByteArray(1, '\1'), 1);
    return gifHead(size) + frame.repeated(count) + gifEnd();
}

QByteArray drawing(const QSize& size, const QByteArray& content)
{
    const QByteArray width = QByteArray::number(size.width());
    const QByteArray height = QByteArray::number(size.height());
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"" + width
           + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + ' ' + height + "\">" + content + "</svg>";
}

QByteArray drawnQuarters(const QSize& size)
{
    const QByteArray width = QByteArray::number(size.width() / 2);
    const QByteArray height = QByteArray::number(size.height() / 2);
    QByteArray content;
    for (int i = 0; i < 4; ++i) {
        content += "<rect x=\"" + (i % 2 ? width : "0") + "\" y=\"" + (i / 2 ? height : "0") + "\" width=\"" + width
                   + "\" height=\"" + height + "\" fill=\"" + quarterColors().at(std::size_t(i)).name().toLatin1()
                   + "\"/>";
    }
    return drawing(size, content);
}

QByteArray greyPng(const QSize& size)
{
    const QByteArray head = bigEndian(quint32(size.width())) + bigEndian(quint32(size.height()))
                            + QByteArray::fromHex("0800000000"); // eight bits of grey
    const QByteArray row = QByteArray(1, '\0') + QByteArray(size.width(), '\x80');
    // A few rows stand for all where there would be too many.
    const int rows = qMin(size.height(), qMax(1, 64 * 1024 * 1024 / qMax(size.width(), 1)));
    return QByteArray::fromHex("89504e470d0a1a0a") + pngChunk("IHDR", head)
           + pngChunk("IDAT", packed(row.repeated(rows))) + pngChunk("IEND", {});
}

QByteArray withPngChunk(const QByteArray& png, const char* name, const QByteArray& chunk)
{
    constexpr qsizetype EndOfHead = 8 + 25; // the signature and the first chunk
    return png.first(EndOfHead) + pngChunk(name, chunk) + png.sliced(EndOfHead);
}

void write(const QString& file, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(file));
}

bool isQuarters(const QImage& picture, int tolerance)
{
    for (int i = 0; i < 4; ++i) {
        const QColor found =
            picture.pixelColor((i % 2 ? 3 : 1) * picture.width() / 4, (i / 2 ? 3 : 1) * picture.height() / 4);
        const QColor& wanted = quarterColors().at(std::size_t(i));
        if (qAbs(found.red() - wanted.red()) > tolerance || qAbs(found.green() - wanted.green()) > tolerance
            || qAbs(found.blue() - wanted.blue()) > tolerance || found.alpha() != 255)
            return false;
    }
    return true;
}

} // namespace SamplePictures
