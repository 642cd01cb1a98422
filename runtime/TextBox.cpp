#include "runtime/TextBox.h"

#include "host/common/EnumHelper.h"
#include "host/common/PaintHelper.h"

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtGui/QPen>

#include <cmath>

namespace Korvex::Meridane::Display {
namespace {
/** The largest font size and the largest spacing, in pixels. */
constexpr int Largest = 10000;

/** A QFont drops what a spacing has beyond whole 64ths of a pixel; exported ones are such, with four decimals. */
double spacing(double value)
{
    return std::isnan(value) ? 0 : std::round(qBound<double>(-Largest, value, Largest) * 64) / 64;
}

int alignmentFlags(int horizontal, int vertical)
{
    const int x = horizontal == 2 ? Qt::AlignRight : horizontal == 1 ? Qt::AlignHCenter : Qt::AlignLeft;
    const int y = vertical == 2 ? Qt::AlignBottom : vertical == 1 ? Qt::AlignVCenter : Qt::AlignTop;
    return x | y;
}

QString styleName(int style)
{
    switch (style) {
    case Common::EnumHelper::Outline:
        return QStringLiteral("Outline");
    case Common::EnumHelper::Raised:
        return QStringLiteral("Raised");
    case Common::EnumHelper::Sunken:
        return QStringLiteral("Sunken");
    default:
        return QStringLiteral("Normal");
    }
}
} // namespace

TextBox::TextBox(QQuickItem* parent)
    : DisplayItem(parent)
{
    // The size of a new text box.
    setImplicitSize(116, 66);
    for (const auto changed :
         {&TextBox::textChanged, &TextBox::horizontalAlignmentChanged, &TextBox::verticalAlignmentChanged,
          &TextBox::colorChanged, &TextBox::textStyleChanged, &TextBox::styleColorChanged, &TextBox::familyChanged,
          &TextBox::fontSizeChanged, &TextBox::boldChanged, &TextBox::italicChanged, &TextBox::underlineChanged,
          &TextBox::overlineChanged, &TextBox::strikeoutChanged, &TextBox::letterSpacingChanged,
          &TextBox::wordSpacingChanged}) {
        connect(this, changed, this, &TextBox::contentChanged);
    }
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, &TextBox::contentChanged);
}

QRectF TextBox::outerRect() const
{
    const bool isBox = width() > 0 && height() > 0 && std::isfinite(width()) && std::isfinite(height());
    if (!isBox || m_text.isEmpty()) {
        return QRectF();
    }
    // Nothing is drawn outside of the box. But glyphs that begin left of or above the painter's pixels, as those of an
    // outline do, would be placed by other rounding than elsewhere.
    return QRectF(QPointF(0, 0), size()).adjusted(-2, -2, 2, 2);
}

void TextBox::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintTextBox(size(), font(), QPen(m_color), m_text,
                                      alignmentFlags(m_horizontalAlignment, m_verticalAlignment),
                                      styleName(m_textStyle), QPen(m_styleColor), painter, &m_layout);
}

QFont TextBox::font() const
{
    // Nothing of it comes from the application's own font, and a comma in the family separates no families.
    QFont font(m_family, 1, QFont::Normal);
    font.setFamilies({m_family});
    font.setPixelSize(qBound(1, m_fontSize, Largest));
    font.setBold(m_bold);
    font.setItalic(m_italic);
    font.setUnderline(m_underline);
    font.setOverline(m_overline);
    font.setStrikeOut(m_strikeout);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing(m_letterSpacing));
    font.setWordSpacing(spacing(m_wordSpacing));
    return font;
}
} // namespace Korvex::Meridane::Display
