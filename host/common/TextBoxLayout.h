#pragma once

#include "host/common/CommonExport.h"
#include "host/common/TextPieces.h"

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtGui/QFont>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
/**
 * The text of one box, broken into lines and kept for the next time it is drawn.
 *
 * Whoever draws a box again and again owns one and hands it to PaintHelper::paintTextBox(). Only the lines that show are
 * laid out and kept; where the alignment depends on the height of the whole text, the rest is measured, after a change
 * only the changed paragraphs. What it draws never depends on what it was prepared for before. Used by one thread at a
 * time, not always the same one.
 */
class MERIDANE_COMMON_EXPORT TextBoxLayout
{
public:
    TextBoxLayout();
    ~TextBoxLayout();
    Q_DISABLE_COPY_MOVE(TextBoxLayout)

    /**
     * Lays out @p text for a box of @p size pixels, not empty; cheap when nothing has changed.
     * @p font as displayFont() makes it; @p alignment: bits of Qt::Alignment, what is missing is left and top.
     */
    void prepare(const QString& text, const QFont& font, const QSizeF& size, int alignment);

    /** Draws the lines in the painter's pen; the box is at (0, 0), the text moved by @p offset. */
    void draw(QPainter* painter, const QPointF& offset) const;

    /** True when the letters look different on another ground unless they are drawn on a layer of their own. */
    [[nodiscard]] bool needsLayer() const { return m_needsLayer; }

    /** How many characters of the text are kept laid out. */
    [[nodiscard]] qsizetype keptCharacters() const;

private:
    struct Block;

    /** What the lines depend on; each compared with what was prepared before. */
    struct Input
    {
        QString text;
        QFont font;
        QSizeF size;
        int alignment = 0;
        int fonts = -1; ///< fontGeneration()
        Qt::HANDLE thread = nullptr; ///< fonts are opened by each thread for itself

        [[nodiscard]] bool sameLines(const Input& other) const;
        [[nodiscard]] bool operator==(const Input& other) const;
    };

    /** Keeps the lines from the top down to @p bottom. @return whether that is the whole text */
    bool keepFromTop(const TextBreaker& breaker, double bottom);
    void keepMeasured(const TextBreaker& breaker, double top, double bottom);

    Input m_input;
    std::vector<std::unique_ptr<Block>> m_blocks;
    TextMeasure m_measure;
    double m_top = 0;
    bool m_needsLayer = false;
};
} // namespace Korvex::Meridane::Common
