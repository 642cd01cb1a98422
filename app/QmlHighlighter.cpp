#include "app/QmlHighlighter.h"

#include "app/Appearance.h"

#include <QPalette>

namespace Korvex::Meridane::Designer {

namespace {

enum BlockState
{
    InCode = 0,
    InComment = 1
};

bool isKeyword(QStringView name)
{
    static constexpr QLatin1String keywords[] = {
        QLatin1String("import"),   QLatin1String("property"), QLatin1String("readonly"), QLatin1String("signal"),
        QLatin1String("function"), QLatin1String("true"),     QLatin1String("false"),    QLatin1String("null"),
        QLatin1String("var"),      QLatin1String("let"),      QLatin1String("const"),    QLatin1String("return"),
        QLatin1String("if"),       QLatin1String("else"),     QLatin1String("as"),       QLatin1String("on"),
    };
    return std::find(std::begin(keywords), std::end(keywords), name) != std::end(keywords);
}

bool isNamePart(QChar letter)
{
    return letter.isLetterOrNumber() || letter == QLatin1Char('_') || letter == QLatin1Char('$');
}

/// Where the text that begins with the quote at \a from ends; a quote after a backslash is part of it.
qsizetype endOfText(const QString& text, qsizetype from)
{
    const QChar quote = text.at(from);
    for (qsizetype i = from + 1; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('\\'))
            ++i;
        else if (text.at(i) == quote)
            return i + 1;
    }
    return text.size();
}

qsizetype endOfNumber(const QString& text, qsizetype from)
{
    qsizetype end = from;
    while (end < text.size()) {
        const QChar letter = text.at(end);
        const bool isSign = (letter == QLatin1Char('-') || letter == QLatin1Char('+')) && end > from
                            && text.at(end - 1).toLower() == QLatin1Char('e');
        if (!isNamePart(letter) && letter != QLatin1Char('.') && !isSign)
            break;
        ++end;
    }
    return end;
}

} // namespace

QmlHighlighter::QmlHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
{}

QColor QmlHighlighter::color(Part part, bool dark)
{
    switch (part) {
    case Part::Plain:
        break;
    case Part::Keyword:
        return dark ? QColor(0xd9, 0x9a, 0xf0) : QColor(0x8a, 0x1f, 0xa8);
    case Part::Type:
        return dark ? QColor(0x6f, 0xc3, 0xf7) : QColor(0x0b, 0x5f, 0xa5);
    case Part::Property:
        return dark ? QColor(0xf2, 0xa6, 0x8c) : QColor(0xa0, 0x3c, 0x12);
    case Part::Text:
        return dark ? QColor(0x9c, 0xd6, 0x7e) : QColor(0x2d, 0x6b, 0x12);
    case Part::Number:
        return dark ? QColor(0xe8, 0xc9, 0x6b) : QColor(0x7a, 0x55, 0x00);
    case Part::Comment:
        return dark ? QColor(0xa8, 0xb0, 0xba) : QColor(0x5c, 0x64, 0x6e);
    }
    return dark ? QColor(0xe8, 0xea, 0xed) : QColor(0x1c, 0x1e, 0x21);
}

void QmlHighlighter::setPalette(const QPalette& palette)
{
    const bool dark = Appearance::isDark(palette);
    for (int part = 0; part < PartCount; ++part)
        m_formats[std::size_t(part)].setForeground(color(Part(part), dark));
    rehighlight();
}

void QmlHighlighter::paint(qsizetype from, qsizetype to, Part part)
{
    setFormat(int(from), int(to - from), m_formats[std::size_t(part)]);
}

void QmlHighlighter::highlightBlock(const QString& text)
{
    qsizetype at = 0;
    setCurrentBlockState(InCode);
    if (previousBlockState() == InComment) {
        const qsizetype end = text.indexOf(QLatin1String("*/"));
        at = end < 0 ? text.size() : end + 2;
        paint(0, at, Part::Comment);
        if (end < 0) {
            setCurrentBlockState(InComment);
            return;
        }
    }
    while (at < text.size()) {
        const QChar letter = text.at(at);
        const QStringView rest = QStringView(text).sliced(at);
        const qsizetype from = at;
        if (rest.startsWith(QLatin1String("//"))) {
            at = text.size();
            paint(from, at, Part::Comment);
        } else if (rest.startsWith(QLatin1String("/*"))) {
            const qsizetype end = text.indexOf(QLatin1String("*/"), at + 2);
            at = end < 0 ? text.size() : end + 2;
            paint(from, at, Part::Comment);
            if (end < 0)
                setCurrentBlockState(InComment);
        } else if (letter == QLatin1Char('"') || letter == QLatin1Char('\'')) {
            at = endOfText(text, at);
            paint(from, at, Part::Text);
        } else if (letter.isDigit()) {
            at = endOfNumber(text, at);
            paint(from, at, Part::Number);
        } else if (isNamePart(letter)) {
            at = highlightName(text, at);
        } else {
            ++at;
            paint(from, at, Part::Plain);
        }
    }
}

qsizetype QmlHighlighter::highlightName(const QString& text, qsizetype from)
{
    qsizetype end = from;
    while (end < text.size() && isNamePart(text.at(end)))
        ++end;
    const QStringView name = QStringView(text).sliced(from, end - from);
    qsizetype next = end;
    while (next < text.size() && text.at(next).isSpace())
        ++next;
    // "border.width:" is one property; the name before the dot is part of it.
    qsizetype dotted = end;
    while (dotted < text.size() && (isNamePart(text.at(dotted)) || text.at(dotted) == QLatin1Char('.')))
        ++dotted;
    const bool names = (next < text.size() && text.at(next) == QLatin1Char(':'))
                       || (dotted < text.size() && dotted > end && text.at(dotted) == QLatin1Char(':'));
    if (isKeyword(name) && !names)
        paint(from, end, Part::Keyword);
    else if (names)
        paint(from, end, Part::Property);
    else if (name.at(0).isUpper())
        paint(from, end, Part::Type);
    else
        paint(from, end, Part::Plain);
    return end;
}

} // namespace Korvex::Meridane::Designer
