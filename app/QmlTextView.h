#pragma once

#include "host/core/qml/ScreenQml.h"

#include <QPlainTextEdit>

namespace Korvex::Meridane::Designer {

class QmlHighlighter;

/// Shows QML that cannot be edited, with numbered lines, some of them marked. What is seen stays where it is while lines
/// change elsewhere.
class QmlTextView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit QmlTextView(QWidget* parent = nullptr);

    void setLines(const QStringList& lines);
    void applyChange(const LineChange& change);
    /// The lines of a selection; others lose their mark.
    void setMarks(const QList<LineRange>& marks);
    [[nodiscard]] const QList<LineRange>& marks() const { return m_marks; }
    /// Scrolls as little as it takes to show the first of the \a range, and as much of the rest as there is room for.
    void reveal(const LineRange& range);
    /// Selects the next place (or the one before) that holds \a text, from the cursor on and from the other end again;
    /// capitals do not matter. False where there is none.
    bool findText(const QString& text, bool backward = false, bool fromCursor = false);

Q_SIGNALS:
    /// A line was clicked, or Return pressed on it.
    void lineChosen(int line);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class LineNumbers;

    void placeNumbers();
    void paintNumbers(QPaintEvent* event);
    [[nodiscard]] int numbersWidth() const;
    [[nodiscard]] bool isMarked(int line) const;
    void useColors();

    QWidget* m_numbers;
    QmlHighlighter* m_highlighter;
    QList<LineRange> m_marks;
};

} // namespace Korvex::Meridane::Designer
