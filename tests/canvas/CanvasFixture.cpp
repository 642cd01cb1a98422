#include "tests/canvas/CanvasFixture.h"

#include "tests/canvas/CanvasTestFactory.h"

#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QApplication>
#include <QMouseEvent>
#include <QtTest>

#include <functional>

namespace Korvex::Meridane::Designer::Test {

namespace {

void loadClasses()
{
    static CanvasTestFactory factory;
    static const bool loaded = [] {
        QString message;
        if (!DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_DIR "/VisualElements.so"),
                                                     &message))
            qFatal("%s", qPrintable(message));
        return DesignerFactory::instance()->addFactory(&factory, QStringLiteral("CanvasTest"));
    }();
    Q_UNUSED(loaded)
}

void visit(const DesignerObject* object, const std::function<void(const DesignerObject*)>& visitor)
{
    visitor(object);
    if (const ObjectListProperty* list = object->childList()) {
        for (const DesignerObject* child : list->items())
            visit(child, visitor);
    }
}

} // namespace

CanvasFixture::CanvasFixture()
{
    loadClasses();
    auto made = std::make_unique<Project>();
    project = made.get();
    project->initialize();
    session = std::make_unique<EditSession>(std::move(made));
    session->addScreen(QStringLiteral("main"), QSizeF(800, 480), &screen);
    stack()->clear();
    view = std::make_unique<CanvasView>(session.get());
    view->resize(900, 600);
    view->show();
    view->activateWindow();
    view->setFocus();
    QApplication::processEvents();
}

CanvasFixture::~CanvasFixture()
{
    view.reset();
}

DesignerObject* CanvasFixture::add(const char* className, const QMap<QString, QString>& properties)
{
    DesignerObject* added = nullptr;
    const EditResult result = session->addElement(QString::fromLatin1(className), screen, {}, properties, &added);
    if (!result.accepted)
        qFatal("%s", qPrintable(result.message));
    stack()->clear();
    return added;
}

DesignerObject* CanvasFixture::addRectangle(const QRectF& content, int border)
{
    return addShape("Rectangle", content, border);
}

DesignerObject* CanvasFixture::addShape(const QByteArray& className, const QRectF& content, int border)
{
    QMap<QString, QString> properties{
        {QStringLiteral("position"), ValueConversion::toString(content.topLeft())},
        {QStringLiteral("border"), ValueConversion::toString(BorderInfo(border, Qt::black))}};
    if (className == "Polygon") {
        constexpr double EdgeOfAPentagonOfWidthOne = 0.62;
        properties.insert(QStringLiteral("edges"), QStringLiteral("5"));
        properties.insert(QStringLiteral("edgeLength"),
                          ValueConversion::toString(EdgeOfAPentagonOfWidthOne * content.width()));
    } else {
        properties.insert(QStringLiteral("size"), ValueConversion::toString(content.size()));
    }
    DesignerObject* shape = add(className.constData(), properties);
    select({});
    return shape;
}

DesignerObject* CanvasFixture::addGroup(const QPointF& position, const QList<DesignerObject*>& members)
{
    DesignerObject* group = DesignerFactory::instance()->createDataObject(QStringLiteral("Group"), nullptr);
    group->changePropertyValue(group->getProperty(QStringLiteral("position")), ValueConversion::toString(position));
    screen->addListItem(screen->childList(), group, -1);
    for (DesignerObject* member : members) {
        screen->removeListItem(screen->childList(), member);
        group->addListItem(group->childList(), member, -1);
        const QPointF old = ValueConversion::toPoint(value(member, "position"));
        set(member, "position", ValueConversion::toString(old - position));
    }
    stack()->clear();
    return group;
}

QString CanvasFixture::value(const DesignerObject* object, const char* property)
{
    return object->getProperty(QString::fromLatin1(property))->valueString();
}

void CanvasFixture::set(DesignerObject* object, const char* property, const QString& value)
{
    object->changePropertyValue(object->getProperty(QString::fromLatin1(property)), value);
}

QGraphicsItem* CanvasFixture::graphic(const DesignerObject* object)
{
    return object->graphicsItem() ? object->graphicsItem()->graphic() : nullptr;
}

QRectF CanvasFixture::outerRect(const DesignerObject* object)
{
    const auto* element = qobject_cast<const VisualElement*>(object);
    return element->getBoundingRect().translated(ValueConversion::toPoint(value(object, "position")));
}

QMap<QString, QString> CanvasFixture::values() const
{
    QMap<QString, QString> values;
    visit(project, [&values](const DesignerObject* object) {
        for (const auto& property : object->properties())
            values.insert(object->getIdName() + QLatin1Char('.') + property->id(), property->valueString());
    });
    return values;
}

void CanvasFixture::select(const QList<DesignerObject*>& objects)
{
    session->setSelection(objects);
}

QList<DesignerObject*> CanvasFixture::selected() const
{
    return session->selection();
}

void CanvasFixture::press(const QPointF& scenePos, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    m_buttons |= button;
    mouse(QEvent::MouseButtonPress, scenePos, button, modifiers);
}

void CanvasFixture::move(const QPointF& scenePos, Qt::KeyboardModifiers modifiers)
{
    mouse(QEvent::MouseMove, scenePos, Qt::NoButton, modifiers);
}

void CanvasFixture::release(const QPointF& scenePos, Qt::KeyboardModifiers modifiers, Qt::MouseButton button)
{
    m_buttons &= ~Qt::MouseButtons(button);
    mouse(QEvent::MouseButtonRelease, scenePos, button, modifiers);
}

void CanvasFixture::click(const QPointF& scenePos, Qt::KeyboardModifiers modifiers)
{
    press(scenePos, modifiers);
    release(scenePos, modifiers);
}

void CanvasFixture::drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers)
{
    press(from, modifiers);
    move(to, modifiers);
    release(to, modifiers);
}

void CanvasFixture::key(int key, Qt::KeyboardModifiers modifiers, bool repeat)
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(), repeat);
    QApplication::sendEvent(view.get(), &event);
    if (!repeat) {
        QKeyEvent released(QEvent::KeyRelease, key, modifiers);
        QApplication::sendEvent(view.get(), &released);
    }
}

void CanvasFixture::mouse(QEvent::Type type, const QPointF& scenePos, Qt::MouseButton button,
                          Qt::KeyboardModifiers modifiers)
{
    const QPointF viewPos = view->viewportTransform().map(scenePos);
    QMouseEvent event(type, viewPos, view->viewport()->mapToGlobal(viewPos), button, m_buttons, modifiers);
    QApplication::sendEvent(view->viewport(), &event);
}

} // namespace Korvex::Meridane::Designer::Test
