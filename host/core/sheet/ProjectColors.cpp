#include "host/core/sheet/ProjectColors.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/BorderProperty.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/EnumProperty.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RotationProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/properties/StringProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <typeindex>
#include <unordered_map>

namespace Korvex::Meridane::Designer {

namespace {

/// Counts the colours of the properties that it is shown.
class ColorCount
{
public:
    void addObject(const DesignerObject& object)
    {
        for (const auto& property : object.properties())
            addProperty(*property);
        if (const ObjectListProperty* children = object.childList()) {
            for (const DesignerObject* child : children->items())
                addObject(*child);
        }
    }

    [[nodiscard]] QList<QColor> mostUsed(int most) const
    {
        QList<Entry> entries = m_entries;
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Entry& left, const Entry& right) { return left.uses > right.uses; });
        QList<QColor> colors;
        for (const Entry& entry : std::as_const(entries).first(std::min<qsizetype>(most, entries.size())))
            colors.append(QColor::fromRgba(entry.color));
        return colors;
    }

private:
    enum class Kind
    {
        None,
        Color,
        Border,
        Text ///< a value of a type that this knows nothing of, and that may name colours
    };
    struct Entry
    {
        QRgb color;
        int uses;
    };

    void addProperty(const DesignerProperty& property)
    {
        if (!property.hasFlag(Stored) || !property.isConverted())
            return;
        switch (kindOf(property)) {
        case Kind::None:
            break;
        case Kind::Color:
            addColor(static_cast<const ColorProperty&>(property).value());
            break;
        case Kind::Border:
            // The colour of a border that is not drawn is nobody's choice.
            if (const BorderInfo border = static_cast<const BorderProperty&>(property).value(); border.width() > 0)
                addColor(border.color());
            break;
        case Kind::Text:
            addText(property.valueString());
            break;
        }
    }

    /// Told once for each type: asking every property for its class would take most of the time.
    Kind kindOf(const DesignerProperty& property)
    {
        const std::type_index type(typeid(property));
        const auto known = m_kinds.find(type);
        if (known != m_kinds.end())
            return known->second;
        Kind kind = Kind::Text;
        if (dynamic_cast<const ColorProperty*>(&property))
            kind = Kind::Color;
        else if (dynamic_cast<const BorderProperty*>(&property))
            kind = Kind::Border;
        else if (isOneOf<IntegerProperty, RealProperty, SizeProperty, PointProperty, PointListProperty,
                         RotationProperty, FontProperty, EnumProperty, LinkProperty, StringProperty,
                         ObjectListProperty>(property))
            kind = Kind::None;
        m_kinds.emplace(type, kind);
        return kind;
    }

    template <typename... Types>
    static bool isOneOf(const DesignerProperty& property)
    {
        return (dynamic_cast<const Types*>(&property) || ...);
    }

    void addColor(const QColor& color)
    {
        const QRgb rgba = color.rgba();
        const auto known = m_indices.constFind(rgba);
        if (known != m_indices.cend()) {
            ++m_entries[*known].uses;
            return;
        }
        m_indices.insert(rgba, m_entries.size());
        m_entries.append({rgba, 1});
    }

    void addText(const QString& text)
    {
        static const QRegularExpression named(QStringLiteral("#(?:[0-9a-fA-F]{8}|[0-9a-fA-F]{6})\\b"));
        auto match = named.globalMatch(text);
        while (match.hasNext()) {
            bool ok = false;
            const QColor color = ValueConversion::toColor(match.next().captured(), &ok);
            if (ok)
                addColor(color);
        }
    }

    std::unordered_map<std::type_index, Kind> m_kinds;
    QHash<QRgb, qsizetype> m_indices; // of the entries
    QList<Entry> m_entries;
};

} // namespace

QList<QColor> projectColors(const Project& project, int most)
{
    ColorCount count;
    for (const Screen* screen : project.screens()) {
        if (screen->isContentRead())
            count.addObject(*screen);
    }
    return count.mostUsed(most);
}

} // namespace Korvex::Meridane::Designer
