#include "host/core/widgets/FontStyleButton.h"

#include "host/common/LocalizationHelper.h"

#include <QtGui/QPainter>

namespace Korvex::Meridane::Designer {
namespace {
bool hasStyle(const QFont& font, FontStyleButton::Style style)
{
    switch (style) {
    case FontStyleButton::Style::Bold:
        return font.bold();
    case FontStyleButton::Style::Italic:
        return font.italic();
    case FontStyleButton::Style::Underline:
        return font.underline();
    case FontStyleButton::Style::Overline:
        return font.overline();
    case FontStyleButton::Style::StrikeOut:
        return font.strikeOut();
    }
    return false;
}

QFont withStyle(QFont font, FontStyleButton::Style style, bool set)
{
    switch (style) {
    case FontStyleButton::Style::Bold:
        font.setBold(set);
        break;
    case FontStyleButton::Style::Italic:
        font.setItalic(set);
        break;
    case FontStyleButton::Style::Underline:
        font.setUnderline(set);
        break;
    case FontStyleButton::Style::Overline:
        font.setOverline(set);
        break;
    case FontStyleButton::Style::StrikeOut:
        font.setStrikeOut(set);
        break;
    }
    return font;
}

QString styleName(FontStyleButton::Style style)
{
    switch (style) {
    case FontStyleButton::Style::Bold:
        return QStringLiteral(QT_TRANSLATE_NOOP("Core", "Bold"));
    case FontStyleButton::Style::Italic:
        return QStringLiteral(QT_TRANSLATE_NOOP("Core", "Italic"));
    case FontStyleButton::Style::Underline:
        return QStringLiteral(QT_TRANSLATE_NOOP("Core", "Underline"));
    case FontStyleButton::Style::Overline:
        return QStringLiteral(QT_TRANSLATE_NOOP("Core", "Overline"));
    case FontStyleButton::Style::StrikeOut:
        return QStringLiteral(QT_TRANSLATE_NOOP("Core", "Strikeout"));
    }
    return QString();
}
} // namespace

FontStyleButton::FontStyleButton(Style style, QWidget* parent)
    : QToolButton(parent)
    , m_style(style)
{
    const QString name = Common::LocalizationHelper::coreString(styleName(style));
    setText(name.left(1));
    setToolTip(name);
    setAccessibleName(name);
    setFont(withStyle(font(), style, true));
    setCheckable(true);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::clicked, this, &FontStyleButton::userModified);
}

void FontStyleButton::showFont(const QFont& font)
{
    setMixed(false);
    setChecked(hasStyle(font, m_style));
}

void FontStyleButton::setMixed(bool mixed)
{
    m_mixed = mixed;
    if (mixed) {
        setChecked(false);
    }
    setAccessibleDescription(mixed ? Common::LocalizationHelper::coreString(QStringLiteral("different values"))
                                   : QString());
    update();
}

void FontStyleButton::nextCheckState()
{
    const bool wasMixed = m_mixed;
    setMixed(false);
    setChecked(wasMixed || !isChecked());
}

void FontStyleButton::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (!m_mixed) {
        return;
    }
    constexpr double dashLength = 8;
    constexpr double dashWidth = 2;
    QPainter painter(this);
    const QRectF dash(rect().center().x() - dashLength / 2, height() - dashWidth - 1, dashLength, dashWidth);
    painter.fillRect(dash, palette().color(QPalette::PlaceholderText));
}

QFont FontStyleButton::appliedTo(const QFont& font) const
{
    return withStyle(font, m_style, isChecked());
}
} // namespace Korvex::Meridane::Designer
