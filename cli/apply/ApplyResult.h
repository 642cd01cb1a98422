#pragma once

#include <QJsonObject>
#include <QString>

namespace Korvex::Meridane::Designer {

/// What became of one edit: the line that is written for it, without the name of the operation.
struct ApplyResult
{
    bool ok = false;
    QString message; ///< why the edit was refused; empty when it was not
    QJsonObject extra; ///< what the operation gives back

    [[nodiscard]] static ApplyResult accepted(const QJsonObject& extra = {}) { return {true, {}, extra}; }
    [[nodiscard]] static ApplyResult refused(const QString& message) { return {false, message, {}}; }
};

} // namespace Korvex::Meridane::Designer
