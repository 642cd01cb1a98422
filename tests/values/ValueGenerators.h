#pragma once

#include <rapidcheck.h>

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>

#include <bit>
#include <cmath>
#include <limits>

/** Generators of values over their whole range, with the corners of that range favoured. */
namespace Generators {
/** Every bit pattern of the width of T, whatever the size of the test case. */
template <typename T>
rc::Gen<T> bits()
{
    return rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<T>());
}

/** Any finite double: random bits, denormals, extremes, both zeros, and the decimal fractions that users type. */
inline rc::Gen<double> finiteReal()
{
    using Limits = std::numeric_limits<double>;
    const auto fromBits =
        rc::gen::suchThat(rc::gen::map(bits<std::uint64_t>(), [](std::uint64_t b) { return std::bit_cast<double>(b); }),
                          [](double d) { return std::isfinite(d); });
    const auto denormal = rc::gen::map(
        bits<std::uint64_t>(), [](std::uint64_t b) { return std::bit_cast<double>(b & 0x800fffffffffffffULL); });
    const auto typed = rc::gen::map(rc::gen::pair(rc::gen::inRange(-10000000, 10000000), rc::gen::inRange(0, 5)),
                                    [](const std::pair<int, int>& p) { return p.first / std::pow(10, p.second); });
    const auto corner =
        rc::gen::element(0.0, -0.0, 0.1, 1.0 / 3, 5e-324, -5e-324, 1e15, 999999999999999.9, 1e-5, 9.9999999999999991e-6,
                         1e300, Limits::max(), Limits::lowest(), Limits::min(), 9007199254740993.0);
    return rc::gen::oneOf(fromBits, denormal, typed, corner);
}

inline rc::Gen<QColor> color()
{
    return rc::gen::map(rc::gen::pair(bits<std::uint32_t>(), rc::gen::element(true, false)),
                        [](const std::pair<std::uint32_t, bool>& p) {
                            return QColor::fromRgba(p.second ? p.first | 0xff000000U : p.first);
                        });
}

inline rc::Gen<QPointF> point()
{
    return rc::gen::map(rc::gen::pair(finiteReal(), finiteReal()),
                        [](const std::pair<double, double>& p) { return QPointF(p.first, p.second); });
}

/** Any UTF-16 code units: lone surrogates, NUL and the signs of the text forms among them. */
inline rc::Gen<QString> text()
{
    const auto sign = rc::gen::element<char16_t>(u';', u':', u'\\', u' ', u',', u'"', u'\n', u'\r', u'\t', u'\0',
                                                 u'\u00a0', u'\u2028', u'\u2029', u'\ufdd0', u'\ufffc', u'<', u'&');
    const auto unit = rc::gen::oneOf(sign, bits<char16_t>(), rc::gen::inRange<char16_t>(u'a', u'z'));
    return rc::gen::map(rc::gen::container<std::u16string>(unit),
                        [](const std::u16string& s) { return QString::fromStdU16String(s); });
}

/** A font that has only what its value string can hold. */
inline rc::Gen<QFont> font()
{
    return rc::gen::exec([] {
        QFont font(QStringLiteral("x"), 10, QFont::Normal);
        font.setFamilies({*text()});
        if (*rc::gen::arbitrary<bool>()) {
            font.setPixelSize(*rc::gen::inRange(1, 10001));
        } else {
            font.setPointSizeF(*rc::gen::suchThat(
                rc::gen::oneOf(rc::gen::map(finiteReal(), [](double d) { return std::abs(d); }),
                               rc::gen::map(rc::gen::inRange(1, 1000000), [](int i) { return i / 100.0; })),
                [](double d) { return d > 0 && d <= 10000; }));
        }
        font.setWeight(static_cast<QFont::Weight>(
            *rc::gen::oneOf(rc::gen::inRange(1, 1001), rc::gen::element(400, 500, 600, 700))));
        font.setItalic(*rc::gen::arbitrary<bool>());
        font.setUnderline(*rc::gen::arbitrary<bool>());
        font.setOverline(*rc::gen::arbitrary<bool>());
        font.setStrikeOut(*rc::gen::arbitrary<bool>());
        if (const int spacing = *rc::gen::inRange(-640000, 640001); spacing != 0 && *rc::gen::arbitrary<bool>()) {
            font.setLetterSpacing(QFont::AbsoluteSpacing, spacing / 64.0);
        }
        if (*rc::gen::arbitrary<bool>()) {
            font.setWordSpacing(*rc::gen::inRange(-640000, 640001) / 64.0);
        }
        return font;
    });
}
} // namespace Generators

/** Lets a failing property show its text. */
inline void showValue(const QString& text, std::ostream& os)
{
    os << '"' << text.toUtf8().toPercentEncoding().constData() << '"';
}
