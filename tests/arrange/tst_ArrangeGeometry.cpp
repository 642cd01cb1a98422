#include "tests/arrange/ArrangeTree.h"

#include "host/core/arrange/ArrangeGeometry.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

using namespace Korvex::Meridane::Designer;
using Test::anyNumber;

namespace {

QList<QRectF> anyRects(int least)
{
    QList<QRectF> rects;
    const int count = anyNumber(least, 9);
    for (int i = 0; i < count; ++i)
        rects.append(QRectF(anyNumber(-900, 900) / 4., anyNumber(-900, 900) / 4., anyNumber(1, 99), anyNumber(1, 99)));
    return rects;
}

bool isNear(double a, double b)
{
    return std::abs(a - b) < 1e-6;
}

} // namespace

/// The arithmetic of aligning and distributing rectangles.
class tst_ArrangeGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void alignedRectanglesMeetTheReference()
    {
        const bool held = rc::check("edges meet", [] {
            const QRectF rect = anyRects(1).constFirst();
            const QRectF reference = anyRects(1).constFirst();
            const auto aligned = [&](AlignEdge edge) { return rect.translated(alignedOffset(rect, reference, edge)); };
            RC_ASSERT(isNear(aligned(AlignEdge::Left).left(), reference.left()));
            RC_ASSERT(isNear(aligned(AlignEdge::Right).right(), reference.right()));
            RC_ASSERT(isNear(aligned(AlignEdge::Center).center().x(), reference.center().x()));
            RC_ASSERT(isNear(aligned(AlignEdge::Top).top(), reference.top()));
            RC_ASSERT(isNear(aligned(AlignEdge::Bottom).bottom(), reference.bottom()));
            RC_ASSERT(isNear(aligned(AlignEdge::Middle).center().y(), reference.center().y()));
            for (const AlignEdge edge : {AlignEdge::Left, AlignEdge::Center, AlignEdge::Right})
                RC_ASSERT(aligned(edge).top() == rect.top());
            for (const AlignEdge edge : {AlignEdge::Top, AlignEdge::Middle, AlignEdge::Bottom})
                RC_ASSERT(aligned(edge).left() == rect.left());
        });
        QVERIFY(held);
    }

    void distributedRectanglesHaveEqualSpacing()
    {
        const bool held = rc::check("equal spacing", [] {
            const QList<QRectF> rects = anyRects(3);
            const auto orientation = anyNumber(0, 2) ? Qt::Horizontal : Qt::Vertical;
            const auto kind = anyNumber(0, 2) ? SpacingKind::Gaps : SpacingKind::Centers;
            const QList<QPointF> offsets = distributedOffsets(rects, orientation, kind);
            RC_ASSERT(offsets.size() == rects.size());
            struct Span
            {
                double before;
                double begin;
                double end;
            };
            QList<Span> spans;
            for (qsizetype i = 0; i < rects.size(); ++i) {
                const QRectF moved = rects.at(i).translated(offsets.at(i));
                const bool across = orientation == Qt::Horizontal;
                RC_ASSERT((across ? offsets.at(i).y() : offsets.at(i).x()) == 0);
                spans.append(across ? Span{rects.at(i).center().x(), moved.left(), moved.right()}
                                    : Span{rects.at(i).center().y(), moved.top(), moved.bottom()});
            }
            std::stable_sort(spans.begin(), spans.end(),
                             [](const Span& a, const Span& b) { return a.before < b.before; });
            const auto spacing = [&](qsizetype i) {
                const Span& a = spans.at(i);
                const Span& b = spans.at(i + 1);
                return kind == SpacingKind::Gaps ? b.begin - a.end : 0.5 * (b.begin + b.end - a.begin - a.end);
            };
            for (qsizetype i = 1; i + 1 < spans.size(); ++i)
                RC_ASSERT(isNear(spacing(i), spacing(0)));
            // The outermost stay.
            RC_ASSERT(isNear(0.5 * (spans.constFirst().begin + spans.constFirst().end), spans.constFirst().before));
            RC_ASSERT(isNear(0.5 * (spans.constLast().begin + spans.constLast().end), spans.constLast().before));
        });
        QVERIFY(held);
    }

    void fewerThanThreeHaveNothingBetweenThem()
    {
        const QList<QRectF> two{QRectF(0, 0, 10, 10), QRectF(50, 5, 10, 10)};
        QCOMPARE(distributedOffsets(two, Qt::Horizontal, SpacingKind::Gaps), QList<QPointF>(2));
        QVERIFY(distributedOffsets({}, Qt::Vertical, SpacingKind::Centers).isEmpty());
    }
};

QTEST_MAIN(tst_ArrangeGeometry)
#include "tst_ArrangeGeometry.moc"
