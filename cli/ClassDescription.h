#pragma once

#include <QJsonObject>
#include <QString>

namespace Korvex::Meridane::Designer {

/// What there is to know about a class of objects, as `describe --json` writes it.
class ClassDescription
{
public:
    ClassDescription() = delete;

    /**
     * The description of \a className: its names, its properties by rank with the inherited ones, and its run-time
     * properties. An object of the class and its canvas item are made for it and dropped again. Empty when there is no
     * such class.
     */
    [[nodiscard]] static QJsonObject describe(const QString& className);
};

} // namespace Korvex::Meridane::Designer
