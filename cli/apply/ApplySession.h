#pragma once

#include "cli/apply/ApplyResult.h"

#include "host/core/canvas/EditSession.h"

#include <memory>

namespace Korvex::Meridane::Designer {

class CanvasInput;
class EditArguments;

/// The project that edits are applied to, with what edits leave to the ones that follow.
class ApplySession
{
public:
    explicit ApplySession(std::unique_ptr<Project> project);
    ~ApplySession();
    Q_DISABLE_COPY_MOVE(ApplySession)

    [[nodiscard]] EditSession& edits() { return m_edits; }
    [[nodiscard]] Project& project() { return *m_edits.project(); }
    /// The mouse and the keyboard of the canvas.
    [[nodiscard]] CanvasInput& input();

    /**
     * The object that the argument "id" names; null, with the fault recorded in \a arguments, when there is none.
     *
     * "screen/id" names the element of a screen, "screen/" the screen itself. A bare id names the element of that id,
     * refused when it stands on several screens; where no element has it, the screen of that id. The object's screen
     * becomes the one touched last.
     */
    DesignerObject* object(EditArguments& arguments);
    /// The same for elements alone.
    DesignerObject* element(EditArguments& arguments);
    /// The objects of "id" or "ids"; of elements alone unless \a screensToo. Exactly one of both arguments is given.
    QList<DesignerObject*> objects(EditArguments& arguments, bool screensToo);
    /// The screen that the argument \a name names; null, with the fault recorded, when there is none.
    Screen* screen(EditArguments& arguments, QLatin1String name);
    /// Records a fault when \a screen, which may be null, could not be read: it refuses all edits.
    static void requireReadable(const Screen* screen, EditArguments& arguments);
    /// An id for a new object that the argument "id" gives; a fault is recorded when no object can have it.
    static QString newId(EditArguments& arguments);

    /// The result of an edit of edits(), with \a extra when it was accepted.
    [[nodiscard]] static ApplyResult result(const EditResult& edit, const QJsonObject& extra = {});

private:
    DesignerObject* find(EditArguments& arguments, bool screensToo);
    DesignerObject* find(const QString& reference, bool screensToo, QString* message);
    DesignerObject* findAnywhere(const QString& id, bool screensToo, QString* message);

    EditSession m_edits;
    std::unique_ptr<CanvasInput> m_input;
};

} // namespace Korvex::Meridane::Designer
