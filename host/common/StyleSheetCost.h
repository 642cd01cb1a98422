#pragma once

#include <QtCore/QStringView>

namespace Korvex::Meridane::Common {
/**
 * What the style sheets of a drawing cost while it is read: every selector is tried on every element.
 *
 * To be told all style sheets and elements, in any order.
 */
class StyleSheetCost
{
public:
    void addStyleSheet(QStringView text);
    /** An element on level \p depth, from 1, which is number \p place of its siblings, from 0. \p classes: its attribute. */
    void addElement(int depth, int place, QStringView classes);

    [[nodiscard]] bool isTooLarge() const;

private:
    qint64 m_letters = 0;
    qint64 m_selectors = 0;
    bool m_looksAtSiblings = false;
    qint64 m_ancestors = 0; // that selectors walk up to
    qint64 m_siblings = 0; // that selectors walk back to
    qint64 m_classLetters = 0;
};
} // namespace Korvex::Meridane::Common
