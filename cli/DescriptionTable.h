#pragma once

#include <QString>

class QJsonArray;

namespace Korvex::Meridane::Designer {

/// Descriptions of classes as tables for people.
class DescriptionTable
{
public:
    DescriptionTable() = delete;

    /// \a classes as ClassDescription gives them. Values with line breaks or tabs are written with escapes.
    [[nodiscard]] static QString text(const QJsonArray& classes);
};

} // namespace Korvex::Meridane::Designer
