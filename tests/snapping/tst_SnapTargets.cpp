#include "host/core/snapping/SnapTargets.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace Korvex::Meridane::Designer;

namespace {

/// From \a low to below \a high, evenly in every case: RapidCheck's own range begins with the small numbers.
int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

/// A rectangle on whole or half pixels.
QRectF anyRect()
{
    return {anyNumber(0, 600) / 2., anyNumber(0, 400) / 2., anyNumber(1, 160) / 2., anyNumber(1, 120) / 2.};
}

/// What stands on a screen, in the order of its making.
struct Layout
{
    QVector<QRectF> elements;
    QVector<double> guidesX;
    QVector<double> guidesY;
    QSizeF grid;

    [[nodiscard]] SnapTargets targets() const
    {
        SnapTargets targets;
        targets.addScreen(screen());
        for (const QRectF& element : elements)
            targets.addElement(element);
        for (const double x : guidesX)
            targets.addGuide(Qt::Vertical, x);
        for (const double y : guidesY)
            targets.addGuide(Qt::Horizontal, y);
        targets.setGrid(grid);
        targets.prepare();
        return targets;
    }
    static QRectF screen() { return {0, 0, 320, 240}; }
};

Layout anyLayout()
{
    Layout layout;
    for (int i = anyNumber(0, 12); i > 0; --i)
        layout.elements.append(anyRect());
    for (int i = anyNumber(0, 4); i > 0; --i)
        layout.guidesX.append(anyNumber(0, 640) / 2.);
    for (int i = anyNumber(0, 4); i > 0; --i)
        layout.guidesY.append(anyNumber(0, 480) / 2.);
    if (anyNumber(0, 3) == 0)
        layout.grid = QSizeF(anyNumber(2, 20), anyNumber(2, 20));
    return layout;
}

SnapRequest anyRequest()
{
    SnapRequest request;
    request.rect = anyRect();
    request.edges = SnapEdges(anyNumber(1, 64));
    request.reach = *rc::gen::element(0.2, 1.5, 3.0, 6.0, 12.0, 40.0);
    request.wholePixels = anyNumber(0, 2) == 1;
    return request;
}

/// Where something would have to move along x, and why.
struct Candidate
{
    double correction;
    SnapKind kind;
};

bool sharesRow(const QRectF& a, const QRectF& b)
{
    return a.top() < b.bottom() && b.top() < a.bottom();
}

/// The neighbours of \a rect to its left or right in its row, nearest first, at most four.
QVector<QRectF> neighbours(const QVector<QRectF>& elements, const QRectF& rect, bool left)
{
    QVector<QRectF> row;
    QRectF from = rect;
    int own = -1;
    while (row.size() < 4) {
        int best = -1;
        for (int i = 0; i < elements.size(); ++i) {
            const QRectF& other = elements.at(i);
            if (i == own || !sharesRow(other, from)
                || (left ? other.right() > from.left() : other.left() < from.right()))
                continue;
            const auto isNearer = [&](const QRectF& a, const QRectF& b) {
                return left ? a.right() > b.right() : a.left() < b.left();
            };
            if (best < 0 || isNearer(other, elements.at(best)))
                best = i;
        }
        if (best < 0)
            break;
        own = best;
        from = elements.at(best);
        row.append(from);
    }
    return row;
}

/// All places along x that the request might snap to, without any cleverness.
QVector<Candidate> candidatesX(const Layout& layout, const SnapRequest& request)
{
    const QRectF& rect = request.rect;
    QVector<double> places;
    const bool left = request.edges.testFlag(SnapEdge::Left);
    const bool right = request.edges.testFlag(SnapEdge::Right);
    if (left)
        places.append(rect.left());
    if (request.edges.testFlag(SnapEdge::HorizontalCenter))
        places.append(0.5 * (rect.left() + rect.right()));
    if (right)
        places.append(rect.right());
    QVector<Candidate> candidates;
    for (const double place : std::as_const(places)) {
        for (const double x : layout.guidesX)
            candidates.append({x - place, SnapKind::Guide});
        for (const QRectF& element : layout.elements) {
            for (const double x : {element.left(), 0.5 * (element.left() + element.right()), element.right()})
                candidates.append({x - place, SnapKind::Element});
        }
        for (const double x : {0., 160., 320.})
            candidates.append({x - place, SnapKind::Screen});
    }
    if (layout.grid.width() > 0 && (left || right)) {
        const double place = left ? rect.left() : rect.right();
        for (double x = -10 * layout.grid.width(); x < 500; x += layout.grid.width())
            candidates.append({x - place, SnapKind::Grid});
    }
    const QVector<QRectF> before = neighbours(layout.elements, rect, true);
    const QVector<QRectF> after = neighbours(layout.elements, rect, false);
    QVector<double> gaps;
    for (int i = 1; i < before.size(); ++i)
        gaps.append(before.at(i - 1).left() - before.at(i).right());
    for (int i = 1; i < after.size(); ++i)
        gaps.append(after.at(i).left() - after.at(i - 1).right());
    for (const double gap : std::as_const(gaps)) {
        if (gap <= 0)
            continue;
        if (left && !before.isEmpty())
            candidates.append({before.first().right() + gap - rect.left(), SnapKind::Gap});
        if (right && !after.isEmpty())
            candidates.append({after.first().left() - gap - rect.right(), SnapKind::Gap});
    }
    if (left && right && !before.isEmpty() && !after.isEmpty())
        candidates.append({0.5 * (before.first().right() + after.first().left()) - rect.center().x(), SnapKind::Gap});
    return candidates;
}

/// The same layout and request with x and y exchanged.
Layout transposed(const Layout& layout)
{
    Layout other{{}, layout.guidesY, layout.guidesX, layout.grid.transposed()};
    for (const QRectF& element : layout.elements)
        other.elements.append(QRectF(element.y(), element.x(), element.height(), element.width()));
    return other;
}

} // namespace

