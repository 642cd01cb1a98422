#pragma once

#include "host/core/widgets/PlainTextEdit.h"

#include "tests/text/TextSheet.h"

#include <QTextCursor>

namespace Korvex::Meridane::Designer::Test {

/// Text boxes whose text is edited: the field of the sheet, and the keyboard of a user.
class TextEditSheet : public TextSheet
{
public:
    [[nodiscard]] PropertyEditor* textEditor() const { return editor<PropertyEditor>("text"); }
    [[nodiscard]] PlainTextEdit* edit() const { return part<PlainTextEdit>("text"); }
    static QString text(const DesignerObject* box) { return value(box, "text"); }

    [[nodiscard]] int caret() const { return edit()->textCursor().position(); }
    /// Goes into the field, to that position.
    void setCaret(int position)
    {
        edit()->setFocus();
        QTextCursor cursor = edit()->textCursor();
        cursor.setPosition(position);
        edit()->setTextCursor(cursor);
    }
    /// Line feeds are typed with Return.
    void typeHere(const QString& text)
    {
        for (const QChar character : text) {
            if (character == QLatin1Char('\n'))
                QTest::keyClick(edit(), Qt::Key_Return);
            else
                QTest::keyClick(edit(), character.toLatin1());
        }
    }
    void typeAtEnd(const QString& text)
    {
        edit()->setFocus();
        edit()->moveCursor(QTextCursor::End);
        typeHere(text);
    }
};

} // namespace Korvex::Meridane::Designer::Test
