#pragma once

#include "host/core/CoreExport.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Screen;

/// Lines of a text, counted from 0; none where count is 0.
struct LineRange
{
    int first = 0;
    int count = 0;
};

/// What became other lines: in the place of the range \a old stand \a lines.
struct LineChange
{
    LineRange old;
    QStringList lines;
};

/**
 * The QML of a screen, as an export writes it, by lines, with the object that each line belongs to.
 *
 * A change is taken over element by element, where an element directly on the screen is the smallest part: of a screen
 * with thousands of them only the lines of those that changed are made anew.
 */
class MERIDANE_CORE_EXPORT ScreenQml
{
public:
    /// \a screen outlives this and has been read.
    explicit ScreenQml(const Screen* screen);

    [[nodiscard]] const Screen* screen() const { return m_screen; }
    [[nodiscard]] int lineCount() const { return m_lineCount; }
    [[nodiscard]] QStringList lines() const;
    [[nodiscard]] QString text() const;

    /// Takes over what changed in \a object, which stands on the screen, or in the screen's own values.
    LineChange update(const DesignerObject* object);
    /// Takes over everything, elements that came, went or moved in the order included.
    LineChange rebuild();

    /// The lines of \a object with all that is in it; none for one that is not on the screen.
    [[nodiscard]] LineRange linesOf(const DesignerObject* object) const;
    /// The innermost object that \a line belongs to, the screen where that is no element; null for lines outside of it.
    [[nodiscard]] DesignerObject* objectAt(int line) const;

    /// The smallest change that makes \a after of \a before, \a before beginning at the line \a first.
    [[nodiscard]] static LineChange difference(const QStringList& before, const QStringList& after, int first);
    /// The element directly on the screen that \a object is or stands in; null for the screen and for other screens'.
    [[nodiscard]] static const DesignerObject* outermost(const DesignerObject* object, const Screen* screen);

private:
    struct Block
    {
        const DesignerObject* element; // names it; only used after it was found on the screen again
        QStringList lines;
    };

    void compose();
    /// The index of the block of \a element, or -1.
    [[nodiscard]] int blockOf(const DesignerObject* element) const { return m_places.value(element, -1); }
    /// The first lines of the blocks.
    [[nodiscard]] const std::vector<int>& firstLines() const;

    const Screen* m_screen;
    QStringList m_head; // up to the first element
    QStringList m_tail; // after the last
    std::vector<Block> m_blocks; // an empty line stands before each
    QHash<const DesignerObject*, int> m_places; // in m_blocks
    mutable std::vector<int> m_firstLines; // empty while they are not known
    int m_lineCount = 0;
};

} // namespace Korvex::Meridane::Designer
