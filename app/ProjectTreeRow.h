#pragma once

#include <QString>
#include <QVariant>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// What the project tree shows of one object, apart from what depends on the rest of the tree.
class ProjectTreeRow
{
public:
    /// \a object outlives the row.
    explicit ProjectTreeRow(const DesignerObject* object)
        : m_object(object)
    {}

    /// Whether this is a screen whose file cannot be read.
    [[nodiscard]] bool isUnreadable() const;
    /// The column of the name, for an item's \a role. Of elements the picture of their class is left to the tree, which keeps
    /// one for all rows.
    [[nodiscard]] QVariant nameData(int role) const;
    /// The column \a column of a mark (ProjectTreeModel::Column), for an item's \a role; invalid where the object has no
    /// such mark.
    [[nodiscard]] QVariant markData(int column, int role) const;

private:
    [[nodiscard]] QString name() const;
    [[nodiscard]] QVariant icon() const;
    [[nodiscard]] QString toolTip() const;

    const DesignerObject* m_object;
};

} // namespace Korvex::Meridane::Designer
