#pragma once

#include "host/core/arrange/ElementPlaces.h"
#include "host/core/commands/UndoStack.h"

#include <QList>
#include <QPointF>
#include <QPointer>
#include <QRectF>

#include <memory>
#include <optional>
#include <vector>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class Screen;

/// Copies of elements that are about to be added to a screen.
class ElementCopies
{
public:
    /// The copies go to \a screen, which has its scene.
    ElementCopies(EditSession* session, Screen* screen);
    ~ElementCopies();
    Q_DISABLE_COPY_MOVE(ElementCopies)

    /// Takes \a element, which is in no project, to be added to \a owner at \a place (nothing: where its own position
    /// says) and \a bounds, the outer rectangle there, both on the screen. Locks and hidden marks are left behind.
    void add(std::unique_ptr<DesignerObject> element, DesignerObject* owner, const std::optional<ElementPlace>& place,
             const QRectF& bounds);
    [[nodiscard]] bool isEmpty() const { return m_copies.empty(); }
    [[nodiscard]] QList<DesignerObject*> elements() const;

    /// Moves all copies, in pixels of the screen.
    void move(const QPointF& way) { m_shift += way; }
    /// Moves them to the right and down until the first one does not begin where an element of its owner does.
    void moveAside();
    /// Moves them onto the screen where hardly anything of them would be seen.
    void moveIntoView();

    /// Adds all, in front of what their owners hold, as one step called \a text.
    EditResult execute(const QString& text);

private:
    struct Copy
    {
        std::unique_ptr<DesignerObject> element;
        QPointer<DesignerObject> owner;
        std::optional<ElementPlace> place;
        QRectF bounds;
    };
    void giveFreeIds();
    [[nodiscard]] static QPointF origin(const Copy& copy);

    EditSession* m_session;
    Screen* m_screen;
    std::vector<Copy> m_copies;
    QPointF m_shift;
};

} // namespace Korvex::Meridane::Designer
