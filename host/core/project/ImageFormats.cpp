#include "host/core/project/ImageFormats.h"

#include "host/common/LocalizationHelper.h"

#include <QBuffer>
#include <QImageReader>
#include <QSet>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

struct Format
{
    const char* name;
    QStringList suffixes;
    bool common;
};

const QList<Format>& formats()
{
    static const QList<Format> list{
        {"png", {QStringLiteral("png")}, true},
        {"jpeg", {QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("jpe"), QStringLiteral("jfif")}, true},
        {"webp", {QStringLiteral("webp")}, true},
        {"bmp", {QStringLiteral("bmp"), QStringLiteral("dib")}, true},
        {"gif", {QStringLiteral("gif")}, true},
        {"svg", {QStringLiteral("svg")}, true},
        {"tiff", {QStringLiteral("tif"), QStringLiteral("tiff")}, false},
    };
    return list;
}

const Format* find(const QByteArray& name)
{
    const auto found =
        std::find_if(formats().cbegin(), formats().cend(), [&](const Format& format) { return name == format.name; });
    return found == formats().cend() ? nullptr : &*found;
}

} // namespace

QByteArray ImageFormats::formatOf(const QByteArray& content)
{
    QBuffer buffer;
    buffer.setData(content);
    if (!buffer.open(QIODevice::ReadOnly))
        return {};
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    QByteArray format = reader.format().toLower();
    // Readers that serve several endings call the format by one of them.
    for (const Format& known : formats()) {
        if (known.suffixes.contains(QString::fromLatin1(format)))
            return known.name;
    }
    return format;
}

bool ImageFormats::isCommon(const QByteArray& format)
{
    const Format* known = find(format);
    return known && known->common;
}

QStringList ImageFormats::suffixes(const QByteArray& format)
{
    const Format* known = find(format);
    return known ? known->suffixes : QStringList{QString::fromLatin1(format)};
}

bool ImageFormats::nameSameFormat(const QString& one, const QString& other)
{
    const QString suffix = one.toLower();
    if (suffix == other.toLower())
        return true;
    return std::any_of(formats().cbegin(), formats().cend(), [&](const Format& format) {
        return format.suffixes.contains(suffix) && format.suffixes.contains(other.toLower());
    });
}

bool ImageFormats::isPictureSuffix(const QString& suffix)
{
    static const QSet<QString> known = [] {
        QSet<QString> suffixes;
        const QList<QByteArray> readable = QImageReader::supportedImageFormats();
        for (const QByteArray& format : readable)
            suffixes.insert(QString::fromLatin1(format));
        for (const Format& format : formats())
            suffixes.unite(QSet<QString>(format.suffixes.cbegin(), format.suffixes.cend()));
        return suffixes;
    }();
    return known.contains(suffix.toLower());
}

QString ImageFormats::fileFilter()
{
    const QList<QByteArray> readable = QImageReader::supportedImageFormats();
    QStringList patterns;
    for (const Format& format : formats()) {
        if (!format.common || !readable.contains(format.name))
            continue;
        for (const QString& suffix : format.suffixes)
            patterns.append(QStringLiteral("*.") + suffix);
    }
    return Common::LocalizationHelper::coreString(QStringLiteral("Images (%1);;All Files (*)"))
        .arg(patterns.join(QLatin1Char(' ')));
}

} // namespace Korvex::Meridane::Designer
