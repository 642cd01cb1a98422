#pragma once

#include "tests/canvas/CanvasFixture.h"

#include "host/core/project/ElementJson.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/RotationInfo.h"
#include "host/core/values/ValueConversion.h"

#include <QJsonDocument>

#include <rapidcheck.h>

#include <iterator>

namespace Korvex::Meridane::Designer::Test {

/// From \a low to below \a high, evenly in every case: RapidCheck's own range begins with the small numbers.
inline int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

/// A random tree of elements and groups on a canvas, turned or not, and what can be asked of it.
class ArrangeTree
{
public:
    /// \a turned: with rotations about any fixed point.
    explicit ArrangeTree(bool turned)
        : m_turned(turned)
    {
        const int count = anyNumber(3, 9);
        for (int i = 0; i < count; ++i) {
            DesignerObject* element = anyElement();
            turn(element);
        }
        const int groups = anyNumber(0, 4);
        for (int i = 0; i < groups; ++i) {
            const QList<DesignerObject*> some = anyOf(topLevel());
            if (!some.isEmpty())
                turn(canvas.addGroup(QPointF(anyNumber(0, 300), anyNumber(0, 200)), some));
        }
        canvas.stack()->clear();
    }

    [[nodiscard]] QList<DesignerObject*> topLevel() const
    {
        const auto& items = canvas.screen->childList()->items();
        return {items.cbegin(), items.cend()};
    }

    /// All elements and groups, groups before what is in them, from back to front.
    [[nodiscard]] QList<DesignerObject*> all() const
    {
        QList<DesignerObject*> found;
        collect(canvas.screen, found);
        return found;
    }

    /// Some of \a objects, in their order.
    [[nodiscard]] static QList<DesignerObject*> anyOf(const QList<DesignerObject*>& objects)
    {
        QList<DesignerObject*> some;
        for (DesignerObject* object : objects) {
            if (anyNumber(0, 2) == 0)
                some.append(object);
        }
        return some;
    }

    /// What is seen: the corners of every element that is no group, by its id, on the screen.
    [[nodiscard]] QMap<QString, QPolygonF> corners() const
    {
        QMap<QString, QPolygonF> corners;
        for (const DesignerObject* object : all()) {
            if (!object->childList())
                corners.insert(object->getIdName(),
                               CanvasFixture::graphic(object)->mapToScene(object->graphicsItem()->outerRect()));
        }
        return corners;
    }

    /// The elements that are no groups, as they lie above each other.
    [[nodiscard]] QStringList order() const
    {
        QStringList ids;
        for (const DesignerObject* object : all()) {
            if (!object->childList())
                ids.append(object->getIdName());
        }
        return ids;
    }

    /// The screen as it is saved.
    [[nodiscard]] QByteArray saved() const { return QJsonDocument(ElementJson::write(canvas.screen)).toJson(); }

    static bool isSame(const QMap<QString, QPolygonF>& a, const QMap<QString, QPolygonF>& b)
    {
        constexpr double Tolerance = 1e-6; // pixels
        if (a.keys() != b.keys())
            return false;
        for (auto polygon = a.cbegin(); polygon != a.cend(); ++polygon) {
            const QPolygonF other = b.value(polygon.key());
            for (qsizetype i = 0; i < polygon->size(); ++i) {
                if ((polygon->at(i) - other.value(i)).manhattanLength() > Tolerance)
                    return false;
            }
        }
        return true;
    }

    CanvasFixture canvas;

private:
    /// Mostly a rectangle; else an element of another kind with the size that it comes with.
    DesignerObject* anyElement()
    {
        const QPointF position(anyNumber(0, 700), anyNumber(0, 400));
        if (anyNumber(0, 3) > 0) {
            const QSizeF size(anyNumber(10, 120), anyNumber(10, 90));
            return canvas.addRectangle(QRectF(position, size), anyNumber(0, 4));
        }
        static constexpr const char* classes[] = {
            "Ellipse",     "Polygon",          "TextBox", "Line",
            "PathElement", "IrregularPolygon", "Image",   "LinearGradientElement"};
        return canvas.add(classes[anyNumber(0, int(std::size(classes)))],
                          {{QStringLiteral("position"), ValueConversion::toString(position)}});
    }

    void turn(DesignerObject* object)
    {
        if (!m_turned || anyNumber(0, 3) == 0)
            return;
        const QStringList points = RotationInfo::fixedPointNames();
        canvas.set(object, "rotation",
                   QStringLiteral("angle: %1; fixedPoint: %2;")
                       .arg(anyNumber(-400, 400))
                       .arg(points.at(anyNumber(0, int(points.size())))));
    }

    static void collect(const DesignerObject* owner, QList<DesignerObject*>& found)
    {
        for (DesignerObject* child : owner->childList()->items()) {
            found.append(child);
            if (child->childList())
                collect(child, found);
        }
    }

    bool m_turned;
};

} // namespace Korvex::Meridane::Designer::Test
