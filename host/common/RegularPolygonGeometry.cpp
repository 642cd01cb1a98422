#include "host/common/RegularPolygonGeometry.h"

#include <QtCore/QtMath>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace Korvex::Meridane::Common {
namespace {
constexpr int FewestEdges = 3;
constexpr int MostEdges = 360;

int countedEdges(int edges)
{
    return qMin(edges, MostEdges);
}

bool isPolygon(int edges, double edgeLength)
{
    return edges >= FewestEdges && edgeLength > 0;
}

/** Half the width of a polygon of circumradius 1. */
double widestSine(int edges)
{
    return std::sin(2 * M_PI * widestVertex(edges) / edges);
}

/** The height of a polygon of circumradius 1: two vertices face each other, or a vertex faces the middle of an edge. */
double unitHeight(int edges)
{
    return edges % 2 == 0 ? 2 : 1 + std::cos(M_PI / edges);
}

/** By how much the border moves a mitred vertex outwards. */
double mitreLength(int edges, int borderWidth)
{
    return 0.5 * evenPenWidth(borderWidth) / std::cos(M_PI / edges);
}
} // namespace

int evenPenWidth(int width)
{
    constexpr int Largest = std::numeric_limits<int>::max() - 1;
    const int limited = qBound(0, width, Largest);
    return limited + limited % 2;
}

int widestVertex(int edges)
{
    edges = countedEdges(edges);
    // Whole degrees from the horizontal shrink up to the widest vertex; the first vertex that is no better ends the walk.
    int best = 90;
    for (int i = 1; i < edges; ++i) {
        const int distance = std::abs(360 * i / edges - 90);
        if (distance >= best) {
            return i - 1;
        }
        best = distance;
    }
    return edges;
}

double circumradius(int edges, double edgeLength)
{
    return isPolygon(edges, edgeLength) ? edgeLength / (2 * std::sin(M_PI / countedEdges(edges))) : 0;
}

QPolygonF regularPolygon(int edges, double edgeLength)
{
    QPolygonF polygon;
    if (!isPolygon(edges, edgeLength)) {
        return polygon;
    }
    edges = countedEdges(edges);
    const double radius = circumradius(edges, edgeLength);
    const double left = radius * widestSine(edges);
    polygon.reserve(edges);
    for (int i = 0; i < edges; ++i) {
        const double angle = 2 * M_PI * i / edges;
        polygon.append(QPointF(left + radius * std::sin(angle), radius - radius * std::cos(angle)));
    }
    return polygon;
}

QSizeF regularPolygonSize(int edges, double edgeLength)
{
    if (!isPolygon(edges, edgeLength)) {
        return QSizeF(0, 0);
    }
    edges = countedEdges(edges);
    const double radius = circumradius(edges, edgeLength);
    return QSizeF(2 * radius * widestSine(edges), radius * unitHeight(edges));
}

QRectF regularPolygonBoundingRect(int edges, double edgeLength, int borderWidth)
{
    if (!isPolygon(edges, edgeLength)) {
        return QRectF();
    }
    edges = countedEdges(edges);
    const double mitre = mitreLength(edges, borderWidth);
    const double radius = circumradius(edges, edgeLength) + mitre;
    return QRectF(-mitre * widestSine(edges), -mitre, 2 * radius * widestSine(edges), radius * unitHeight(edges));
}

double edgeLengthFromWidth(int edges, double width, int borderWidth)
{
    if (edges < FewestEdges) {
        return 0;
    }
    edges = countedEdges(edges);
    return width * std::sin(M_PI / edges) / widestSine(edges) - evenPenWidth(borderWidth) * std::tan(M_PI / edges);
}

double edgeLengthFromHeight(int edges, double height, int borderWidth)
{
    if (edges < FewestEdges) {
        return 0;
    }
    edges = countedEdges(edges);
    return 2 * height * std::sin(M_PI / edges) / unitHeight(edges) - evenPenWidth(borderWidth) * std::tan(M_PI / edges);
}
} // namespace Korvex::Meridane::Common
