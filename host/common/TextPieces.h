#pragma once

#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QTextOption>

#include <vector>

QT_BEGIN_NAMESPACE
class QTextLayout;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
/**
 * A part of a text whose lines do not depend on the rest: a paragraph, or of a long paragraph some whole lines.
 *
 * Every line break (\\n, \\r\\n, \\r, line and paragraph separator) ends a paragraph, and each paragraph has the direction
 * of its own first letter. Where a long paragraph is parted depends on that paragraph alone. There may be a million of
 * them.
 */
struct TextPiece
{
    int start = 0; ///< in the text
    int length = 0; ///< of what is laid out, line break excluded
    int next = 0; ///< where the following piece starts
    int lines = 0; ///< of those laid out the first ones; what follows belongs to the next piece
    float height = 0; ///< of these lines, in pixels; a whole number
    bool continues = false; ///< it starts within a paragraph
    bool continued = false; ///< it ends within a paragraph
    bool rightToLeft = false;
    bool last = false; ///< the text ends with it

    /** The piece behind which no character of the text can change it. */
    [[nodiscard]] int dependsUpTo() const { return qMax(start + length, next) + 1; }
};

/** Breaks pieces of a text into lines of one width. A line has at most 65536 characters. */
class TextBreaker
{
public:
    /** @p font as displayFont() makes it; @p alignment: the horizontal bits of Qt::Alignment; @p width in pixels, above 0. */
    TextBreaker(const QFont& font, int alignment, double width);

    /**
     * Lays out the piece of @p text that follows @p previous (null: the first one) in @p layout, its lines from 0
     * downwards. An empty text has one piece, too.
     */
    TextPiece layOut(const QString& text, const TextPiece* previous, QTextLayout* layout) const;
    /** The same for a piece that is known. */
    void layOut(const QString& text, const TextPiece& piece, QTextLayout* layout) const;

private:
    [[nodiscard]] QTextOption option(bool rightToLeft) const;

    QFont m_font;
    Qt::Alignment m_alignment;
    double m_width;
};

/** All pieces of a text that is too long to be kept laid out. A changed text is measured where it changed. */
class TextMeasure
{
public:
    /** Measures @p text; with @p reuse, which requires the same @p breaker as before, only what is new in it. */
    void measure(const QString& text, const TextBreaker& breaker, bool reuse);
    void clear();

    [[nodiscard]] const std::vector<TextPiece>& pieces() const { return m_pieces; }
    /** Of all lines together, in pixels. */
    [[nodiscard]] double height() const { return m_height; }

private:
    QString m_text;
    std::vector<TextPiece> m_pieces;
    double m_height = 0;
};
} // namespace Korvex::Meridane::Common
