#pragma once

#include "host/core/properties/DesignerProperty.h"

namespace Korvex::Meridane::Designer {

/// What the host's typed properties share: the converted value beside the text that does not convert.
template <typename Value>
class TypedProperty : public DesignerProperty
{
public:
    TypedProperty(DesignerObject* parent, const QString& id, const QString& name, const Value& value)
        : DesignerProperty(parent, id, name)
        , m_value(value)
    {}

    /// The converted value; the last one that converted while the property holds a text that does not.
    [[nodiscard]] const Value& value() const { return m_value; }

    bool convertToValue(const QString& valueString) override
    {
        bool ok = false;
        Value value = parse(valueString, &ok);
        if (!ok)
            return keepUnconverted(valueString);
        m_value = value;
        setConverted();
        return true;
    }

    [[nodiscard]] QString convertToValueString() const override { return write(m_value); }

    [[nodiscard]] bool valueIsEqual(const QString& valueString) const override
    {
        if (write(m_value) == valueString)
            return true;
        bool ok = false;
        const Value other = parse(valueString, &ok);
        return ok && write(other) == write(m_value);
    }

protected:
    [[nodiscard]] virtual Value parse(const QString& valueString, bool* ok) const = 0;
    [[nodiscard]] virtual QString write(const Value& value) const = 0;

private:
    Value m_value;
};

} // namespace Korvex::Meridane::Designer
