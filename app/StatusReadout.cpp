#include "app/StatusReadout.h"

#include "app/CoreText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QtMath>

namespace Korvex::Meridane::Designer {

StatusReadout::StatusReadout(QWidget* parent)
    : QWidget(parent)
    , m_gesture(new QLabel)
    , m_pointer(new QLabel)
{
    m_pointer->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_pointer->setToolTip(coreText("Position of the pointer on the screen, in pixels"));
    // The width of the longest usual position: nothing moves while the pointer does.
    m_pointer->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("x 00000  y 00000")));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addWidget(m_gesture);
    layout->addWidget(m_pointer);
}

QString StatusReadout::pointerText() const
{
    return m_pointer->text();
}

QString StatusReadout::gestureText() const
{
    return m_gesture->text();
}

void StatusReadout::showPointer(const QPointF& scenePos)
{
    m_pointer->setText(coreText("x %1  y %2").arg(qFloor(scenePos.x())).arg(qFloor(scenePos.y())));
}

void StatusReadout::showGesture(const QString& text)
{
    m_gesture->setText(text);
}

void StatusReadout::clear()
{
    m_gesture->clear();
    m_pointer->clear();
}

} // namespace Korvex::Meridane::Designer
