#include "host/core/values/EnumInfo.h"

namespace Korvex::Meridane::Designer {
QString EnumInfo::key() const
{
    return m_metaEnum.isValid() ? QString::fromLatin1(m_metaEnum.valueToKey(m_value)) : QString();
}

bool operator==(const EnumInfo& a, const EnumInfo& b)
{
    if (a.m_value != b.m_value || a.m_metaEnum.isValid() != b.m_metaEnum.isValid()) {
        return false;
    }
    return !a.m_metaEnum.isValid()
           || (qstrcmp(a.m_metaEnum.enumName(), b.m_metaEnum.enumName()) == 0
               && qstrcmp(a.m_metaEnum.scope(), b.m_metaEnum.scope()) == 0);
}
} // namespace Korvex::Meridane::Designer
