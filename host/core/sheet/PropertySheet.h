#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QScrollArea>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * The property sheet: a row for each shown property of the selection, by rank, built from the properties alone.
 *
 * With several objects it shows the properties that all of them have in common; an edit then changes each object by
 * the component and operation that the user touched, as one undo step.
 */
class MERIDANE_CORE_EXPORT PropertySheet : public QScrollArea
{
    Q_OBJECT

public:
    explicit PropertySheet(EditSession* session, QWidget* parent = nullptr);
    ~PropertySheet() override;

    [[nodiscard]] const QList<DesignerObject*>& objects() const { return m_objects; }

private:
    EditSession* m_session;
    QList<DesignerObject*> m_objects;
};

} // namespace Korvex::Meridane::Designer
