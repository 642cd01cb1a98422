#include "host/core/widgets/PlainTextEdit.h"

#include <QtCore/QMimeData>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QColor>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {
namespace {
/** Marks the signs that stand for another character. */
constexpr int standsForAnother = QTextFormat::UserProperty + 1;

/** A character that a text document does not keep, and the sign shown in its place. */
struct Substitute
{
    char16_t original;
    char16_t sign;
};
constexpr std::array<Substitute, 6> substitutes{{
    {u'\0', u'\u2205'}, // an empty set
    {u'\r', u'\u21b5'}, // the arrow of the return key
    {u'\u2029', u'\u00b6'}, // a pilcrow for the paragraph separator
    {u'\ufdd0', u'\u00ab'}, // beginning and end of a text frame inside documents
    {u'\ufdd1', u'\u00bb'},
    {u'\ufffc', u'\u25a1'}, // place of an inline object
}};

QChar signFor(QChar original)
{
    const auto found = std::find_if(substitutes.cbegin(), substitutes.cend(),
                                    [original](const Substitute& s) { return s.original == original.unicode(); });
    return found == substitutes.cend() ? QChar() : QChar(found->sign);
}

QChar originalOf(QChar sign)
{
    const auto found = std::find_if(substitutes.cbegin(), substitutes.cend(),
                                    [sign](const Substitute& s) { return s.sign == sign.unicode(); });
    return found == substitutes.cend() ? sign : QChar(found->original);
}

/** Whether lines can be broken behind @p c. */
bool isBreakingSpace(QChar c)
{
    return c.isSpace() && c.decompositionTag() != QChar::NoBreak && signFor(c).isNull();
}

/**
 * How the lines of @p text are broken: between words, or anywhere if a word is a long one. Qt looks for the end of a word
 * anew for every line of it, which takes minutes for a megabyte.
 */
QTextOption::WrapMode wrapModeFor(const QString& text)
{
    constexpr qsizetype longestWord = 2000;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isBreakingSpace(text.at(i))) {
            start = i + 1;
        } else if (i - start >= longestWord) {
            return QTextOption::WrapAnywhere;
        }
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

QTextCharFormat substituteFormat()
{
    QTextCharFormat format;
    format.setProperty(standsForAnother, true);
    format.setForeground(QColor(128, 128, 128)); // stands back from the text on light and on dark ground
    return format;
}
} // namespace

PlainTextEdit::PlainTextEdit(QWidget* parent)
    : QTextEdit(parent)
{
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QTextEdit::textChanged, this, [this] {
        if (!m_loading) {
            m_mixed = false;
            setPlaceholderText(QString());
            Q_EMIT userModified();
        }
    });
}

void PlainTextEdit::setText(const QString& text)
{
    if (text == plainText()) {
        return;
    }
    const QScopedValueRollback guard(m_loading, true);
    const int position = textCursor().position();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setCharFormat(QTextCharFormat());
    cursor.block().layout()->clearLayout(); // every insertion would go through the lines of the text before
    setWordWrapMode(wrapModeFor(text));
    insertEncoded(cursor, text);
    cursor.endEditBlock();
    // What is being edited is often what comes back: the caret stays.
    cursor.setPosition(std::min(position, document()->characterCount() - 1));
    setTextCursor(cursor);
    setCurrentCharFormat(QTextCharFormat());
}

QString PlainTextEdit::plainText() const
{
    return decoded(0, document()->characterCount() - 1);
}

void PlainTextEdit::setMixed(bool mixed)
{
    m_mixed = mixed;
    setPlaceholderText(mixed ? QStringLiteral("\u2014") : QString());
}

/** Inserts @p text at @p cursor: line feeds as new blocks, substitutes with their mark, all else as it stands. */
void PlainTextEdit::insertEncoded(QTextCursor& cursor, const QString& text) const
{
    const QTextCharFormat plain;
    const QTextCharFormat marked = substituteFormat();
    qsizetype start = 0;
    const auto flush = [&](qsizetype end) {
        if (end > start) {
            cursor.insertText(text.mid(start, end - start), plain);
        }
        start = end + 1;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == u'\n') {
            flush(i);
            cursor.insertBlock(QTextBlockFormat(), plain);
        } else if (const QChar sign = signFor(c); !sign.isNull()) {
            flush(i);
            cursor.insertText(QString(sign), marked);
        }
    }
    flush(text.size());
}

/** The text between two positions of the document. */
QString PlainTextEdit::decoded(int start, int end) const
{
    QString text;
    text.reserve(end - start);
    for (QTextBlock block = document()->findBlock(start); block.isValid() && block.position() <= end;
         block = block.next()) {
        if (block.position() > start) {
            text.append(u'\n');
        }
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const int from = std::max(start - fragment.position(), 0);
            const int to = std::min(end - fragment.position(), fragment.length());
            if (from >= to) {
                continue;
            }
            const QString characters = fragment.text().mid(from, to - from);
            if (!fragment.charFormat().boolProperty(standsForAnother)) {
                text.append(characters);
                continue;
            }
            // Text typed behind a sign takes over its format; only the signs themselves stand for something.
            for (const QChar c : characters) {
                text.append(originalOf(c));
            }
        }
    }
    return text;
}

bool PlainTextEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            key->ignore();
            return true;
        }
    }
    return QTextEdit::event(event);
}

void PlainTextEdit::keyPressEvent(QKeyEvent* event)
{
    // One kind of line end: Shift+Return would insert a line separator, which looks the same and is another character.
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        textCursor().insertBlock();
        ensureCursorVisible();
        event->accept();
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void PlainTextEdit::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QTextEdit::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void PlainTextEdit::focusInEvent(QFocusEvent* event)
{
    QTextEdit::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT focusedIn();
    }
}

void PlainTextEdit::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT focusedOut();
    }
}

QMimeData* PlainTextEdit::createMimeDataFromSelection() const
{
    auto* data = new QMimeData;
    data->setText(decoded(textCursor().selectionStart(), textCursor().selectionEnd()));
    return data;
}

bool PlainTextEdit::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText();
}

void PlainTextEdit::insertFromMimeData(const QMimeData* source)
{
    // Other programs end lines in ways of their own.
    QString text = source->text();
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    text.replace(QChar(QChar::ParagraphSeparator), u'\n');
    if (wrapModeFor(text) == QTextOption::WrapAnywhere) {
        setWordWrapMode(QTextOption::WrapAnywhere);
    }
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    insertEncoded(cursor, text);
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}
} // namespace Korvex::Meridane::Designer
