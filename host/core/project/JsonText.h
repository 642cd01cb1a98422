#pragma once

#include "host/core/CoreExport.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

/// The text of a project's JSON files.
class MERIDANE_CORE_EXPORT JsonText
{
public:
    JsonText() = delete;

    /// The object that \a text holds. Nothing, and a sentence with the line, for a text that is empty, cut off, no
    /// JSON, nested too deeply, no object, in the middle of a merge, or in which a key stands twice in one object.
    [[nodiscard]] static std::optional<QJsonObject> parse(const QByteArray& text, QString* error);

    /// \a object, a key a line, in a fixed order, with a line break at the end.
    [[nodiscard]] static QByteArray write(const QJsonObject& object);

    /// The kind of \a value in words: "a number", "an object".
    [[nodiscard]] static QString kindOf(const QJsonValue& value);
    /// \a value as it would stand in a file, on one line.
    [[nodiscard]] static QString compact(const QJsonValue& value);
};

} // namespace Korvex::Meridane::Designer
