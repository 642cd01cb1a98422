#pragma once

#include "host/core/editors/NumberEditor.h"

#include <QList>
#include <QPointer>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/**
 * The editor of a real number of a line. While its field has the focus, the line shows on the canvas where it starts.
 *
 * Its parameters are those of NumberEditor; "minimum" is 0 and "maximum" 100 unless given.
 */
class FocusRealEditor : public NumberEditor
{
    Q_OBJECT

public:
    explicit FocusRealEditor(QWidget* parent);
    ~FocusRealEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    /// The mark goes along to the line that is edited now.
    void propertyReplaced() override;

private Q_SLOTS:
    void onFocusedIn();
    void onFocusedOut();

private:
    void mark(const QList<DesignerObject*>& objects);

    QList<QPointer<DesignerObject>> m_marked;
};

} // namespace Korvex::Meridane::Designer
