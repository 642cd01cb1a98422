#pragma once

#include "host/core/CoreExport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Korvex::Meridane::Designer {
/** A reference to another object by its id, with the kinds of object that it may name. */
class MERIDANE_CORE_EXPORT ObjectLinkInfo
{
public:
    /** The empty link: names nothing, which is valid. */
    ObjectLinkInfo() = default;

    explicit ObjectLinkInfo(const QString& objectId)
        : m_objectId(objectId)
    {}

    /** The id of the object; the file name of an image resource; empty when nothing is linked. */
    [[nodiscard]] const QString& objectId() const { return m_objectId; }

    /** Class names of the objects that may be linked; empty for all. */
    [[nodiscard]] const QStringList& filterType() const { return m_filterType; }
    void setFilterType(const QStringList& filterType) { m_filterType = filterType; }
    void setFilterType(const QString& filterType) { m_filterType = QStringList{filterType}; }

    /** Where the object is looked for: "Screen" or "Project". */
    [[nodiscard]] const QString& scopeType() const { return m_scopeType; }
    void setScopeType(const QString& scopeType) { m_scopeType = scopeType; }

    /**
     * True for the empty link and for an id that can name an object or a file of the project. An id becomes a part of
     * a path, so it must not lead out of the project's folder: refused are "." and "..", slashes of both kinds,
     * colons, control characters, characters that no UTF-8 text can carry, and blanks at either end. Whether the
     * object exists is not asked.
     */
    [[nodiscard]] bool isValid() const;

    friend bool operator==(const ObjectLinkInfo& a, const ObjectLinkInfo& b) = default;

private:
    QString m_objectId;
    QStringList m_filterType;
    QString m_scopeType;
};
} // namespace Korvex::Meridane::Designer
