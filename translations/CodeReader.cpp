#include "translations/CodeReader.h"

#include <QRegularExpression>

namespace Korvex::Meridane::Translations {

namespace {

bool isNameLetter(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_');
}

/** True where a literal in quotes begins; an apostrophe between digits begins none: 10'000. */
bool beginsLiteral(const QString& code, qsizetype i)
{
    const QChar c = code.at(i);
    return c == QLatin1Char('"') || (c == QLatin1Char('\'') && (i == 0 || !code.at(i - 1).isDigit()));
}

/** The index after the literal that begins with the quote at @p start; raw literals included. */
qsizetype endOfLiteral(const QString& code, qsizetype start)
{
    const QChar quote = code.at(start);
    if (quote == QLatin1Char('"') && start > 0 && code.at(start - 1) == QLatin1Char('R')) {
        const qsizetype open = code.indexOf(QLatin1Char('('), start);
        const QString close = QLatin1Char(')') + code.mid(start + 1, open - start - 1) + quote;
        const qsizetype end = open < 0 ? -1 : code.indexOf(close, open);
        return end < 0 ? code.size() : end + close.size();
    }
    qsizetype i = start + 1;
    while (i < code.size() && code.at(i) != quote && code.at(i) != QLatin1Char('\n'))
        i += code.at(i) == QLatin1Char('\\') ? 2 : 1;
    return qMin(i + 1, code.size());
}

/** The index after the comment that begins at @p start; @p start itself where none does. */
qsizetype endOfComment(const QString& code, qsizetype start)
{
    const QStringView rest = QStringView(code).mid(start, 2);
    const QLatin1String close(rest == QLatin1String("//") ? "\n" : "*/");
    if (rest != QLatin1String("//") && rest != QLatin1String("/*"))
        return start;
    const qsizetype end = code.indexOf(close, start + 2);
    if (end < 0)
        return code.size();
    return close.size() == 1 ? end : end + close.size();
}

QString withoutComments(QString code)
{
    for (qsizetype i = 0; i < code.size();) {
        if (beginsLiteral(code, i)) {
            i = endOfLiteral(code, i);
            continue;
        }
        const qsizetype end = endOfComment(code, i);
        for (qsizetype blank = i; blank < end; ++blank) {
            if (code.at(blank) != QLatin1Char('\n'))
                code[blank] = QLatin1Char(' ');
        }
        i = qMax(end, i + 1);
    }
    return code;
}

/** The character, or characters, of the escape sequence after the backslash at @p i; @p i is moved behind it. */
QString readEscape(const QString& body, qsizetype& i)
{
    const QChar kind = body.at(i + 1);
    const QString plain = QStringLiteral("ntr0");
    const QString meant = QStringLiteral("\n\t\r") + QChar(QChar::Null);
    i += 2;
    if (const qsizetype known = plain.indexOf(kind); known >= 0)
        return QString(meant.at(known));
    const int digits = kind == QLatin1Char('u') ? 4 : kind == QLatin1Char('U') ? 8 : 0;
    if (digits == 0)
        return QString(kind);
    const char32_t code = body.mid(i, digits).toUInt(nullptr, 16);
    i += digits;
    return QString::fromUcs4(&code, 1);
}

QString withoutEscapes(const QString& body)
{
    QString text;
    for (qsizetype i = 0; i < body.size();) {
        if (body.at(i) == QLatin1Char('\\') && i + 1 < body.size())
            text += readEscape(body, i);
        else
            text += body.at(i++);
    }
    return text;
}

} // namespace

CodeReader::CodeReader(const QString& code)
    : m_code(withoutComments(code))
{}

bool CodeReader::toNextCall()
{
    for (qsizetype i = m_position; i < m_code.size(); ++i) {
        if (beginsLiteral(m_code, i)) {
            i = endOfLiteral(m_code, i) - 1;
            continue;
        }
        if (m_code.at(i) != QLatin1Char('('))
            continue;
        qsizetype start = i;
        while (start > 0 && isNameLetter(m_code.at(start - 1)))
            --start;
        if (start == i)
            continue;
        m_callee = m_code.mid(start, i - start);
        m_nameStart = start;
        m_position = i + 1;
        return true;
    }
    m_position = m_code.size();
    return false;
}

bool CodeReader::isQualified() const
{
    const QStringView before = QStringView(m_code).left(m_nameStart);
    return before.endsWith(QLatin1Char('.')) || before.endsWith(QLatin1String("::"))
           || (before.endsWith(QLatin1String("->")) && !before.endsWith(QLatin1String("this->")));
}

int CodeReader::line() const
{
    return 1 + static_cast<int>(QStringView(m_code).left(m_nameStart).count(QLatin1Char('\n')));
}

QStringList CodeReader::arguments() const
{
    QStringList found;
    int depth = 0;
    qsizetype start = m_position;
    for (qsizetype i = m_position; i < m_code.size(); ++i) {
        const QChar c = m_code.at(i);
        if (beginsLiteral(m_code, i)) {
            i = endOfLiteral(m_code, i) - 1;
        } else if (QStringLiteral("([{").contains(c)) {
            ++depth;
        } else if (QStringLiteral(")]}").contains(c) && --depth < 0) {
            const QString last = m_code.mid(start, i - start).trimmed();
            return last.isEmpty() && found.isEmpty() ? found : found << last;
        } else if (c == QLatin1Char(',') && depth == 0) {
            found.append(m_code.mid(start, i - start).trimmed());
            start = i + 1;
        }
    }
    return found;
}

std::optional<QString> CodeReader::literal(const QString& expression)
{
    static const QRegularExpression wrapped(
        QStringLiteral(R"(^(?:QStringLiteral|QLatin1String|QString::fromUtf8)\s*\((.*)\)$)"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = wrapped.match(expression);
    const QString quoted = match.hasMatch() ? match.captured(1).trimmed() : expression;
    if (!quoted.startsWith(QLatin1Char('"')))
        return std::nullopt;
    QString text;
    for (qsizetype i = 0; i < quoted.size();) {
        if (quoted.at(i).isSpace()) {
            ++i;
        } else if (quoted.at(i) == QLatin1Char('"')) {
            const qsizetype end = endOfLiteral(quoted, i);
            text += withoutEscapes(quoted.mid(i + 1, end - i - 2));
            i = end;
        } else {
            return std::nullopt;
        }
    }
    return text;
}

} // namespace Korvex::Meridane::Translations
