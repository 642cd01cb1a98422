#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class FontWidget;

/// The editor of a font: family, size, weight, style and spacing. With several elements an edit of one attribute leaves
/// the others of each as they are. A button imports a font file into the project; it needs the session() and is disabled
/// without one. Editor parameter: "tooltip".
class MERIDANE_CORE_EXPORT FontEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit FontEditor(QWidget* parent);
    ~FontEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    void propertyReplaced() override;
    /// Keeps to the decimals of the size, also where a relative edit led beyond them.
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    /// Copies \a file into the project and chooses its family; a file that is no font is refused with a message.
    void importFile(const QString& file);

    [[nodiscard]] FontWidget* fontWidget() const { return m_widget; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    void chooseFile();

    FontWidget* m_widget = nullptr;
};

} // namespace Korvex::Meridane::Designer
