#pragma once

#include "host/core/CoreExport.h"
#include "host/core/commands/UndoStack.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * Elements as data: for the clipboard and for duplicates.
 *
 * The data holds the elements as a project file does, where they are on their screen, and the pictures and fonts that they
 * use, so that they can be pasted into another project as well. Copies are neither locked nor hidden. Ids that are taken
 * are replaced by free ones; links between the copies follow.
 */
class MERIDANE_CORE_EXPORT ElementClipboard
{
public:
    ElementClipboard() = delete;

    /// Where elements are pasted.
    enum class Placement
    {
        Aside, ///< where they were, and a little to the right and down where something begins there already
        InPlace ///< exactly where they were on their screen
    };

    /// The type of the data on the clipboard: JSON.
    [[nodiscard]] static QString mimeType();

    /// The elements among \a objects from back to front; what stands inside another of them comes with that one.
    [[nodiscard]] static QList<DesignerObject*> copyable(const QList<DesignerObject*>& objects);
    /// The copyable() ones of \a objects as data; empty when there is none.
    [[nodiscard]] static QByteArray write(EditSession* session, const QList<DesignerObject*>& objects);
    /// What the copyable() ones of \a objects, which stand on one screen, look like there, on transparent ground, a pixel
    /// for a pixel; null when that is nothing or larger than a picture can be.
    [[nodiscard]] static QImage picture(EditSession* session, const QList<DesignerObject*>& objects);

    /// Adds what \a data holds to the current screen as one step called \a text, and selects it: into the group that is
    /// selected, or in which all that is selected stands, else on the screen itself, in front of what is there. Beside a
    /// selected group that was itself copied. What would not be seen on the screen is moved onto it.
    static EditResult insert(EditSession* session, const QByteArray& data, const QString& text,
                             Placement placement = Placement::Aside);
    /// Adds copies of the copyable() ones of \a objects in front of their siblings, as one step, and selects them. They
    /// are moved by \a offset, in pixels of the screen; without one a little to the right and down, as by insert().
    static EditResult duplicate(EditSession* session, const QList<DesignerObject*>& objects,
                                const std::optional<QPointF>& offset = std::nullopt,
                                QList<DesignerObject*>* copies = nullptr);
};

} // namespace Korvex::Meridane::Designer
