#include "text/GraphicsTextBox.h"

#include "text/FontKeys.h"

#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/PaintHelper.h"

#include <QKeyEvent>

namespace Korvex::Meridane::Designer {

using namespace Common;

GraphicsTextBox::GraphicsTextBox(DesignerObject* dataObject)
    : GraphicsFrameItem(dataObject, QSizeF(100, 75))
    , m_pen(Qt::black)
    , m_stylePen(Qt::red)
{}

GraphicsTextBox::~GraphicsTextBox() = default;

QString GraphicsTextBox::className() const
{
    return QStringLiteral("GraphicsTextBox");
}

QStringList GraphicsTextBox::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsTextBox");
}

void GraphicsTextBox::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsFrameItem::updateGraphicsItem(property);
    if (!property)
        return;
    const QString value = property->valueString();
    if (property->id() == QLatin1String("text"))
        setText(value);
    else if (property->id() == QLatin1String("color"))
        setColor(value);
    else if (property->id() == QLatin1String("font"))
        setFont(value);
    else if (property->id() == QLatin1String("alignment"))
        setAlignment(value);
    else if (property->id() == QLatin1String("textStyle"))
        setStyle(value);
}

UndoCommand* GraphicsTextBox::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsFrameItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("font"))
        return writeBack(property, ValueConversion::toString(m_font), parent);
    return nullptr;
}

void GraphicsTextBox::paintContent(QPainter* painter)
{
    PaintHelper::paintTextBox(size(), m_font, m_pen, m_text, m_alignment, m_textStyle, m_stylePen, painter, &m_layout);
}

bool GraphicsTextBox::acceptsSize(const QSizeF& size) const
{
    return size.width() >= 1 && size.height() >= 1;
}

void GraphicsTextBox::keyPressEvent(QKeyEvent* event)
{
    const auto property =
        dataObject() ? dataObject()->getProperty(QStringLiteral("font")) : QSharedPointer<DesignerProperty>();
    Project* project = Project::parentProject(dataObject());
    const auto font = fontAfterKey(m_font, event->key(), event->modifiers());
    if (!property || !project || !font) {
        QGraphicsItem::keyPressEvent(event);
        return;
    }
    auto* command = new ChangeProperty(property, ValueConversion::toString(*font), true, nullptr);
    command->setText(LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(property->name()));
    project->emitUserModified(command);
    event->accept();
}

void GraphicsTextBox::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    update();
}

void GraphicsTextBox::setColor(const QString& value)
{
    bool ok = false;
    const QColor color = ValueConversion::toColor(value, &ok);
    if (!ok || !color.isValid() || QPen(color) == m_pen)
        return;
    m_pen = QPen(color);
    update();
}

void GraphicsTextBox::setFont(const QString& value)
{
    bool ok = false;
    const QFont font = ValueConversion::toFont(value, &ok);
    if (!ok || font == m_font)
        return;
    m_font = font;
    update();
}

void GraphicsTextBox::setAlignment(const QString& value)
{
    bool ok = false;
    const int alignment = ValueConversion::toInt(value, &ok);
    if (!ok || alignment == m_alignment)
        return;
    m_alignment = alignment;
    update();
}

void GraphicsTextBox::setStyle(const QString& value)
{
    static const QStringList styles{QStringLiteral("Normal"), QStringLiteral("Outline"), QStringLiteral("Raised"),
                                    QStringLiteral("Sunken")};
    bool isGroup = false;
    const QMap<QString, QString> group = ValueConversion::toGroupProperties(value, &isGroup);
    if (!isGroup)
        return;
    const QString style = group.value(QStringLiteral("textStyle"));
    if (styles.contains(style))
        m_textStyle = style;
    bool isColor = false;
    const QColor color = ValueConversion::toColor(group.value(QStringLiteral("styleColor")), &isColor);
    if (isColor)
        m_stylePen.setColor(color);
    update();
}

} // namespace Korvex::Meridane::Designer
