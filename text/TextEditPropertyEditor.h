#pragma once

#include "host/core/editors/PropertyEditor.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class PlainTextEdit;

/**
 * The editor of a text of several lines. Every change of the text is saved at once, if it makes a difference to the
 * stored text; whatever a text holds, loading it makes none.
 *
 * Typing is one undo step until the focus comes back, something else has been edited, or a step was undone or redone.
 */
class TextEditPropertyEditor : public PropertyEditor
{
    Q_OBJECT

public:
    explicit TextEditPropertyEditor(QWidget* parent);
    ~TextEditPropertyEditor() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool createEditorWidget() override;
    [[nodiscard]] QString editorValue() const override;
    /// The caret stays where it was in the text, at the end of what has changed around it.
    bool loadEditorValue() override;
    void propertyReplaced() override;
    [[nodiscard]] bool showsMixed() const override;

    [[nodiscard]] PlainTextEdit* textEdit() const { return m_edit; }

public Q_SLOTS:
    void save() override;
    void saveChange() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void setFieldSize();
    void goOnTyping();
    void placeCaret(int position);

    PlainTextEdit* m_edit = nullptr;
    QString m_typingKey; // joins the steps of what is being typed
    bool m_otherText = false; // the next text to load is that of another property
};

} // namespace Korvex::Meridane::Designer
