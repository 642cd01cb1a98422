#include "host/core/editors/EditRun.h"

#include <QKeyEvent>
#include <QSlider>
#include <QWidget>

namespace Korvex::Meridane::Designer {

namespace {

bool isStepKey(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

bool isSliderKey(int key)
{
    return isStepKey(key) || key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
}

} // namespace

EditRun::EditRun(QObject* parent)
    : QObject(parent)
{}

EditRun::~EditRun() = default;

void EditRun::watch(QWidget* widget)
{
    widget->installEventFilter(this);
}

bool EditRun::eventFilter(QObject* watched, QEvent* event)
{
    const bool slider = qobject_cast<const QSlider*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (slider)
            begin();
        else
            goOn();
        break;
    case QEvent::Wheel:
        goOn();
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (slider ? isSliderKey(key) : isStepKey(key))
            goOn();
        else if (!isModifier(key) && (!slider || key != Qt::Key_Escape)) // which takes a drag back, as part of it
            m_key.clear();
        break;
    }
    case QEvent::InputMethod:
    case QEvent::FocusIn:
        m_key.clear();
        break;
    case QEvent::FocusOut:
        if (!slider) // whose drag goes on
            m_key.clear();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void EditRun::begin()
{
    static quint64 number = 0; // GUI thread only
    m_key = QStringLiteral("run-%1").arg(++number);
}

void EditRun::goOn()
{
    if (m_key.isEmpty())
        begin();
}

} // namespace Korvex::Meridane::Designer
