#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QMap>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/// All that a row of the property sheet is built from. Objects with equal descriptions can share one set of rows.
struct RowDescription
{
    QString propertyId;
    QString propertyClass;
    QString editorClass;
    QString label;
    QString section; ///< the key of the section that it stands in; see SheetSections
    QString sectionTitle;
    QMap<QString, QVariant> parameters;
    bool editable = true;

    friend bool operator==(const RowDescription& left, const RowDescription& right) = default;
};

/**
 * The rows that \a objects have in common: the properties that are Shown in each and have the same id and class
 * everywhere, by section and within a section by rank; the section of the lowest rank comes first. A row is editable when the property is Editable in each. Label, editor and parameters are the first
 * object's.
 */
[[nodiscard]] QList<RowDescription> commonRows(const QList<DesignerObject*>& objects);

/// The property of each object that a row shows, in the order of \a objects; empty when one of them lacks it.
[[nodiscard]] QList<QSharedPointer<DesignerProperty>> propertiesOf(const RowDescription& row,
                                                                   const QList<DesignerObject*>& objects);

} // namespace Korvex::Meridane::Designer
