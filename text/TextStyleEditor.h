#pragma once

#include "host/core/editors/PropertyEditor.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class TextStyleWidget;

/**
 * The editor of a text's style: "textStyle: Normal;" or, with another style, "textStyle: Outline; styleColor: #ff0000;".
 *
 * A dragged colour is one undo step. With several elements an edit of the style leaves each its colour, and one of the
 * colour leaves each its style.
 */
class TextStyleEditor : public PropertyEditor
{
    Q_OBJECT

public:
    explicit TextStyleEditor(QWidget* parent);
    ~TextStyleEditor() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool createEditorWidget() override;
    [[nodiscard]] QString editorValue() const override;
    bool loadEditorValue() override;
    /// In property-change mode \a value counts only for what was edited, style or colour.
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;
    /// What the widget showed of the property before does not count for this one.
    void propertyReplaced() override;
    [[nodiscard]] bool showsMixed() const override;

    [[nodiscard]] TextStyleWidget* styleWidget() const { return m_widget; }

private:
    void showMixed();

    TextStyleWidget* m_widget = nullptr;
    QString m_dragKey; // joins the steps of a colour that is being dragged
};

} // namespace Korvex::Meridane::Designer
