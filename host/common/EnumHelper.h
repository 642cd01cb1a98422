#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QMap>
#include <QtCore/QMetaEnum>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace Korvex::Meridane::Common {
/**
 * Enumerations that properties and editors find by name: "TransformOrigin", "TextStyle", "GradientSpread" and
 * "VariableType".
 */
class MERIDANE_COMMON_EXPORT EnumHelper
{
    Q_GADGET
public:
    EnumHelper() = delete;

    /** Type of a property that a running display can read and write. The numbers are part of what elements publish. */
    enum VariableType
    {
        Boolean = 1,
        Integer = 2,
        Real = 3,
        String = 4,
        Color = 6,
        List = 9
    };
    Q_ENUM(VariableType)

    /** How a text box draws its letters. The numbers are those of exported screens. */
    enum TextStyle
    {
        Standard = 0,
        Outline = 1,
        Raised = 2,
        Sunken = 3
    };
    Q_ENUM(TextStyle)

    /** How a gradient goes on beyond its ends. The numbers are those of QGradient::Spread and of exported screens. */
    enum GradientSpread
    {
        PadSpread = 0,
        ReflectSpread = 1,
        RepeatSpread = 2
    };
    Q_ENUM(GradientSpread)

    /** The enumeration called @p name; an invalid QMetaEnum when there is none. */
    [[nodiscard]] static QMetaEnum createEnum(const QString& name);

    /** Key to shown, localised text of every value of the enumeration @p name; empty when there is none. */
    [[nodiscard]] static QMap<QString, QString> getEnumNames(const char* name);
};
} // namespace Korvex::Meridane::Common
