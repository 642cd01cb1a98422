#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QMetaEnum>
#include <QtCore/QString>

namespace Korvex::Meridane::Designer {
/** One value of an enumeration that is known at run time. */
class MERIDANE_CORE_EXPORT EnumInfo
{
public:
    /** No enumeration: value 0, no key. */
    EnumInfo() = default;

    EnumInfo(const QMetaEnum& metaEnum, int value)
        : m_metaEnum(metaEnum)
        , m_value(value)
    {}

    [[nodiscard]] const QMetaEnum& metaEnum() const { return m_metaEnum; }
    [[nodiscard]] int value() const { return m_value; }

    /** The name of value() in the enumeration, its value string; empty when the enumeration has no such value. */
    [[nodiscard]] QString key() const;

    /** The same value of the same enumeration (the same name in the same scope). */
    MERIDANE_CORE_EXPORT friend bool operator==(const EnumInfo& a, const EnumInfo& b);

private:
    QMetaEnum m_metaEnum;
    int m_value = 0;
};
} // namespace Korvex::Meridane::Designer
