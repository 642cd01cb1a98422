#pragma once

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/sheet/PropertySheet.h"

#include "tests/support/EditorTestElement.h"

#include <QTemporaryDir>

#include <memory>

class QLineEdit;

namespace Korvex::Meridane::Designer {
class SectionHeader;
class SpinBox;
} // namespace Korvex::Meridane::Designer

namespace Korvex::Meridane::Designer::Test {

/// A session with one screen and the property sheet in a window, for tests that use it like a user.
class SheetFixture
{
public:
    SheetFixture();
    ~SheetFixture();

    /// A new element on the screen; the history is empty afterwards.
    EditorTestElement* addElement();
    DesignerObject* addRectangle();
    void select(const QList<DesignerObject*>& objects);
    UndoStack* stack() const { return session->undoStack(); }

    /// The editor of a shown property, as its class.
    template <typename Editor>
    Editor* editor(const char* propertyId) const
    {
        auto* found = qobject_cast<Editor*>(sheet->editor(QString::fromLatin1(propertyId)));
        if (!found)
            qFatal("no such editor: %s", propertyId);
        return found;
    }
    [[nodiscard]] QString message(const char* propertyId) const
    {
        return sheet->message(QString::fromLatin1(propertyId));
    }
    [[nodiscard]] QLineEdit* idField() const;
    /// The heading of that section that one can see, or null.
    [[nodiscard]] SectionHeader* section(const QString& key) const;

    /// Clicks into the field, replaces its text and presses Enter.
    static void enter(QWidget* field, const char* text);
    /// The same without Enter.
    static void type(QWidget* field, const char* text);

    TestFactory factory;
    QTemporaryDir folder;
    std::unique_ptr<EditSession> session;
    Screen* screen = nullptr;
    std::unique_ptr<PropertySheet> sheet;
};

} // namespace Korvex::Meridane::Designer::Test
