#include "app/QmlTextView.h"

#include "app/CoreText.h"
#include "app/QmlHighlighter.h"

#include "host/core/sheet/SheetColors.h"

#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int NumbersMargin = 6; // pixels beside the numbers
constexpr int TabLength = 4; // characters

} // namespace

/// The column of numbers beside the lines.
class QmlTextView::LineNumbers : public QWidget
{
public:
    explicit LineNumbers(QmlTextView* view)
        : QWidget(view)
        , m_view(view)
    {}

protected:
    void paintEvent(QPaintEvent* event) override { m_view->paintNumbers(event); }

private:
    QmlTextView* m_view;
};

QmlTextView::QmlTextView(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_numbers(new LineNumbers(this))
    , m_highlighter(new QmlHighlighter(document()))
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setFrameShape(NoFrame);
    setTabChangesFocus(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabStopDistance(TabLength * fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    setAccessibleName(coreText("QML"));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &QmlTextView::placeNumbers);
    connect(this, &QPlainTextEdit::updateRequest, m_numbers, qOverload<>(&QWidget::update));
    useColors();
    placeNumbers();
}

void QmlTextView::setLines(const QStringList& lines)
{
    m_marks.clear();
    setPlainText(lines.join(QLatin1Char('\n')));
}

void QmlTextView::applyChange(const LineChange& change)
{
    if (change.old.count == 0 && change.lines.isEmpty())
        return;
    QScrollBar* scroll = verticalScrollBar(); // its value is the first line that is seen
    const int firstSeen = scroll->value();
    const int sideways = horizontalScrollBar()->value();
    const int end = change.old.first + change.old.count;
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    const QTextBlock first = document()->findBlockByNumber(change.old.first);
    if (change.old.count > 0 && !change.lines.isEmpty()) {
        const QTextBlock last = document()->findBlockByNumber(end - 1);
        cursor.setPosition(first.position());
        cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
        cursor.insertText(change.lines.join(QLatin1Char('\n')));
    } else if (!change.lines.isEmpty()) {
        if (first.isValid()) {
            cursor.setPosition(first.position());
            cursor.insertText(change.lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
        } else {
            cursor.movePosition(QTextCursor::End);
            cursor.insertText(QLatin1Char('\n') + change.lines.join(QLatin1Char('\n')));
        }
    } else {
        const QTextBlock after = document()->findBlockByNumber(end);
        cursor.setPosition(first.position());
        if (after.isValid()) {
            cursor.setPosition(after.position(), QTextCursor::KeepAnchor);
        } else {
            // With the line break before it; the first line has none.
            cursor.setPosition(std::max(first.position() - 1, 0));
            cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        }
        cursor.removeSelectedText();
    }
    cursor.endEditBlock();
    const int added = int(change.lines.size()) - change.old.count;
    scroll->setValue(end <= firstSeen ? firstSeen + added : firstSeen);
    horizontalScrollBar()->setValue(sideways);
}

void QmlTextView::setMarks(const QList<LineRange>& marks)
{
    m_marks = marks;
    std::sort(m_marks.begin(), m_marks.end(), [](const LineRange& a, const LineRange& b) { return a.first < b.first; });
    viewport()->update();
    m_numbers->update();
}

bool QmlTextView::isMarked(int line) const
{
    auto after = std::upper_bound(m_marks.cbegin(), m_marks.cend(), line,
                                  [](int wanted, const LineRange& mark) { return wanted < mark.first; });
    // Marks of elements in a marked group lie within its.
    while (after != m_marks.cbegin()) {
        --after;
        if (line < after->first + after->count)
            return true;
    }
    return false;
}

void QmlTextView::reveal(const LineRange& range)
{
    if (range.count == 0)
        return;
    QScrollBar* scroll = verticalScrollBar();
    const int seen = std::max(viewport()->height() / std::max(fontMetrics().lineSpacing(), 1) - 1, 1);
    const int first = scroll->value();
    if (range.first < first || range.first >= first + seen)
        scroll->setValue(range.first - std::max((seen - range.count) / 2, 0));
    else if (range.first + range.count > first + seen)
        scroll->setValue(std::min(range.first, range.first + range.count - seen));
}

bool QmlTextView::findText(const QString& text, bool backward, bool fromCursor)
{
    if (text.isEmpty())
        return false;
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    QTextCursor start = textCursor();
    if (fromCursor)
        start.setPosition(start.selectionStart());
    QTextCursor found = document()->find(text, start, flags);
    if (found.isNull()) {
        start.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
        found = document()->find(text, start, flags);
    }
    if (found.isNull())
        return false;
    setTextCursor(found);
    ensureCursorVisible();
    return true;
}

void QmlTextView::paintEvent(QPaintEvent* event)
{
    if (!m_marks.isEmpty()) {
        QPainter painter(viewport());
        QColor ground = palette().color(QPalette::Highlight);
        ground.setAlpha(44);
        for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
            const QRectF line = blockBoundingGeometry(block).translated(contentOffset());
            if (line.top() > viewport()->height())
                break;
            if (isMarked(block.blockNumber()))
                painter.fillRect(QRectF(0, line.top(), viewport()->width(), line.height()), ground);
        }
    }
    QPlainTextEdit::paintEvent(event);
}

void QmlTextView::paintNumbers(QPaintEvent* event)
{
    QPainter painter(m_numbers);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    painter.setFont(font());
    const QColor quiet = quietColor(palette());
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF line = blockBoundingGeometry(block).translated(contentOffset());
        if (line.top() > event->rect().bottom())
            break;
        painter.setPen(isMarked(block.blockNumber()) ? palette().color(QPalette::WindowText) : quiet);
        painter.drawText(QRectF(0, line.top(), m_numbers->width() - NumbersMargin, line.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(block.blockNumber() + 1));
    }
}

int QmlTextView::numbersWidth() const
{
    const auto digits = std::max<qsizetype>(QString::number(blockCount()).size(), 3);
    return int(digits) * fontMetrics().horizontalAdvance(QLatin1Char('9')) + 2 * NumbersMargin;
}

void QmlTextView::placeNumbers()
{
    const int width = numbersWidth();
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    setViewportMargins(mirrored ? 0 : width, 0, mirrored ? width : 0, 0);
    const QRect area = contentsRect();
    m_numbers->setGeometry(mirrored ? area.right() - width + 1 : area.left(), area.top(), width, viewport()->height());
}

void QmlTextView::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    placeNumbers();
}

void QmlTextView::mouseReleaseEvent(QMouseEvent* event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    // Who has selected text wants that text.
    if (event->button() == Qt::LeftButton && !textCursor().hasSelection())
        Q_EMIT lineChosen(cursorForPosition(event->pos()).blockNumber());
}

void QmlTextView::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && event->modifiers() == Qt::NoModifier) {
        Q_EMIT lineChosen(textCursor().blockNumber());
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void QmlTextView::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        useColors();
}

void QmlTextView::useColors()
{
    m_highlighter->setPalette(palette());
}

} // namespace Korvex::Meridane::Designer
