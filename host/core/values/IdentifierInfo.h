#pragma once

#include <QtCore/QString>

namespace Korvex::Meridane::Designer {
/** How objects of a class are named, and who can link to them. */
class IdentifierInfo
{
public:
    /** The word for the object in its own class's terms, for example "rectangle". */
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name) { m_name = name; }

    /** The stem of new ids: a number is appended to make the id unique in its scope. */
    [[nodiscard]] const QString& base() const { return m_base; }
    void setBase(const QString& base) { m_base = base; }

    /** The class name by which link properties choose their targets. */
    [[nodiscard]] const QString& filterType() const { return m_filterType; }
    void setFilterType(const QString& filterType) { m_filterType = filterType; }

    /** Where ids are unique: "Screen" or "Project". */
    [[nodiscard]] const QString& scopeType() const { return m_scopeType; }
    void setScopeType(const QString& scopeType) { m_scopeType = scopeType; }

    friend bool operator==(const IdentifierInfo& a, const IdentifierInfo& b) = default;

private:
    QString m_name;
    QString m_base;
    QString m_filterType;
    QString m_scopeType;
};
} // namespace Korvex::Meridane::Designer
