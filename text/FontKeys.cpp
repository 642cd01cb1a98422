#include "text/FontKeys.h"

#include "host/common/DisplayFont.h"

namespace Korvex::Meridane::Designer {

namespace {

constexpr int SmallestSize = 6;
constexpr int LargestSize = 999;

std::optional<QFont> resized(QFont font, int step)
{
    const int size = Common::fontPixelSize(font);
    if (step < 0 ? size <= SmallestSize : size >= LargestSize)
        return std::nullopt;
    font.setPixelSize(size + step);
    return font;
}

} // namespace

std::optional<QFont> fontAfterKey(const QFont& font, int key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers == (Qt::AltModifier | Qt::KeypadModifier)) {
        if (key == Qt::Key_Plus)
            return resized(font, 1);
        return key == Qt::Key_Minus ? resized(font, -1) : std::nullopt;
    }
    if (modifiers != Qt::AltModifier)
        return std::nullopt;
    QFont changed(font);
    switch (key) {
    case Qt::Key_B:
        changed.setWeight(font.weight() <= QFont::Normal ? QFont::Bold : QFont::Normal);
        return changed;
    case Qt::Key_I:
        changed.setStyle(font.style() == QFont::StyleNormal ? QFont::StyleItalic : QFont::StyleNormal);
        return changed;
    case Qt::Key_S:
        changed.setStrikeOut(!font.strikeOut());
        return changed;
    case Qt::Key_U:
        changed.setUnderline(!font.underline());
        return changed;
    case Qt::Key_O:
        changed.setOverline(!font.overline());
        return changed;
    case Qt::Key_Minus:
        return resized(font, -1);
    case Qt::Key_Equal:
        return resized(font, 1);
    default:
        return std::nullopt;
    }
}

} // namespace Korvex::Meridane::Designer
