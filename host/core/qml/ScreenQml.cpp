#include "host/core/qml/ScreenQml.h"

#include "host/core/objects/Screen.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/qml/ExportContent.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

QStringList linesIn(const QString& text)
{
    return text.split(QLatin1Char('\n'));
}

/// Where \a part begins in \a lines, at or after \a from; -1 where it does not.
qsizetype find(const QStringList& lines, const QStringList& part, qsizetype from)
{
    const auto found = std::search(lines.cbegin() + from, lines.cend(), part.cbegin(), part.cend());
    return found == lines.cend() ? -1 : found - lines.cbegin();
}

/// Calls \a visit for each child of \a owner that has QML, with its place in \a lines, the QML of \a owner at \a indent.
template <typename Visit>
void visitChildren(const DesignerObject* owner, const QStringList& lines, int indent, const Visit& visit)
{
    const ObjectListProperty* list = owner->childList();
    if (!list)
        return;
    qsizetype from = 0;
    for (DesignerObject* child : list->items()) {
        const QString qml = child->toQml(indent + 1);
        if (qml.isEmpty())
            continue;
        const QStringList part = linesIn(qml);
        const qsizetype first = find(lines, part, from);
        if (first < 0)
            continue;
        visit(child, LineRange{int(first), int(part.size())}, part);
        from = first + part.size();
    }
}

LineRange rangeIn(const DesignerObject* owner, const QStringList& lines, int indent, const DesignerObject* wanted)
{
    if (owner == wanted)
        return {0, int(lines.size())};
    LineRange range;
    visitChildren(owner, lines, indent, [&](DesignerObject* child, LineRange place, const QStringList& part) {
        if (range.count > 0)
            return;
        const LineRange inner = rangeIn(child, part, indent + 1, wanted);
        if (inner.count > 0)
            range = {place.first + inner.first, inner.count};
    });
    return range;
}

DesignerObject* innermostAt(DesignerObject* owner, const QStringList& lines, int indent, int line)
{
    DesignerObject* innermost = owner;
    visitChildren(owner, lines, indent, [&](DesignerObject* child, LineRange place, const QStringList& part) {
        if (line >= place.first && line < place.first + place.count)
            innermost = innermostAt(child, part, indent + 1, line - place.first);
    });
    return innermost;
}

} // namespace

ScreenQml::ScreenQml(const Screen* screen)
    : m_screen(screen)
{
    compose();
}

void ScreenQml::compose()
{
    const QString qml = m_screen->toQml(0);
    m_blocks.clear();
    m_places.clear();
    m_firstLines.clear();
    // Each element is looked for in the text of the screen from where the last one ended.
    QStringList all = linesIn(qml);
    qsizetype begin = 0;
    visitChildren(m_screen, all, 0, [&](DesignerObject* child, LineRange place, const QStringList& part) {
        if (m_blocks.empty())
            m_head = all.first(std::max(place.first - 1, 0));
        m_places.insert(child, int(m_blocks.size()));
        m_blocks.push_back({child, part});
        begin = place.first + place.count;
    });
    if (m_blocks.empty()) {
        // What a first element would follow: all but the brace.
        begin = std::max<qsizetype>(all.size() - 1, 0);
        m_head = all.first(begin);
    }
    m_tail = all.sliced(begin);
    m_head = ExportContent::importLines() + m_head;
    m_tail.append(QString()); // the file ends with a line break
    m_lineCount = int(m_head.size() + m_tail.size());
    for (const Block& block : m_blocks)
        m_lineCount += int(block.lines.size()) + 1;
}

QStringList ScreenQml::lines() const
{
    QStringList all = m_head;
    all.reserve(m_lineCount);
    for (const Block& block : m_blocks) {
        all.append(QString());
        all += block.lines;
    }
    return all + m_tail;
}

QString ScreenQml::text() const
{
    return lines().join(QLatin1Char('\n'));
}

const DesignerObject* ScreenQml::outermost(const DesignerObject* object, const Screen* screen)
{
    while (object && object->parentObject() != screen)
        object = object->parentObject();
    return object;
}

const std::vector<int>& ScreenQml::firstLines() const
{
    if (m_firstLines.empty() && !m_blocks.empty()) {
        m_firstLines.reserve(m_blocks.size());
        int first = int(m_head.size()) + 1;
        for (const Block& block : m_blocks) {
            m_firstLines.push_back(first);
            first += int(block.lines.size()) + 1;
        }
    }
    return m_firstLines;
}

LineChange ScreenQml::update(const DesignerObject* object)
{
    const DesignerObject* element = outermost(object, m_screen);
    const int index = element ? blockOf(element) : -1;
    const QString qml = index < 0 ? QString() : element->toQml(1);
    if (qml.isEmpty())
        return rebuild();
    Block& block = m_blocks[std::size_t(index)];
    const QStringList before = std::exchange(block.lines, linesIn(qml));
    LineChange change = difference(before, block.lines, firstLines()[std::size_t(index)]);
    if (before.size() != block.lines.size()) {
        m_lineCount += int(block.lines.size() - before.size());
        m_firstLines.clear();
    }
    return change;
}

LineChange ScreenQml::rebuild()
{
    const QStringList before = lines();
    compose();
    return difference(before, lines(), 0);
}

LineRange ScreenQml::linesOf(const DesignerObject* object) const
{
    if (object == m_screen)
        return {int(ExportContent::importLines().size()), m_lineCount - int(ExportContent::importLines().size()) - 1};
    const DesignerObject* element = outermost(object, m_screen);
    const int index = element ? blockOf(element) : -1;
    if (index < 0)
        return {};
    const LineRange inner = rangeIn(element, m_blocks[std::size_t(index)].lines, 1, object);
    return {firstLines()[std::size_t(index)] + inner.first, inner.count};
}

DesignerObject* ScreenQml::objectAt(int line) const
{
    auto* screen = const_cast<Screen*>(m_screen);
    if (line < ExportContent::importLines().size() || line >= m_lineCount - 1)
        return nullptr;
    const auto after = std::upper_bound(firstLines().cbegin(), firstLines().cend(), line);
    if (after == firstLines().cbegin())
        return screen;
    const auto index = std::size_t(after - firstLines().cbegin()) - 1;
    const Block& block = m_blocks[index];
    const int inner = line - firstLines()[index];
    if (inner >= block.lines.size())
        return screen;
    const ObjectListProperty* list = m_screen->childList();
    const auto element = std::find(list->items().cbegin(), list->items().cend(), block.element);
    return element == list->items().cend() ? nullptr : innermostAt(*element, block.lines, 1, inner);
}

LineChange ScreenQml::difference(const QStringList& before, const QStringList& after, int first)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype same = 0;
    while (same < shorter && before.at(same) == after.at(same))
        ++same;
    qsizetype sameAtEnd = 0;
    while (sameAtEnd < shorter - same
           && before.at(before.size() - 1 - sameAtEnd) == after.at(after.size() - 1 - sameAtEnd))
        ++sameAtEnd;
    return {{first + int(same), int(before.size() - same - sameAtEnd)},
            after.sliced(same, after.size() - same - sameAtEnd)};
}

} // namespace Korvex::Meridane::Designer
