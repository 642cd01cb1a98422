#include "tests/display/sheets/Sheets.h"

#include <array>

namespace {

/// One of \a choices after the other.
template <std::size_t Count>
QString choice(const std::array<const char*, Count>& choices, int i)
{
    return QString::fromUtf8(choices[std::size_t(i) % Count]);
}

constexpr std::array Texts{"21.5 °C",
                           "The quick brown fox jumps over the lazy dog",
                           "שלום, עולם! (3)",
                           "مرحبا 42",
                           "Cafe\u0301 na\u00efve",
                           "☀ ✓ 😀",
                           "<b>bold</b> &amp; %1",
                           "one\ntwo\r\nthree"};
constexpr std::array Families{"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono", "No Such Family", "Droid Sans"};
constexpr std::array Marks{"",
                           " bold: true;",
                           " italic: true;",
                           " underline: true; strikeOut: true;",
                           " overline: true; letterSpacing: 2.5;",
                           " bold: true; wordSpacing: 7; letterSpacing: -0.3;"};
constexpr std::array Alignments{"33", "34", "36", "65", "66", "68", "129", "130", "132", "40"};
constexpr std::array Styles{"Normal", "Outline", "Raised", "Sunken"};

/// Every alignment with every style, families, sizes, marks and scripts in turn; also parts outside of the screen.
QJsonArray boxes()
{
    SheetValues values(51);
    return addElements("TextBox", 70, [&values](int i) {
        const QString font = QStringLiteral("family: %1; pixelSize: %2;%3")
                                 .arg(choice(Families, i), QString::number(values.whole(6, 40)), choice(Marks, i / 5));
        return QJsonObject{
            {QStringLiteral("position"), values.pair(-30, 300, -20, 225)},
            {QStringLiteral("size"), values.pair(20, 160, 12, 90)},
            {QStringLiteral("text"), choice(Texts, i / 3)},
            {QStringLiteral("alignment"), choice(Alignments, i)},
            {QStringLiteral("font"), font},
            {QStringLiteral("color"), values.color()},
            {QStringLiteral("textStyle"),
             QStringLiteral("textStyle: %1; styleColor: %2;").arg(choice(Styles, i / 7), values.color())}};
    });
}

} // namespace

QList<Sheet> textSheets()
{
    return {{QStringLiteral("texts"), boxes()}};
}
