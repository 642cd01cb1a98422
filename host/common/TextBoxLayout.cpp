#include "host/common/TextBoxLayout.h"

#include "host/common/DisplayFont.h"

#include <QtCore/QThread>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

namespace Korvex::Meridane::Common {
/** A piece of the text that shows. */
struct TextBoxLayout::Block
{
    QTextLayout layout;
    TextPiece piece;
    double y = 0; ///< from the top of the text
};

namespace {
/** The distance from the upper edge of the box to the top of the text. */
double textTop(int alignment, double boxHeight, double textHeight)
{
    if (alignment & Qt::AlignBottom) {
        return boxHeight - textHeight;
    }
    if (alignment & Qt::AlignVCenter) {
        return 0.5 * (boxHeight - textHeight);
    }
    return 0;
}

/**
 * Fonts with PostScript outlines come darkened, and are blended with what lies below them in a way that makes up for it.
 * They are those whose "maxp" table has version 0.5.
 */
bool isBlendedByGround(const QFont& font)
{
    return QRawFont::fromFont(font).fontTable("maxp").startsWith(QByteArrayView("\0\0\x50\0", 4));
}

bool isTopAligned(int alignment)
{
    return !(alignment & (Qt::AlignBottom | Qt::AlignVCenter));
}
} // namespace

bool TextBoxLayout::Input::sameLines(const Input& other) const
{
    return size.width() == other.size.width() && alignment == other.alignment && fonts == other.fonts
           && thread == other.thread && font == other.font;
}

bool TextBoxLayout::Input::operator==(const Input& other) const
{
    const bool sameText = text.constData() == other.text.constData() && text.size() == other.text.size();
    return sameLines(other) && size.height() == other.size.height() && (sameText || text == other.text);
}

TextBoxLayout::TextBoxLayout() = default;

TextBoxLayout::~TextBoxLayout() = default;

void TextBoxLayout::prepare(const QString& text, const QFont& font, const QSizeF& size, int alignment)
{
    Input input{text, font, size, alignment, fontGeneration(), QThread::currentThreadId()};
    if (input == m_input) {
        return;
    }
    const bool sameLines = input.sameLines(m_input);
    if (!sameLines) {
        m_needsLayer = isBlendedByGround(font);
    }
    m_input = std::move(input);
    m_blocks.clear();
    m_top = 0;

    const TextBreaker breaker(font, alignment, size.width());
    // Accents and swashes reach into the lines beside their own.
    const double overlap = font.pixelSize();
    const bool whole = keepFromTop(breaker, size.height() + overlap);
    if (isTopAligned(alignment)) {
        m_measure.clear();
        return;
    }
    if (whole) {
        m_measure.clear();
        const Block& last = *m_blocks.back();
        m_top = textTop(alignment, size.height(), last.y + last.piece.height);
        return;
    }
    m_measure.measure(text, breaker, sameLines);
    m_top = textTop(alignment, size.height(), m_measure.height());
    keepMeasured(breaker, -m_top - overlap, -m_top + size.height() + overlap);
}

bool TextBoxLayout::keepFromTop(const TextBreaker& breaker, double bottom)
{
    for (double y = 0; y <= bottom;) {
        auto block = std::make_unique<Block>();
        block->layout.setCacheEnabled(true);
        block->piece =
            breaker.layOut(m_input.text, m_blocks.empty() ? nullptr : &m_blocks.back()->piece, &block->layout);
        block->y = y;
        y += block->piece.height;
        m_blocks.push_back(std::move(block));
        if (m_blocks.back()->piece.last) {
            return true;
        }
    }
    return false;
}

void TextBoxLayout::keepMeasured(const TextBreaker& breaker, double top, double bottom)
{
    m_blocks.clear();
    double y = 0;
    for (const TextPiece& piece : m_measure.pieces()) {
        if (y + piece.height >= top && y <= bottom) {
            auto block = std::make_unique<Block>();
            block->layout.setCacheEnabled(true);
            block->piece = piece;
            block->y = y;
            breaker.layOut(m_input.text, piece, &block->layout);
            m_blocks.push_back(std::move(block));
        }
        y += piece.height;
    }
}

void TextBoxLayout::draw(QPainter* painter, const QPointF& offset) const
{
    const double overlap = m_input.font.pixelSize();
    for (const auto& block : m_blocks) {
        const QPointF origin = offset + QPointF(0, m_top + block->y);
        for (int i = 0; i < block->piece.lines; ++i) {
            const QTextLine line = block->layout.lineAt(i);
            const double y = m_top + block->y + line.y();
            if (y <= m_input.size.height() + overlap && y + line.height() >= -overlap) {
                line.draw(painter, origin);
            }
        }
    }
}

qsizetype TextBoxLayout::keptCharacters() const
{
    qsizetype count = 0;
    for (const auto& block : m_blocks) {
        count += block->piece.length;
    }
    return count;
}
} // namespace Korvex::Meridane::Common