class tst_SnapTargets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNearestPlaceOfAllWins()
    {
        const bool held = rc::check("brute force", [] {
            const Layout layout = anyLayout();
            SnapRequest request = anyRequest();
            request.wholePixels = false;
            request.edges &= SnapEdge::Left | SnapEdge::HorizontalCenter | SnapEdge::Right;
            RC_PRE(bool(request.edges));
            const SnapResult result = layout.targets().snap(request);
            double nearest = INFINITY;
            for (const Candidate& candidate : candidatesX(layout, request))
                nearest = std::min(nearest, std::abs(candidate.correction));
            RC_TAG(result.snapsX);
            RC_ASSERT(result.snapsX == (nearest <= request.reach));
            if (result.snapsX)
                RC_ASSERT(std::abs(result.correction.x()) == nearest);
            else
                RC_ASSERT(result.correction.x() == 0);
            RC_ASSERT(!result.snapsY);
        });
        QVERIFY(held);
    }

    void nothingMovesFurtherThanTheReach()
    {
        const bool held = rc::check("reach", [] {
            const SnapRequest request = anyRequest();
            const SnapResult result = anyLayout().targets().snap(request);
            RC_ASSERT(std::abs(result.correction.x()) <= request.reach);
            RC_ASSERT(std::abs(result.correction.y()) <= request.reach);
        });
        QVERIFY(held);
    }

    void whatSnapsStandsExactlyWhereItsLineIs()
    {
        const bool held = rc::check("lines", [] {
            Layout layout = anyLayout();
            layout.grid = QSizeF();
            SnapRequest request = anyRequest();
            request.wholePixels = false;
            const SnapTargets targets = layout.targets();
            const SnapResult result = targets.snap(request);
            const QRectF placed = request.rect.translated(result.correction);
            const SnapMarks marks = targets.marks(placed, request.edges, result);
            bool hasVertical = false;
            bool hasHorizontal = false;
            for (const SnapLine& line : marks.lines) {
                const bool vertical = line.orientation == Qt::Vertical;
                (vertical ? hasVertical : hasHorizontal) = true;
                QVector<double> places;
                if (vertical)
                    places = {placed.left(), placed.center().x(), placed.right()};
                else
                    places = {placed.top(), placed.center().y(), placed.bottom()};
                RC_ASSERT(std::any_of(places.cbegin(), places.cend(),
                                      [&](double place) { return std::abs(place - line.position) < 1e-6; }));
                RC_ASSERT(line.from <= line.to);
            }
            for (const SnapGap& gap : marks.gaps) {
                (gap.orientation == Qt::Horizontal ? hasVertical : hasHorizontal) = true;
                RC_ASSERT(gap.to > gap.from);
            }
            // A gap may have got another neighbour on the way.
            RC_ASSERT(hasVertical == result.snapsX || (result.snapsX && result.kindX == SnapKind::Gap));
            RC_ASSERT(hasHorizontal == result.snapsY || (result.snapsY && result.kindY == SnapKind::Gap));
        });
        QVERIFY(held);
    }

    void xAndYAreChosenIndependently()
    {
        const bool held = rc::check("axes", [] {
            const Layout layout = anyLayout();
            const SnapRequest request = anyRequest();
            const SnapResult both = layout.targets().snap(request);
            SnapRequest alone = request;
            alone.edges = request.edges & (SnapEdge::Left | SnapEdge::HorizontalCenter | SnapEdge::Right);
            RC_ASSERT(layout.targets().snap(alone).correction == QPointF(both.correction.x(), 0));
            alone.edges = request.edges & (SnapEdge::Top | SnapEdge::VerticalCenter | SnapEdge::Bottom);
            RC_ASSERT(layout.targets().snap(alone).correction == QPointF(0, both.correction.y()));
        });
        QVERIFY(held);
    }

    void bothDirectionsFollowTheSameRules()
    {
        const bool held = rc::check("transposed", [] {
            const Layout layout = anyLayout();
            SnapRequest request = anyRequest();
            const SnapResult result = layout.targets().snap(request);
            const QRectF& rect = request.rect;
            request.rect = QRectF(rect.y(), rect.x(), rect.height(), rect.width());
            const int edges = request.edges;
            request.edges = SnapEdges(((edges & 0x07) << 3) | (edges >> 3));
            // The screen is no square: its stops are those of the other direction.
            Layout other = transposed(layout);
            SnapTargets targets;
            targets.addScreen(QRectF(0, 0, 240, 320));
            for (const QRectF& element : std::as_const(other.elements))
                targets.addElement(element);
            for (const double x : std::as_const(other.guidesX))
                targets.addGuide(Qt::Vertical, x);
            for (const double y : std::as_const(other.guidesY))
                targets.addGuide(Qt::Horizontal, y);
            targets.setGrid(other.grid);
            targets.prepare();
            const SnapResult turned = targets.snap(request);
            RC_ASSERT(turned.correction == result.correction.transposed());
        });
        QVERIFY(held);
    }

    void wholePixelsStayWhole()
    {
        const bool held = rc::check("whole pixels", [] {
            SnapRequest request = anyRequest();
            request.wholePixels = true;
            const QPointF correction = anyLayout().targets().snap(request).correction;
            RC_ASSERT(correction.x() == std::round(correction.x()));
            RC_ASSERT(correction.y() == std::round(correction.y()));
        });
        QVERIFY(held);
    }

    void theOrderOfTheAdditionsDoesNotMatter()
    {
        const bool held = rc::check("order", [] {
            Layout layout = anyLayout();
            const SnapRequest request = anyRequest();
            const SnapResult result = layout.targets().snap(request);
            std::reverse(layout.elements.begin(), layout.elements.end());
            std::reverse(layout.guidesX.begin(), layout.guidesX.end());
            RC_ASSERT(layout.targets().snap(request).correction == result.correction);
        });
        QVERIFY(held);
    }

    void guidesComeBeforeElementsAndThoseBeforeTheGrid()
    {
        Layout layout;
        layout.elements = {QRectF(90, 100, 13, 10)};
        layout.guidesX = {110};
        layout.grid = QSizeF(50, 50);
        SnapRequest request{QRectF(100, 0, 1, 1), SnapEdge::Left, 10, true};
        request.rect.moveLeft(106.5); // 3.5 from the guide at 110 and from the element's edge at 103
        request.wholePixels = false;
        QCOMPARE(layout.targets().snap(request).correction.x(), 3.5);
        layout.guidesX.clear();
        QCOMPARE(layout.targets().snap(request).correction.x(), -3.5);
        layout.grid = QSizeF(110, 110);
        QCOMPARE(layout.targets().snap(request).correction.x(), -3.5);
        layout.elements.clear();
        QCOMPARE(layout.targets().snap(request).correction.x(), 3.5);
    }

    void equalGapsAreFoundAndShown()
    {
        Layout layout;
        layout.elements = {QRectF(20, 30, 20, 20), QRectF(60, 32, 20, 20), QRectF(230, 31, 30, 20)};
        const SnapTargets targets = layout.targets();
        // 20 pixels between the first two: 20 more to the right of the second.
        const QRectF moving(103, 33, 41, 21);
        const SnapResult result = targets.snap({moving, SnapEdge::Left | SnapEdge::Right, 6, true});
        QCOMPARE(result.correction.x(), -3.0);
        const SnapMarks marks = targets.marks(moving.translated(-3, 0), SnapEdge::Left | SnapEdge::Right, result);
        QCOMPARE(marks.gaps.size(), 2);
        QCOMPARE(marks.gaps.at(0).from, 40.0);
        QCOMPARE(marks.gaps.at(0).to, 60.0);
        QCOMPARE(marks.gaps.at(1).from, 80.0);
        QCOMPARE(marks.gaps.at(1).to, 100.0);
        // In the middle between its neighbours.
        const QRectF between(134, 33, 40, 21);
        QCOMPARE(targets.snap({between, SnapEdge::Left | SnapEdge::Right, 4, true}).correction.x(), 1.0);
    }

    void whatComesToAGapShowsNoLineThatIsOnlyNear()
    {
        Layout layout;
        layout.elements = {QRectF(0, 30, 10, 20), QRectF(30, 30, 10, 20)};
        layout.guidesX = {15.3};
        const QRectF moving(15.1, 30, 10, 20);
        const SnapEdges edges = SnapEdge::Left | SnapEdge::Right;
        const SnapTargets targets = layout.targets();
        const SnapResult result = targets.snap({moving, edges, 6, false});
        QCOMPARE(result.kindX, SnapKind::Gap);
        const SnapMarks marks = targets.marks(moving.translated(result.correction.x(), 0), edges, result);
        QCOMPARE(marks.lines.size(), 0);
        QCOMPARE(marks.gaps.size(), 2);
    }

    void aPlaceBetweenTwoPixelsIsRoundedOutwards()
    {
        Layout layout;
        layout.guidesX = {50};
        const SnapTargets targets = layout.targets();
        // A border of one pixel reaches half a pixel beyond its outline, on both sides.
        const QRectF moving(51.5, 0, 21, 20);
        QCOMPARE(targets.snap({moving, SnapEdge::Left, 6, true}).correction.x(), -2.0);
        QCOMPARE(targets.snap({moving.translated(-20, 0), SnapEdge::Right, 6, true}).correction.x(), -2.0);
        QCOMPARE(targets.snap({moving.translated(-22, 0), SnapEdge::Right, 6, true}).correction.x(), 0.0);
        QCOMPARE(targets.snap({moving, SnapEdge::Left, 6, false}).correction.x(), -1.5);
    }
};

QTEST_APPLESS_MAIN(tst_SnapTargets)
#include "tst_SnapTargets.moc"
