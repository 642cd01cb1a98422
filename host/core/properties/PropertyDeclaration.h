#pragma once

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"

namespace Korvex::Meridane::Designer {

/// What PropertyDeclaration does for every type.
class MERIDANE_CORE_EXPORT PropertyDeclarationBase
{
protected:
    static void add(DesignerObject* object, const QSharedPointer<DesignerProperty>& property);
};

/**
 * Declares a property of an object in one expression, a row of the object's table:
 *
 *     m_size = PropertyDeclaration<SizeProperty>(this, "size", tr("Size"), QSizeF(100, 75))
 *                  .rank(10).flags(Stored | Exported).allowInvalid().editor("SizeEditor", {{"minimumValue", ...}});
 *
 * The property belongs to the object when the expression is converted to a handle.
 */
template <typename Property>
class PropertyDeclaration : private PropertyDeclarationBase
{
public:
    template <typename Value>
    PropertyDeclaration(DesignerObject* object, QLatin1String id, const QString& label, const Value& value)
        : m_object(object)
        , m_property(QSharedPointer<Property>::create(object, id, label, value))
    {}

    PropertyDeclaration&& rank(int rank) &&
    {
        m_property->setRank(rank);
        return std::move(*this);
    }
    PropertyDeclaration&& flags(PropertyFlags flags) &&
    {
        m_property->setFlags(flags);
        return std::move(*this);
    }
    PropertyDeclaration&& allowInvalid() &&
    {
        m_property->setAllowInvalidValue(true);
        return std::move(*this);
    }
    PropertyDeclaration&& editor(QLatin1String editorClass, const QMap<QString, QVariant>& parameters = {}) &&
    {
        m_property->setEditor(editorClass, parameters);
        return std::move(*this);
    }
    /// Parameters for the type's default editor.
    PropertyDeclaration&& parameters(const QMap<QString, QVariant>& parameters) &&
    {
        m_property->setEditorParameters(parameters);
        return std::move(*this);
    }
    PropertyDeclaration&& validator(DesignerProperty::Validator validator) &&
    {
        m_property->setValidator(validator);
        return std::move(*this);
    }
    PropertyDeclaration&& advisor(DesignerProperty::Advisor advisor) &&
    {
        m_property->setAdvisor(advisor);
        return std::move(*this);
    }
    PropertyDeclaration&& qmlCreator(DesignerProperty::QmlCreator creator) &&
    {
        m_property->setQmlCreator(creator);
        return std::move(*this);
    }

    operator QSharedPointer<DesignerProperty>() && // NOLINT(google-explicit-constructor): ends the expression
    {
        add(m_object, m_property);
        return m_property;
    }

private:
    DesignerObject* m_object;
    QSharedPointer<Property> m_property;
};

} // namespace Korvex::Meridane::Designer
