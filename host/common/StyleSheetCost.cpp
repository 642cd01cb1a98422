#include "host/common/StyleSheetCost.h"

namespace Korvex::Meridane::Common {
namespace {
constexpr qint64 MostLetters = 256 * 1024; // reading a style sheet takes about 60 times its size in memory
constexpr qint64 MostSteps = 10 * 1000 * 1000; // about half a second
constexpr qint64 LettersAStep = 8;
} // namespace

void StyleSheetCost::addStyleSheet(QStringView text)
{
    m_letters += text.size();
    int braces = 0;
    for (const QChar c : text) {
        if (c == u'{') {
            ++braces;
            ++m_selectors;
        } else if (c == u'}') {
            braces = qMax(braces - 1, 0);
        } else if (c == u',' && braces == 0) {
            ++m_selectors;
        } else if (c == u'+' || c == u'~') {
            m_looksAtSiblings = true;
        }
    }
}

void StyleSheetCost::addElement(int depth, int place, QStringView classes)
{
    m_ancestors += depth;
    m_siblings += place;
    m_classLetters += classes.size();
}

bool StyleSheetCost::isTooLarge() const
{
    const qint64 steps = m_ancestors + m_classLetters / LettersAStep + (m_looksAtSiblings ? m_siblings : 0);
    return m_letters > MostLetters || (m_selectors > 0 && steps > MostSteps / m_selectors);
}
} // namespace Korvex::Meridane::Common
