#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class Project;

/**
 * The pictures and fonts that go along with elements to another project: by their content, as long as it is not large,
 * and by the folders that they stand in.
 */
class ClipboardResources
{
public:
    ClipboardResources() = delete;

    /// What \a elements of \a project use.
    [[nodiscard]] static QJsonObject collect(const Project* project, const QList<const DesignerObject*>& elements);
    /// Brings what \a elements use out of \a resources into the project of \a session, unless it is there, and has their
    /// links follow. Links are changed without a step: the elements are in no project yet.
    static void take(EditSession* session, const QJsonObject& resources, const QList<DesignerObject*>& elements);
};

} // namespace Korvex::Meridane::Designer
