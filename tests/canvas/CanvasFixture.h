#pragma once

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"

#include <QByteArrayList>
#include <QEvent>
#include <QGraphicsItem>
#include <QMap>

#include <memory>

namespace Korvex::Meridane::Designer::Test {

/// A project with one screen of 800 x 480, its session and a shown canvas view at zoom 1, with the mouse and keyboard of
/// a user. All mouse positions are scene coordinates.
class CanvasFixture
{
public:
    CanvasFixture();
    ~CanvasFixture();

    /// Adds an element through the session; the history is cleared afterwards.
    DesignerObject* add(const char* className, const QMap<QString, QString>& properties = {});
    /// A rectangle with this content and border; not selected.
    DesignerObject* addRectangle(const QRectF& content, int border = 0);
    /// An element of one of the frameElements(), with this content and border; not selected. A polygon, of five edges,
    /// begins where \a content does and is about as wide.
    DesignerObject* addShape(const QByteArray& className, const QRectF& content, int border = 0);
    /// The classes of the elements that are resized by the eight handles of their frame.
    static QByteArrayList frameElements() { return {"Rectangle", "Ellipse", "Polygon"}; }
    /// A group of \a members, whose positions become relative to its own.
    DesignerObject* addGroup(const QPointF& position, const QList<DesignerObject*>& members);

    static QString value(const DesignerObject* object, const char* property);
    void set(DesignerObject* object, const char* property, const QString& value);
    static QGraphicsItem* graphic(const DesignerObject* object);
    /// The outer rectangle on the scene, taken from the data object alone, as if it were not rotated.
    static QRectF outerRect(const DesignerObject* object);
    /// Every value string of every object, by "id.property".
    QMap<QString, QString> values() const;

    void select(const QList<DesignerObject*>& objects);
    QList<DesignerObject*> selected() const;

    void press(const QPointF& scenePos, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton);
    void move(const QPointF& scenePos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void release(const QPointF& scenePos, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                 Qt::MouseButton button = Qt::LeftButton);
    void click(const QPointF& scenePos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Press, one move, release.
    void drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false);

    int steps() const { return stack()->count(); }
    UndoStack* stack() const { return session->undoStack(); }
    CanvasScene* scene() const { return view->canvasScene(); }

    std::unique_ptr<EditSession> session;
    Project* project;
    Screen* screen;
    std::unique_ptr<CanvasView> view;

private:
    void mouse(QEvent::Type type, const QPointF& scenePos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

    Qt::MouseButtons m_buttons;
};

} // namespace Korvex::Meridane::Designer::Test
