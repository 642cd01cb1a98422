#include "host/core/properties/FontProperty.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/DisplayFont.h"
#include "host/common/LocalizationHelper.h"
#include "host/common/TextHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;
using Common::TextHelper;

namespace {

QString weightAdvice(const DesignerProperty* property)
{
    const QFont& font = static_cast<const FontProperty*>(property)->value();
    if (font.weight() == QFont::Normal || font.weight() == QFont::Bold)
        return {};
    const QString shown = font.bold() ? LocalizationHelper::coreString(QStringLiteral("bold"))
                                      : LocalizationHelper::coreString(QStringLiteral("normal"));
    return LocalizationHelper::coreString(
               QStringLiteral("A display draws a font normal or bold: the weight %1 is shown as %2."))
        .arg(QString::number(font.weight()), shown);
}

} // namespace

FontProperty::FontProperty(DesignerObject* parent, const QString& id, const QString& name, const QFont& value)
    : TypedProperty(parent, id, name, value)
{
    setAdvisor(weightAdvice);
}

FontProperty::~FontProperty() = default;

QString FontProperty::className() const
{
    return QStringLiteral("FontProperty");
}

QStringList FontProperty::classNames() const
{
    return TypedProperty::classNames() << QStringLiteral("FontProperty");
}

QString FontProperty::convertToQml(int indent) const
{
    const QFont& font = value();
    const auto boolean = [](bool on) { return on ? QStringLiteral("true") : QStringLiteral("false"); };
    const QString tabs = DesignerObject::getTabs(indent);
    const QStringList lines{
        QStringLiteral("family: \"%1\"").arg(TextHelper::toQmlValueString(font.family())),
        QStringLiteral("fontSize: %1").arg(QString::number(Common::fontPixelSize(font))),
        QStringLiteral("bold: ") + boolean(font.bold()),
        QStringLiteral("italic: ") + boolean(font.italic()),
        QStringLiteral("underline: ") + boolean(font.underline()),
        QStringLiteral("strikeout: ") + boolean(font.strikeOut()),
        QStringLiteral("overline: ") + boolean(font.overline()),
        QStringLiteral("letterSpacing: ") + ValueConversion::toQmlString(font.letterSpacing(), 4),
        QStringLiteral("wordSpacing: ") + ValueConversion::toQmlString(font.wordSpacing(), 4),
    };
    return tabs + lines.join(QLatin1Char('\n') + tabs);
}

QFont FontProperty::parse(const QString& valueString, bool* ok) const
{
    return ValueConversion::toFont(valueString, ok);
}

QString FontProperty::write(const QFont& value) const
{
    return ValueConversion::toString(value);
}

} // namespace Korvex::Meridane::Designer
