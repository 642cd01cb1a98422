#pragma once

#include "host/common/EnumHelper.h"

#include <QString>

namespace Korvex::Meridane::Designer {

/// A property of an exported element that the running display may read, and write where isWritable().
class RuntimeProperty
{
public:
    /// \a name is the QML property, \a label its localised name, \a writable whether the display may set it.
    RuntimeProperty(const QString& name, const QString& label, Common::EnumHelper::VariableType type, bool writable)
        : m_name(name)
        , m_label(label)
        , m_type(type)
        , m_writable(writable)
    {}

    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] const QString& label() const { return m_label; }
    [[nodiscard]] Common::EnumHelper::VariableType type() const { return m_type; }
    [[nodiscard]] bool isWritable() const { return m_writable; }

private:
    QString m_name;
    QString m_label;
    Common::EnumHelper::VariableType m_type;
    bool m_writable;
};

} // namespace Korvex::Meridane::Designer
