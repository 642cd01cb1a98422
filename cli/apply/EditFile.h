#pragma once

#include <QJsonArray>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

/// The EDITS of a command line.
class EditFile
{
public:
    EditFile() = delete;

    /// The array of edits in \a file, "-" being standard input. Nothing, with a message that names the file and the
    /// place, when it cannot be read, is no JSON array or has a key twice in one object.
    [[nodiscard]] static std::optional<QJsonArray> read(const QString& file, QString* message);
};

} // namespace Korvex::Meridane::Designer
