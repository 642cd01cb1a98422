#include "host/common/TextPieces.h"

#include <QtGui/QTextLayout>

#include <algorithm>

namespace Korvex::Meridane::Common {
namespace {
/** So many characters of a long paragraph are laid out at a time, and more only where they fill no two lines. */
constexpr int PieceLength = 2048;

/** A line that goes on behind so many characters is broken: shaping a cluster without end takes the square of its length. */
constexpr int LongestLine = 65536;

/** No line is wider: fixed point numbers count the pixels. */
constexpr double WidestLine = 1e6;

bool isLineBreak(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar::LineSeparator
           || c == QChar::ParagraphSeparator;
}

/** The first line break in @p text at or behind @p start, or the first position of @p end and the end of the text. */
int findLineBreak(const QString& text, int start, int end)
{
    const auto last = text.cbegin() + qMin<qsizetype>(end, text.size());
    return static_cast<int>(std::find_if(text.cbegin() + start, last, isLineBreak) - text.cbegin());
}

int behindLineBreak(const QString& text, int position)
{
    const bool isPair = text.at(position) == QLatin1Char('\r') && position + 1 < text.size()
                        && text.at(position + 1) == QLatin1Char('\n');
    return position + (isPair ? 2 : 1);
}

void breakLines(QTextLayout* layout, double width)
{
    double height = 0;
    layout->beginLayout();
    for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout->endLayout();
}

qsizetype commonPrefix(const QString& a, const QString& b)
{
    return std::mismatch(a.cbegin(), a.cend(), b.cbegin(), b.cend()).first - a.cbegin();
}

qsizetype commonSuffix(const QString& a, const QString& b)
{
    return std::mismatch(a.crbegin(), a.crend(), b.crbegin(), b.crend()).first - a.crbegin();
}
} // namespace

TextBreaker::TextBreaker(const QFont& font, int alignment, double width)
    : m_font(font)
    , m_alignment(Qt::AlignLeft | Qt::AlignAbsolute)
    , m_width(qMin(width, WidestLine))
{
    if (alignment & Qt::AlignRight) {
        m_alignment = Qt::AlignRight | Qt::AlignAbsolute;
    } else if (alignment & Qt::AlignHCenter) {
        m_alignment = Qt::AlignHCenter;
    }
}

TextPiece TextBreaker::layOut(const QString& text, const TextPiece* previous, QTextLayout* layout) const
{
    TextPiece piece;
    piece.start = previous ? previous->next : 0;
    piece.continues = previous && previous->continued;
    for (int room = PieceLength; room <= LongestLine; room *= 2) {
        const int end = findLineBreak(text, piece.start, piece.start + room);
        piece.length = end - piece.start;
        piece.continued = end < text.size() && !isLineBreak(text.at(end));
        const QStringView content = QStringView(text).mid(piece.start, piece.length);
        piece.rightToLeft = piece.continues ? previous->rightToLeft : content.isRightToLeft();
        layOut(text, piece, layout);
        if (!piece.continued || layout->lineCount() > 1) {
            break;
        }
    }
    // The line at a cut may go on behind it.
    const bool dropsLine = piece.continued && layout->lineCount() > 1;
    piece.lines = layout->lineCount() - (dropsLine ? 1 : 0);
    const QTextLine lastLine = layout->lineAt(piece.lines - 1);
    piece.height = static_cast<float>(lastLine.y() + lastLine.height());
    const int end = piece.start + piece.length;
    piece.last = end == text.size();
    if (dropsLine) {
        piece.next = piece.start + layout->lineAt(piece.lines).textStart();
    } else {
        piece.next = piece.last || piece.continued ? end : behindLineBreak(text, end);
    }
    return piece;
}

void TextBreaker::layOut(const QString& text, const TextPiece& piece, QTextLayout* layout) const
{
    layout->setFont(m_font);
    layout->setText(text.mid(piece.start, piece.length));
    layout->setTextOption(option(piece.rightToLeft));
    breakLines(layout, m_width);
}

QTextOption TextBreaker::option(bool rightToLeft) const
{
    QTextOption option(m_alignment);
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    // Metrics that do not depend on the zoom keep the line breaks where they are.
    option.setUseDesignMetrics(true);
    return option;
}

void TextMeasure::measure(const QString& text, const TextBreaker& breaker, bool reuse)
{
    const std::vector<TextPiece> known = reuse ? std::move(m_pieces) : std::vector<TextPiece>();
    m_pieces.clear();
    const qsizetype same = known.empty() ? 0 : commonPrefix(m_text, text);
    for (auto piece = known.begin(); piece != known.end() && piece->dependsUpTo() <= same; ++piece) {
        m_pieces.push_back(*piece);
    }

    const qsizetype longer = text.size() - m_text.size();
    const qsizetype sameAgain = text.size() - (known.empty() ? 0 : commonSuffix(m_text, text));
    auto rest = known.end();
    QTextLayout layout;
    while (m_pieces.empty() || !m_pieces.back().last) {
        const TextPiece* previous = m_pieces.empty() ? nullptr : &m_pieces.back();
        const qsizetype start = previous ? previous->next : 0;
        if (start >= sameAgain && !(previous && previous->continued)) {
            rest = std::lower_bound(known.begin(), known.end(), start - longer,
                                    [](const TextPiece& piece, qsizetype at) { return piece.start < at; });
            if (rest != known.end() && rest->start == start - longer && !rest->continues) {
                break;
            }
            rest = known.end();
        }
        m_pieces.push_back(breaker.layOut(text, previous, &layout));
    }
    for (; rest != known.end(); ++rest) {
        m_pieces.push_back(*rest);
        m_pieces.back().start += longer;
        m_pieces.back().next += longer;
    }

    m_text = text;
    m_height = 0;
    for (const TextPiece& piece : m_pieces) {
        m_height += piece.height;
    }
}

void TextMeasure::clear()
{
    m_text.clear();
    m_pieces = {};
    m_height = 0;
}
} // namespace Korvex::Meridane::Common
