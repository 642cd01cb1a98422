#include "host/core/values/ValueConversion.h"

#include "host/core/values/FontSpacing.h"
#include "host/core/values/GroupText.h"
#include "host/core/values/NumberText.h"

#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
/** Collects the pairs of a font group; each may come once and in any order. */
class FontReader
{
public:
    [[nodiscard]] bool take(QStringView key, QStringView value)
    {
        if (key == QLatin1String("family")) {
            return store(m_family, std::optional(value.toString()));
        }
        if (key == QLatin1String("pointSize")) {
            return store(m_pointSize, readSize(readReal(value)));
        }
        if (key == QLatin1String("pixelSize")) {
            return store(m_pixelSize, readSize(readInteger(value)));
        }
        if (key == QLatin1String("bold")) {
            return store(m_bold, readBool(value));
        }
        if (key == QLatin1String("italic")) {
            return store(m_italic, readBool(value));
        }
        if (key == QLatin1String("underline")) {
            return store(m_underline, readBool(value));
        }
        if (key == QLatin1String("overline")) {
            return store(m_overline, readBool(value));
        }
        if (key == QLatin1String("strikeOut")) {
            return store(m_strikeOut, readBool(value));
        }
        if (key == QLatin1String("letterSpacing")) {
            return store(m_letterSpacing, readSpacing(value));
        }
        if (key == QLatin1String("wordSpacing")) {
            return store(m_wordSpacing, readSpacing(value));
        }
        if (key == QLatin1String("weight")) {
            const std::optional<int> weight = readInteger(value);
            return store(m_weight, weight && *weight >= 1 && *weight <= 1000 ? weight : std::nullopt);
        }
        return false;
    }

    [[nodiscard]] std::optional<QFont> font() const
    {
        if (!m_family || m_pointSize.has_value() == m_pixelSize.has_value()) {
            return std::nullopt;
        }
        // Unlike QFont(), this does not start from the application's font.
        QFont font(*m_family, 1, QFont::Normal);
        font.setFamilies({*m_family}); // the constructor takes a comma as a separator of families
        if (m_pointSize) {
            font.setPointSizeF(*m_pointSize);
        } else {
            font.setPixelSize(*m_pixelSize);
        }
        if (m_bold.value_or(false)) {
            font.setWeight(QFont::Bold);
        }
        if (m_weight) {
            font.setWeight(static_cast<QFont::Weight>(*m_weight));
        }
        font.setItalic(m_italic.value_or(false));
        font.setUnderline(m_underline.value_or(false));
        font.setOverline(m_overline.value_or(false));
        font.setStrikeOut(m_strikeOut.value_or(false));
        if (keptSpacing(m_letterSpacing.value_or(0)) != 0) {
            font.setLetterSpacing(QFont::AbsoluteSpacing, *m_letterSpacing);
        }
        if (keptSpacing(m_wordSpacing.value_or(0)) != 0) {
            font.setWordSpacing(*m_wordSpacing);
        }
        return font;
    }

private:
    template <typename T>
    [[nodiscard]] static bool store(std::optional<T>& field, const std::optional<T>& value)
    {
        if (field || !value) {
            return false;
        }
        field = value;
        return true;
    }

    template <typename T>
    [[nodiscard]] static std::optional<T> readSize(const std::optional<T>& size)
    {
        return size && *size > 0 && *size <= ValueConversion::maximumFontSize() ? size : std::nullopt;
    }

    [[nodiscard]] static std::optional<double> readSpacing(QStringView text)
    {
        const std::optional<double> spacing = readReal(text);
        return spacing && std::abs(*spacing) <= ValueConversion::maximumFontSize() ? spacing : std::nullopt;
    }

    [[nodiscard]] static std::optional<bool> readBool(QStringView text)
    {
        bool ok = false;
        const bool value = ValueConversion::toBool(text.toString(), &ok);
        return ok ? std::optional(value) : std::nullopt;
    }

    std::optional<QString> m_family;
    std::optional<double> m_pointSize;
    std::optional<int> m_pixelSize;
    std::optional<bool> m_bold;
    std::optional<bool> m_italic;
    std::optional<bool> m_underline;
    std::optional<bool> m_overline;
    std::optional<bool> m_strikeOut;
    std::optional<double> m_letterSpacing;
    std::optional<double> m_wordSpacing;
    std::optional<int> m_weight;
};
} // namespace

QFont ValueConversion::toFont(const QString& text, bool* ok)
{
    FontReader font;
    GroupReader reader(text);
    bool taken = true;
    while (taken && reader.next()) {
        taken = font.take(reader.key(), reader.value());
    }
    const std::optional<QFont> result = taken && reader.atEnd() ? font.font() : std::nullopt;
    if (ok) {
        *ok = result.has_value();
    }
    return result ? *result : QFont();
}

QString ValueConversion::toString(const QFont& font)
{
    QString text;
    const auto appendFlag = [&text](QStringView key, bool set) {
        if (set) {
            appendPair(text, key, u"true");
        }
    };
    appendPair(text, u"family", font.family());
    if (font.pixelSize() > 0) {
        appendPair(text, u"pixelSize", toString(font.pixelSize()));
    } else {
        appendPair(text, u"pointSize", toString(font.pointSizeF()));
    }
    appendFlag(u"bold", font.weight() == QFont::Bold);
    appendFlag(u"italic", font.italic());
    appendFlag(u"underline", font.underline());
    appendFlag(u"overline", font.overline());
    appendFlag(u"strikeOut", font.strikeOut());
    if (font.letterSpacingType() == QFont::AbsoluteSpacing && keptSpacing(font.letterSpacing()) != 0) {
        appendPair(text, u"letterSpacing", toString(shortestSpacing(font.letterSpacing())));
    }
    if (keptSpacing(font.wordSpacing()) != 0) {
        appendPair(text, u"wordSpacing", toString(shortestSpacing(font.wordSpacing())));
    }
    if (font.weight() != QFont::Bold && font.weight() != QFont::Normal) {
        appendPair(text, u"weight", toString(static_cast<int>(font.weight())));
    }
    return text;
}
} // namespace Korvex::Meridane::Designer
