#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QStringList>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Project;

/// Which objects of a project use its font files.
class MERIDANE_CORE_EXPORT FontReferences
{
public:
    FontReferences() = delete;

    /// What texts call the font in the file \a font of \a project; empty when it holds none that can be used.
    [[nodiscard]] static QStringList families(Project* project, const QString& font);
    /// The objects with a property that asks for one of the families of \a font, in the order of the tree. Screens that
    /// have not been read are left unread.
    [[nodiscard]] static QList<DesignerObject*> users(Project* project, const QString& font);
    /// Why \a font cannot be removed: it is not there, or it is used, with the places; empty when it can be. Every screen
    /// is read for it. A font of which another file of the project holds all families can be removed.
    [[nodiscard]] static QString removalRefusal(Project* project, const QString& font);
};

} // namespace Korvex::Meridane::Designer
