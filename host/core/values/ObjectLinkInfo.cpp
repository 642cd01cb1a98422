#include "host/core/values/ObjectLinkInfo.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {
namespace {
bool isPathOrControlCharacter(QChar c)
{
    return c == u'/' || c == u'\\' || c == u':' || c.category() == QChar::Other_Control
           || c.category() == QChar::Separator_Line || c.category() == QChar::Separator_Paragraph;
}
} // namespace

bool ObjectLinkInfo::isValid() const
{
    if (m_objectId.isEmpty()) {
        return true;
    }
    if (m_objectId == QLatin1String(".") || m_objectId == QLatin1String("..")) {
        return false;
    }
    if (m_objectId.front().isSpace() || m_objectId.back().isSpace()) {
        return false;
    }
    return m_objectId.isValidUtf16() && std::none_of(m_objectId.cbegin(), m_objectId.cend(), isPathOrControlCharacter);
}
} // namespace Korvex::Meridane::Designer
