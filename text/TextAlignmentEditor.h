#pragma once

#include "host/core/editors/PropertyEditor.h"

namespace Korvex::Meridane::Designer {

class TextAlignButtonGroup;

/// The editor of the place of a text in its box: a number that is one of nine alignments, shown as nine buttons. A value
/// that is none of them leaves the buttons as they are.
class TextAlignmentEditor : public PropertyEditor
{
    Q_OBJECT

public:
    explicit TextAlignmentEditor(QWidget* parent);
    ~TextAlignmentEditor() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool createEditorWidget() override;
    [[nodiscard]] QString editorValue() const override;
    bool loadEditorValue() override;
    /// What the buttons showed of the property before does not count for this one.
    void propertyReplaced() override;
    [[nodiscard]] bool showsMixed() const override;

    [[nodiscard]] TextAlignButtonGroup* buttonGroup() const { return m_group; }

Q_SIGNALS:
    /// The user has chosen another alignment.
    void userModified();

private:
    TextAlignButtonGroup* m_group = nullptr;
};

} // namespace Korvex::Meridane::Designer
