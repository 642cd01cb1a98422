#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QString>

namespace Korvex::Meridane::Designer {

/// Something wrong with a project, named so that the user can find it.
struct MERIDANE_CORE_EXPORT Problem
{
    enum class Severity
    {
        Warning,
        Error
    };

    /// What kind of fault it is, where the program knows a way to mend it (see ProblemFix).
    enum class Kind
    {
        Other,
        InvalidValue, ///< the property's value does not convert, is refused, or lies beyond what can be entered
        OffScreen, ///< the element lies outside of its screen
        MissingImage ///< the property names an image file that is not there
    };

    Severity severity = Severity::Error;
    QString file; ///< path relative to the project's folder, or absolute when there is no folder
    QString object; ///< "screen/id", the screen's id, or empty
    QString property; ///< the property's id, or empty
    QString message; ///< what is wrong and what to do, a sentence
    Kind kind = Kind::Other;

    [[nodiscard]] static Problem error(const QString& file, const QString& object, const QString& property,
                                       const QString& message);
    [[nodiscard]] static Problem warning(const QString& file, const QString& object, const QString& property,
                                         const QString& message);

    /// One line: "file: object.property: message". What is empty is left out; control characters are shown as "\n",
    /// "\t" or "\u001b", so that no text of a project can forge a line of its own.
    [[nodiscard]] QString text() const;

    friend bool operator==(const Problem& a, const Problem& b) = default;
};

} // namespace Korvex::Meridane::Designer
