#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/NumberOperation.h"

#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/**
 * The parts of value strings that a user edits one by one: the width of a size, the colour of a border.
 *
 * With several elements selected an edit of one part must leave the other parts of each element as they are. A property
 * class with parts is named by its class name ("SizeProperty"); every other class has one part, the whole value, which
 * the empty component name stands for.
 *
 * | class | components |
 * |---|---|
 * | SizeProperty | width, height |
 * | PointProperty | x, y |
 * | BorderProperty | width, color |
 * | RotationProperty | angle, fixedPoint |
 * | FontProperty | family, size, bold (any weight), italic, underline, overline, strikeOut, letterSpacing, wordSpacing |
 */
class MERIDANE_CORE_EXPORT ValueComponents
{
public:
    ValueComponents() = delete;

    /// The components of \a propertyClass in the order of the table; empty for a class whose values are one part.
    [[nodiscard]] static QStringList names(const QString& propertyClass);

    /// \a ownValue with \a component taken over from \a editedValue. The whole of \a editedValue where the component is
    /// empty or unknown, or where one of the two does not convert.
    [[nodiscard]] static QString withComponent(const QString& propertyClass, const QString& ownValue,
                                               const QString& component, const QString& editedValue);

    /// \a ownValue with \a operation applied to the number that \a component (empty: the whole value) is. Whole numbers
    /// stay whole, and a border's width stays 0 or more. A spacing that a font does not name is 0. \a ownValue itself where it does not convert, where the
    /// component is no number, or where the result would be no value of the class.
    [[nodiscard]] static QString withOperation(const QString& propertyClass, const QString& ownValue,
                                               const QString& component, const NumberOperation& operation);

    /// The components in which the two values differ. Where they differ without components, or one does not convert:
    /// the empty name, for the whole value. An empty list for equal values.
    [[nodiscard]] static QStringList changedComponents(const QString& propertyClass, const QString& before,
                                                       const QString& after);
};

} // namespace Korvex::Meridane::Designer
