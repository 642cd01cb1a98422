#pragma once

#include "host/core/CoreExport.h"

#include <QtWidgets/QTextEdit>

namespace Korvex::Meridane::Designer {
/**
 * A multi-line field for plain text. setText() and plainText() are exact inverses for every string: markup is shown as
 * it stands, and characters that a text document would turn into something else (carriage returns, NUL, paragraph
 * separators …) are shown as a visible sign and read back as themselves.
 *
 * Undo and redo belong to the project, not to the field. Tab leaves the field. The wheel acts only on the focused one.
 */
class MERIDANE_CORE_EXPORT PlainTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit PlainTextEdit(QWidget* parent = nullptr);

    /** Shows @p text; textChanged() is sent if it differs from plainText(), userModified() never. */
    void setText(const QString& text);

    [[nodiscard]] QString plainText() const;

    /** Shows "—" while the field is empty, for several texts that differ. */
    void setMixed(bool mixed);
    [[nodiscard]] bool isMixed() const { return m_mixed; }

Q_SIGNALS:
    /** The user has changed the text; sent for every change. */
    void userModified();
    void focusedIn();
    void focusedOut();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void insertEncoded(QTextCursor& cursor, const QString& text) const;
    [[nodiscard]] QString decoded(int start, int end) const;

    bool m_loading = false;
    bool m_mixed = false;
};
} // namespace Korvex::Meridane::Designer
