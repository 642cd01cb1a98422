#pragma once

#include "host/core/CoreExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/// The formats of picture files: how content tells its format, and how files of a format are called. The name decides how
/// a picture is shown, so that it has to tell the truth.
class MERIDANE_CORE_EXPORT ImageFormats
{
public:
    ImageFormats() = delete;

    /// The format of the picture in \a content ("png", "jpeg", "svg" …), whatever its file is called; empty when no
    /// reader knows it. Nothing is decoded.
    [[nodiscard]] static QByteArray formatOf(const QByteArray& content);
    /// Whether every display is expected to show pictures of \a format.
    [[nodiscard]] static bool isCommon(const QByteArray& format);
    /// The endings of file names of \a format, in lower case without the dot; the usual one first.
    [[nodiscard]] static QStringList suffixes(const QByteArray& format);
    /// Whether file names may end in one of \a one and \a other alike: both name the same format.
    [[nodiscard]] static bool nameSameFormat(const QString& one, const QString& other);
    /// Whether \a suffix, without the dot, is that of pictures.
    [[nodiscard]] static bool isPictureSuffix(const QString& suffix);
    /// The filter of file dialogs for the pictures that can be imported.
    [[nodiscard]] static QString fileFilter();
};

} // namespace Korvex::Meridane::Designer
