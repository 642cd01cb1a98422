#include "text/TextEditPropertyEditor.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/widgets/PlainTextEdit.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int VisibleLines = 5;
constexpr int ReadableWidth = 30; // characters; where there is less room, the label stands above the field

QString newTypingKey()
{
    static quint64 number = 0; // GUI thread only
    return QStringLiteral("typing-%1").arg(++number);
}

/// Where a caret at \a position of \a before belongs in \a after: at the same characters, or at the end of those that
/// have taken the place of the ones around it.
int caretPosition(const QString& before, const QString& after, qsizetype position)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    // What stands behind the caret is compared first: typing changes what stands before it.
    const qsizetype mostBehind = std::min(shorter, before.size() - position);
    qsizetype behind = 0;
    while (behind < mostBehind && before.at(before.size() - 1 - behind) == after.at(after.size() - 1 - behind))
        ++behind;
    const qsizetype mostAhead = shorter - behind;
    const auto firstChange = std::mismatch(before.cbegin(), before.cbegin() + mostAhead, after.cbegin()).first;
    const qsizetype ahead = firstChange - before.cbegin();
    qsizetype caret = position <= ahead && position + behind < before.size() ? position : after.size() - behind;
    // Never between the halves of a character.
    if (caret > 0 && caret < after.size() && after.at(caret).isLowSurrogate() && after.at(caret - 1).isHighSurrogate())
        ++caret;
    return static_cast<int>(caret);
}

} // namespace

TextEditPropertyEditor::TextEditPropertyEditor(QWidget* parent)
    : PropertyEditor(parent)
{}

TextEditPropertyEditor::~TextEditPropertyEditor() = default;

QString TextEditPropertyEditor::className() const
{
    return QStringLiteral("TextEditPropertyEditor");
}

QStringList TextEditPropertyEditor::classNames() const
{
    return PropertyEditor::classNames() << QStringLiteral("TextEditPropertyEditor");
}

bool TextEditPropertyEditor::createEditorWidget()
{
    m_edit = new PlainTextEdit(this);
    m_edit->setAccessibleName(property()->name());
    setEditorWidget(m_edit);
    setFieldSize();
    connect(m_edit, &PlainTextEdit::focusedIn, this, [this] { m_typingKey.clear(); });
    saveOn(m_edit, &PlainTextEdit::textChanged);
    return true;
}

QString TextEditPropertyEditor::editorValue() const
{
    return m_edit->plainText();
}

bool TextEditPropertyEditor::loadEditorValue()
{
    if (!isSaving())
        m_typingKey.clear();
    const QString before = m_edit->plainText();
    const QString text = isMixed() ? QString() : valueToLoad();
    const int caret = m_otherText ? 0 : caretPosition(before, text, m_edit->textCursor().position());
    if (text != before)
        m_edit->setText(text);
    if (text != before || m_otherText)
        placeCaret(caret);
    if (m_otherText)
        m_edit->verticalScrollBar()->setValue(0);
    m_otherText = false;
    m_edit->setMixed(isMixed());
    return true;
}

void TextEditPropertyEditor::propertyReplaced()
{
    m_otherText = true;
}

bool TextEditPropertyEditor::showsMixed() const
{
    return true;
}

void TextEditPropertyEditor::save()
{
    if (isLoading() || !property())
        return;
    // A refused text that is the stored one again is to lose its message.
    if (!isRefused() && property()->valueString() == m_edit->plainText())
        return;
    goOnTyping();
    PropertyEditor::save();
}

void TextEditPropertyEditor::saveChange()
{
    if (isLoading() || !property())
        return;
    // Texts that differ are shown as an empty field; all take what is typed there, the first one's own text included.
    const QString text = m_edit->plainText();
    if (isMixed() ? text.isEmpty() : !isRefused() && changedPropertyValue() == text)
        return;
    goOnTyping();
    setEdited({});
    PropertyEditor::saveChange();
}

void TextEditPropertyEditor::changeEvent(QEvent* event)
{
    PropertyEditor::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        setFieldSize();
}

/// Gives the field the height of some lines, beyond which it scrolls, and a width in which they can be read.
void TextEditPropertyEditor::setFieldSize()
{
    if (!m_edit)
        return;
    const QFontMetricsF metrics(m_edit->font());
    const double text = VisibleLines * metrics.lineSpacing();
    const double margins = 2 * (m_edit->document()->documentMargin() + m_edit->frameWidth());
    m_edit->setFixedHeight(static_cast<int>(std::ceil(text + margins)));
    m_edit->setMinimumWidth(static_cast<int>(std::ceil(ReadableWidth * metrics.averageCharWidth())));
}

/// The edit that follows joins the step before it if nothing but typing lies between.
void TextEditPropertyEditor::goOnTyping()
{
    const Project* project = Project::parentProject(property()->parentObject());
    const UndoStack* stack = project ? project->undoStack() : nullptr;
    const UndoCommand* last = stack && !stack->canRedo() ? stack->undoCommand() : nullptr;
    if (m_typingKey.isEmpty() || !last || last->mergeKey() != m_typingKey)
        m_typingKey = newTypingKey();
    setMergeKey(m_typingKey);
}

void TextEditPropertyEditor::placeCaret(int position)
{
    QTextCursor cursor = m_edit->textCursor();
    cursor.setPosition(position);
    m_edit->setTextCursor(cursor);
}

} // namespace Korvex::Meridane::Designer
