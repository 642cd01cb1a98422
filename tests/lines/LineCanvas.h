#pragma once

#include "tests/canvas/CanvasFixture.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"

#include <QtTest>

#include <cmath>

namespace Korvex::Meridane::Designer::Test {

/// Lines of the real plug-in on one canvas, which is emptied after each of many rows: making a window is what takes time.
/// The tests that do something with them derive from this class.
class LineCanvas
{
protected:
    LineCanvas() = default;
    ~LineCanvas() = default;

    CanvasFixture& canvas()
    {
        if (!m_canvas)
            m_canvas = std::make_unique<CanvasFixture>();
        return *m_canvas;
    }

    /// The only element of the canvas, selected, with these value strings.
    DesignerObject* addLine(const QPointF& start, const QString& length, const QString& angle, const QString& width)
    {
        clear();
        DesignerObject* line = canvas().add("Line", {{QStringLiteral("position"), ValueConversion::toString(start)},
                                                     {QStringLiteral("length"), length},
                                                     {QStringLiteral("angle"), angle},
                                                     {QStringLiteral("width"), width}});
        canvas().select({line});
        return line;
    }
    DesignerObject* addLine(const QPointF& start, const char* length, const char* angle, const char* width)
    {
        return addLine(start, QString::fromLatin1(length), QString::fromLatin1(angle), QString::fromLatin1(width));
    }

    void clear()
    {
        canvas().view->cancelGesture(); // of a case that failed half-way
        canvas().session->removeElements(canvas().scene()->selectableElements());
        canvas().stack()->clear();
        canvas().view->setZoom(1);
    }

    /// Fails the running test unless undoing the last step gives back \a before, byte by byte, and redoing it the rest.
    void compareUndo(const QMap<QString, QString>& before) const
    {
        const auto after = m_canvas->values();
        for (int i = 0; i < 3; ++i) {
            m_canvas->session->undo();
            QCOMPARE(m_canvas->values(), before);
            m_canvas->session->redo();
            QCOMPARE(m_canvas->values(), after);
        }
    }

    static double real(const DesignerObject* line, const char* id)
    {
        bool ok = false;
        const double value = ValueConversion::toReal(CanvasFixture::value(line, id), &ok);
        return ok ? value : NAN;
    }

    /// The outline as the canvas shows it, in scene coordinates.
    static QPolygonF outlineOf(const DesignerObject* line)
    {
        const QGraphicsItem* item = CanvasFixture::graphic(line);
        return item->mapToScene(item->shape().toFillPolygon());
    }
    static QPointF startOf(const DesignerObject* line) { return outlineOf(line).at(0); }
    static QPointF endOf(const DesignerObject* line) { return outlineOf(line).at(3); }

    static QString toolTip(const DesignerObject* line) { return CanvasFixture::graphic(line)->toolTip(); }

    static QPointF handlePoint(const QRectF& frame, int handle)
    {
        return Common::fixedPointPosition(static_cast<Common::TransformOrigin>(handle), frame);
    }

    static bool near(double a, double b, double tolerance = 1e-9) { return std::abs(a - b) <= tolerance; }
    static bool near(const QPointF& a, const QPointF& b, double tolerance = 1e-9)
    {
        return near(a.x(), b.x(), tolerance) && near(a.y(), b.y(), tolerance);
    }

    static constexpr int Handles[] = {0, 1, 2, 3, 5, 6, 7, 8};
    static constexpr double Pixel = 0.5; // how far an outline may be from what was asked for

    std::unique_ptr<CanvasFixture> m_canvas;
};

} // namespace Korvex::Meridane::Designer::Test
