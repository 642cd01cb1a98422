#include "lines/LineDirection.h"

#include "host/common/RealComparison.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int FirstStep = 1;
constexpr int LastStep = 8999;
constexpr double Step = M_PI / 18000; // 0.01 degrees in radians

/// The steps first … last; no f in it is below \a bound.
struct Range
{
    int first;
    int last;
    double bound;
};

bool higherBound(const Range& a, const Range& b)
{
    return a.bound > b.bound;
}

/// f is the absolute value of g(θ) = w cos θ − h sin θ − t cos 2θ.
class Search
{
public:
    Search(const QSizeF& box, double thickness, double shortest)
        : m_box(box)
        , m_thickness(thickness)
        , m_shortest(shortest)
    {
        const double diagonal = std::hypot(box.width(), box.height());
        m_steepest = diagonal + 2 * std::abs(thickness);
        m_mostCurved = diagonal + 4 * std::abs(thickness);
        m_slack = 1e-12 * m_mostCurved;
    }

    /// The step with the smallest f, or 0 when no step gives a line that is long enough.
    int best()
    {
        m_ranges.push_back({FirstStep, LastStep, 0});
        // The range with the lowest bound comes first: once it cannot win, none can.
        while (!m_ranges.empty() && !(m_ranges.front().bound > m_bestDistance)) {
            std::pop_heap(m_ranges.begin(), m_ranges.end(), higherBound);
            const Range range = m_ranges.back();
            m_ranges.pop_back();
            split(range);
        }
        return m_best;
    }

private:
    struct Visit
    {
        double distance; // f
        double steepness; // of f, without its sign, per radian
    };

    void split(const Range& range)
    {
        const int middle = (range.first + range.last) / 2;
        const Visit visited = visit(middle);
        const auto add = [&](int first, int last, int steps) {
            if (first > last)
                return;
            const double reach = steps * Step;
            const double change = std::min(m_steepest, visited.steepness + 0.5 * m_mostCurved * reach) * reach;
            const double bound = visited.distance - change - m_slack;
            if (bound > m_bestDistance)
                return;
            m_ranges.push_back({first, last, bound});
            std::push_heap(m_ranges.begin(), m_ranges.end(), higherBound);
        };
        add(range.first, middle - 1, middle - range.first);
        add(middle + 1, range.last, range.last - middle);
    }

    Visit visit(int step)
    {
        const double angle = step * M_PI / 18000;
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        const double dx = m_box.width() - c * m_thickness;
        const double dy = m_box.height() - m_thickness * s;
        const double distance = std::abs(c * dx - s * dy);
        const bool better = distance < m_bestDistance || (distance == m_bestDistance && step < m_best);
        if (better && (m_shortest <= 0 || std::hypot(dx, dy) >= m_shortest)) {
            m_bestDistance = distance;
            m_best = step;
        }
        return {distance, std::abs(4 * m_thickness * s * c - m_box.width() * s - m_box.height() * c)};
    }

    QSizeF m_box;
    double m_thickness;
    double m_shortest;
    double m_steepest; // the most that f changes by, per radian
    double m_mostCurved; // the most that the steepness changes by, per radian
    double m_slack; // the rounding errors of f and of the bound
    std::vector<Range> m_ranges;
    double m_bestDistance = std::numeric_limits<double>::infinity();
    int m_best = 0;
};

} // namespace

QPointF lineDirection(const QSizeF& box, double thickness, double shortest)
{
    if (!std::isfinite(box.width()) || !std::isfinite(box.height()) || !std::isfinite(thickness))
        return {-1, -1};
    const double area = box.width() * box.height();
    if (thickness > area)
        return {-1, -1};
    if (Common::equalToDecimals(thickness, area, 2))
        return {0, 0};
    const int step = Search(box, thickness, shortest).best();
    if (step == 0)
        return {-1, -1};
    const double angle = step * M_PI / 18000;
    return {thickness * std::cos(angle), thickness * std::sin(angle)};
}

} // namespace Korvex::Meridane::Designer
