#pragma once

#include "host/core/commands/UndoStack.h"
#include "host/core/project/Problem.h"

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class EditSession;
class Project;

/// Safe ways to mend problems, each one undo step.
class MERIDANE_CORE_EXPORT ProblemFix
{
public:
    ProblemFix() = delete;

    /// What mending \a problem is called, for the user; empty where there is no way.
    [[nodiscard]] static QString text(Project* project, const Problem& problem);
    /// Whether mending \a problem needs an image file, which the user chooses.
    [[nodiscard]] static bool needsImage(const Problem& problem);
    /// Mends \a problem: moves the element onto its screen by the shortest way, gives the property its default, or lets
    /// the link show the picture in \a imageFile. Refused when the object or property is not there any more.
    static EditResult apply(EditSession* session, const Problem& problem, const QString& imageFile = {});

    /// The object that \a problem is about, or null.
    [[nodiscard]] static DesignerObject* object(Project* project, const Problem& problem);

private:
    static EditResult moveOntoScreen(EditSession* session, DesignerObject* object);
    static EditResult showImage(EditSession* session, const QSharedPointer<DesignerProperty>& link,
                                const QString& imageFile);
};

} // namespace Korvex::Meridane::Designer
