#pragma once

#include "lines/PointListWidget.h"
#include "lines/RegularPolygonPoints.h"

#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>

namespace Korvex::Meridane::Designer::Test {

constexpr int Fewest = PointListWidget::FewestPoints;
constexpr int Most = PointListWidget::MostPoints;

inline QPolygonF regular(int count)
{
    return regularPolygonPoints(count, Most);
}

/// Points that no row and no rounding could bring about by accident.
inline QPolygonF oddPoints(int count)
{
    QPolygonF odd;
    for (int i = 0; i < count; ++i)
        odd.append({i * 10 + 1.0 / 3, 200 - i * 7.123456789012345});
    return odd;
}

/// Exact, unlike QPolygonF's own comparison.
inline bool same(const QPolygonF& one, const QPolygonF& other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const QPointF& a, const QPointF& b) { return a.x() == b.x() && a.y() == b.y(); });
}

inline QWidget* focus()
{
    return QApplication::focusWidget();
}

inline void click(QWidget* button)
{
    QTest::mouseClick(button, Qt::LeftButton);
}

inline void type(SpinBox* field, const char* text)
{
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QString::fromLatin1(text));
}

inline void enter(SpinBox* field, const char* text)
{
    type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/// The point list widget in a window of its own, used like a user does.
class PointListWindow : public QWidget
{
public:
    PointListWindow()
        : points(new PointListWidget)
    {
        auto* column = new QVBoxLayout(this);
        column->addWidget(points);
        column->addStretch(1);
        resize(280, 860);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window does not become active");
    }

    [[nodiscard]] int visibleRows() const
    {
        int rows = 0;
        while (rows < Most && points->xField(rows)->isVisible())
            ++rows;
        return rows;
    }
    /// What the visible fields hold.
    [[nodiscard]] QPolygonF shownPoints() const
    {
        QPolygonF shown;
        for (int i = 0; i < visibleRows(); ++i)
            shown.append({points->xField(i)->value(), points->yField(i)->value()});
        return shown;
    }
    [[nodiscard]] QLabel* sizeMessage() const { return points->findChild<QLabel*>(QStringLiteral("error")); }

    void turn(const char* angle) const { enter(points->rotationControl()->spinBox(), angle); }

    PointListWidget* const points;
};

} // namespace Korvex::Meridane::Designer::Test
