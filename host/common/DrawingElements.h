#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Korvex::Meridane::Common {
/** The elements of a drawing with what they refer to, to be counted as often as they are painted. */
class DrawingElements
{
public:
    struct Element
    {
        QString id; ///< empty without one
        qint64 weight = 1; ///< what painting the element alone costs, in plain elements
        QStringList references; ///< the ids of what is painted or used together with it
    };

    /** Adds \p element below the one numbered \p parent (-1: none) and returns its number, from 0. */
    int add(const Element& element, int parent);
    void addWeight(int element, qint64 weight);
    [[nodiscard]] int count() const { return int(m_nodes.size()); }

    static constexpr qint64 Endless = -1;
    /**
     * What the first element comes to once all references are followed; one more than \p most when it is more than that.
     * Endless when references lead in a circle, or one to the next for more than 2000 steps.
     */
    [[nodiscard]] qint64 expandedWeight(qint64 most);

private:
    struct Node
    {
        Element element;
        QList<int> children;
        qint64 expanded = 0; // or a state, before it is known
    };

    /** The elements that share an id; of several, readers choose differently. */
    struct Target
    {
        QList<int> elements;
        qint64 expanded = 0; // of all of them
    };

    [[nodiscard]] qint64 expandElement(int index, qint64 most, int depth);
    [[nodiscard]] qint64 expandTarget(const QString& id, qint64 most, int depth);
    [[nodiscard]] qint64 expandAll(const QList<int>& elements, qint64 weight, qint64 most, int depth);

    QList<Node> m_nodes;
    QHash<QString, Target> m_targets;
};
} // namespace Korvex::Meridane::Common
