#include "text/TextQml.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"
#include "host/common/TextHelper.h"

#include <array>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;
using Common::TextHelper;

namespace {

struct Alignment
{
    int value;
    int vertical;
    int horizontal;
};

constexpr std::array Alignments = {
    Alignment{Qt::AlignTop | Qt::AlignLeft, 0, 0},        Alignment{Qt::AlignTop | Qt::AlignRight, 0, 2},
    Alignment{Qt::AlignTop | Qt::AlignHCenter, 0, 1},     Alignment{Qt::AlignBottom | Qt::AlignLeft, 2, 0},
    Alignment{Qt::AlignBottom | Qt::AlignRight, 2, 2},    Alignment{Qt::AlignBottom | Qt::AlignHCenter, 2, 1},
    Alignment{Qt::AlignVCenter | Qt::AlignLeft, 1, 0},    Alignment{Qt::AlignVCenter | Qt::AlignRight, 1, 2},
    Alignment{Qt::AlignVCenter | Qt::AlignHCenter, 1, 1},
};

int styleNumber(const QString& name)
{
    if (name == QLatin1String("Outline"))
        return EnumHelper::Outline;
    if (name == QLatin1String("Raised"))
        return EnumHelper::Raised;
    if (name == QLatin1String("Sunken"))
        return EnumHelper::Sunken;
    return EnumHelper::Standard;
}

} // namespace

QString textQml(const DesignerProperty* property, int indent)
{
    // The text is appended, not put in by arg(): it may hold "%1" itself.
    return DesignerObject::getTabs(indent) + QLatin1String("text: \"")
           + TextHelper::toQmlValueString(property->valueString()) + QLatin1Char('"');
}

QString alignmentQml(const DesignerProperty* property, int indent)
{
    bool ok = false;
    const int value = ValueConversion::toInt(property->valueString(), &ok);
    if (!ok)
        return {};
    Alignment alignment = Alignments.front();
    for (const Alignment& known : Alignments) {
        if (known.value == value)
            alignment = known;
    }
    return QStringLiteral("%1verticalAlignment: %2\n%1horizontalAlignment: %3")
        .arg(DesignerObject::getTabs(indent))
        .arg(alignment.vertical)
        .arg(alignment.horizontal);
}

QString textStyleQml(const DesignerProperty* property, int indent)
{
    bool ok = false;
    const QMap<QString, QString> group = ValueConversion::toGroupProperties(property->valueString(), &ok);
    const auto style = group.constFind(QStringLiteral("textStyle"));
    if (property->valueString().isEmpty() || !ok || style == group.constEnd())
        return {};
    QString color = QStringLiteral("#ff0000");
    if (*style != QLatin1String("Normal")) {
        const QString stored = group.value(QStringLiteral("styleColor"));
        bool isColor = false;
        ValueConversion::toColor(stored, &isColor);
        if (isColor)
            color = TextHelper::toQmlValueString(stored);
    }
    const QString tabs = DesignerObject::getTabs(indent);
    return QStringLiteral("%1textStyle: %2\n%1styleColor: \"%3\"").arg(tabs).arg(styleNumber(*style)).arg(color);
}

} // namespace Korvex::Meridane::Designer
