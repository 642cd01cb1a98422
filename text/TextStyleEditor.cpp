#include "text/TextStyleEditor.h"

#include "text/TextStyleWidget.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ComboBox.h"

#include <QMap>
#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

const QString StyleKey = QStringLiteral("textStyle");
const QString ColorKey = QStringLiteral("styleColor");
const QString NormalStyle = QStringLiteral("Normal");

/// What the canvas makes of a value string.
struct Style
{
    QString name = NormalStyle;
    QColor color = Qt::red;

    explicit Style(const QString& value)
    {
        static const QSet<QString> coloredStyles{QStringLiteral("Outline"), QStringLiteral("Raised"),
                                                 QStringLiteral("Sunken")};
        const QMap<QString, QString> group = ValueConversion::toGroupProperties(value);
        if (coloredStyles.contains(group.value(StyleKey)))
            name = group.value(StyleKey);
        bool ok = false;
        const QColor stored = ValueConversion::toColor(group.value(ColorKey), &ok);
        if (ok)
            color = stored;
    }

    [[nodiscard]] bool isColored() const { return name != NormalStyle; }
};

QString styleValue(const QString& name, const QColor& color)
{
    if (name == NormalStyle)
        return QStringLiteral("textStyle: Normal;");
    return QStringLiteral("textStyle: %1; styleColor: %2;").arg(name, ValueConversion::toString(color));
}

QString newDragKey()
{
    static quint64 number = 0; // GUI thread only
    return QStringLiteral("style-color-%1").arg(++number);
}

} // namespace

TextStyleEditor::TextStyleEditor(QWidget* parent)
    : PropertyEditor(parent)
{}

TextStyleEditor::~TextStyleEditor() = default;

QString TextStyleEditor::className() const
{
    return QStringLiteral("TextStyleEditor");
}

QStringList TextStyleEditor::classNames() const
{
    return PropertyEditor::classNames() << QStringLiteral("TextStyleEditor");
}

bool TextStyleEditor::createEditorWidget()
{
    m_widget = new TextStyleWidget(this);
    m_widget->styleBox()->setAccessibleName(property()->name());
    setEditorWidget(m_widget);
    connect(m_widget->colorWidget(), &ColorWidget::sliderPressed, this, [this] { m_dragKey = newDragKey(); });
    connect(m_widget->colorWidget(), &ColorWidget::sliderReleased, this, [this] { m_dragKey.clear(); });
    connect(m_widget, &TextStyleWidget::userModified, this, [this] {
        setEdited({});
        setMergeKey(m_dragKey);
    });
    connect(m_widget->colorWidget(), &ColorWidget::inputRefused, this, &TextStyleEditor::refuse);
    saveOn(m_widget, &TextStyleWidget::userModified);
    return true;
}

QString TextStyleEditor::editorValue() const
{
    QString name = m_widget->textStyle();
    if (name.isEmpty() && property()) // mixed; createUpdateCommand() gives each element its own
        name = Style(property()->valueString()).name;
    return styleValue(name, m_widget->color());
}

bool TextStyleEditor::loadEditorValue()
{
    if (isMixed()) {
        showMixed();
        return true;
    }
    m_widget->setMixed(false, false);
    const QMap<QString, QString> group = ValueConversion::toGroupProperties(valueToLoad());
    if (group.contains(StyleKey))
        m_widget->setTextStyle(group.value(StyleKey));
    if (m_widget->textStyle() != NormalStyle) {
        bool ok = false;
        const QColor color = ValueConversion::toColor(group.value(ColorKey), &ok);
        if (ok)
            m_widget->setColor(color);
    }
    return true;
}

UndoCommand* TextStyleEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property,
                                                  const QString& value, UndoCommand* parent)
{
    QString own = value;
    if (isPropertyChange()) {
        const Style before(property->valueString());
        if (m_widget->lastEdit() == TextStyleWidget::Edit::Color)
            own = before.isColored() ? styleValue(before.name, m_widget->color()) : property->valueString();
        else
            own = styleValue(m_widget->textStyle(), before.isColored() ? before.color : m_widget->color());
    }
    return PropertyEditor::createUpdateCommand(property, own, parent);
}

void TextStyleEditor::propertyReplaced()
{
    m_dragKey.clear();
    if (!m_widget)
        return;
    m_widget->setMixed(false, false);
    m_widget->setTextStyle(NormalStyle);
    m_widget->setColor(Qt::red);
}

bool TextStyleEditor::showsMixed() const
{
    return true;
}

/// Shows what the elements have in common: the style, and the colour of those that have one.
void TextStyleEditor::showMixed()
{
    QSet<QString> names;
    QList<QColor> colors;
    for (const auto& edited : properties()) {
        const Style style(edited->valueString());
        names.insert(style.name);
        if (style.isColored() && !colors.contains(style.color))
            colors.append(style.color);
    }
    m_widget->setMixed(false, false);
    m_widget->setTextStyle(names.size() == 1 ? *names.constBegin() : NormalStyle);
    if (!colors.isEmpty())
        m_widget->setColor(colors.first());
    m_widget->setMixed(names.size() > 1, colors.size() > 1);
}

} // namespace Korvex::Meridane::Designer
