#include "host/common/DrawingElements.h"

namespace Korvex::Meridane::Common {
namespace {
constexpr qint64 Unknown = 0; // every element weighs more
constexpr qint64 BeingCounted = -2;
constexpr int MostSteps = 2000; // keeps the recursion shallow
} // namespace

int DrawingElements::add(const Element& element, int parent)
{
    const int index = int(m_nodes.size());
    if (parent >= 0) {
        m_nodes[parent].children.append(index);
    }
    if (!element.id.isEmpty()) {
        m_targets[element.id].elements.append(index);
    }
    m_nodes.append({element, {}, Unknown});
    return index;
}

void DrawingElements::addWeight(int element, qint64 weight)
{
    m_nodes[element].element.weight += weight;
}

qint64 DrawingElements::expandedWeight(qint64 most)
{
    return m_nodes.isEmpty() ? 0 : expandElement(0, most, 0);
}

qint64 DrawingElements::expandElement(int index, qint64 most, int depth)
{
    Node& node = m_nodes[index];
    if (node.expanded == BeingCounted || depth > MostSteps) {
        return Endless;
    }
    if (node.expanded != Unknown) {
        return node.expanded;
    }
    node.expanded = BeingCounted;
    qint64 weight = expandAll(node.children, node.element.weight, most, depth);
    for (const QString& id : std::as_const(node.element.references)) {
        const qint64 target = weight == Endless ? Endless : expandTarget(id, most, depth + 1);
        weight = target == Endless ? Endless : qMin(weight + target, most + 1);
    }
    return node.expanded = weight;
}

qint64 DrawingElements::expandTarget(const QString& id, qint64 most, int depth)
{
    const auto target = m_targets.find(id);
    if (target == m_targets.end()) {
        return 0;
    }
    if (target->expanded == BeingCounted) {
        return Endless;
    }
    if (target->expanded == Unknown) {
        target->expanded = BeingCounted;
        target->expanded = expandAll(target->elements, 0, most, depth);
    }
    return target->expanded;
}

qint64 DrawingElements::expandAll(const QList<int>& elements, qint64 weight, qint64 most, int depth)
{
    for (const int element : elements) {
        const qint64 expanded = expandElement(element, most, depth + 1);
        if (expanded == Endless) {
            return Endless;
        }
        weight = qMin(weight + expanded, most + 1);
    }
    return weight;
}
} // namespace Korvex::Meridane::Common
