#pragma once

#include "host/core/commands/UndoStack.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * Elements as data: for the clipboard and for duplicates.
 *
 * The data holds the elements as a project file does, and the folder of the images that they may show, so that they can
 * be pasted into another project as well.
 */
class ElementClipboard
{
public:
    /// The type of the data on the clipboard: JSON.
    [[nodiscard]] static QString mimeType();

    /// The elements among \a objects from back to front; what stands inside another of them comes with that one.
    [[nodiscard]] static QList<DesignerObject*> copyable(const QList<DesignerObject*>& objects);
    /// The copyable() ones of \a objects as data; empty when there is none.
    [[nodiscard]] static QByteArray write(const EditSession* session, const QList<DesignerObject*>& objects);
    /// Adds what \a data holds to the current screen, in front of its elements, as one step called \a text, and selects
    /// it. Ids that are taken are replaced by free ones. Elements that would exactly cover their originals are moved a
    /// little to the right and down.
    static EditResult insert(EditSession* session, const QByteArray& data, const QString& text);

private:
    static void moveAside(EditSession* session, const std::vector<std::unique_ptr<DesignerObject>>& elements);
    static void takeImages(EditSession* session, DesignerObject* element, const QString& imagesFolder);
};

} // namespace Korvex::Meridane::Designer
