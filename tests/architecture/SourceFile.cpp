#include "tests/architecture/SourceFile.h"

#include <QRegularExpression>

namespace Korvex::Meridane::Architecture {

namespace {

/// The index after the literal in @p quote characters that starts at @p start; raw strings included.
qsizetype endOfLiteral(const QString& text, qsizetype start)
{
    const QChar quote = text.at(start);
    if (quote == QLatin1Char('"') && start > 0 && text.at(start - 1) == QLatin1Char('R')) {
        const qsizetype open = text.indexOf(QLatin1Char('('), start);
        if (open >= 0) {
            const QString close = QLatin1Char(')') + text.mid(start + 1, open - start - 1) + QLatin1Char('"');
            const qsizetype end = text.indexOf(close, open);
            return end < 0 ? text.size() : end + close.size();
        }
    }
    qsizetype i = start + 1;
    while (i < text.size() && text.at(i) != quote && text.at(i) != QLatin1Char('\n'))
        i += text.at(i) == QLatin1Char('\\') ? 2 : 1;
    return qMin(i + 1, text.size());
}

/// True for an apostrophe between digits, which starts no character literal: 10'000.
bool isDigitSeparator(const QString& text, qsizetype i)
{
    return text.at(i) == QLatin1Char('\'') && i > 0 && text.at(i - 1).isLetterOrNumber();
}

QVector<Include> readIncludes(const QString& code)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^\s*#\s*include\s*(?:"([^"]+)\"|<([^>]+)>))"));
    QVector<Include> includes;
    int number = 0;
    for (const QString& line : code.split(QLatin1Char('\n'))) {
        ++number;
        const QRegularExpressionMatch match = pattern.match(line);
        if (match.hasMatch()) {
            const bool quoted = !match.captured(1).isEmpty();
            includes.append({quoted ? match.captured(1) : match.captured(2), quoted, number});
        }
    }
    return includes;
}

QVector<Literal> readLiterals(const QString& code)
{
    static const QRegularExpression localising(
        QStringLiteral(R"((?:coreString|visualDesignerString)\s*\(\s*(?:Q\w+\s*\(\s*)?$)"));
    QVector<Literal> literals;
    int line = 1;
    for (qsizetype i = 0; i < code.size();) {
        const QChar c = code.at(i);
        if (c == QLatin1Char('\n'))
            ++line;
        if ((c != QLatin1Char('"') && c != QLatin1Char('\'')) || isDigitSeparator(code, i)) {
            ++i;
            continue;
        }
        const qsizetype end = endOfLiteral(code, i);
        if (c == QLatin1Char('"')) {
            const QString before = code.mid(qMax<qsizetype>(0, i - 80), qMin<qsizetype>(80, i));
            literals.append({code.mid(i + 1, end - i - 2), localising.match(before).hasMatch(), line});
        }
        line += static_cast<int>(code.mid(i, end - i).count(QLatin1Char('\n')));
        i = end;
    }
    return literals;
}

} // namespace

SourceFile::SourceFile(const QString& path, const QString& text)
    : m_path(path)
{
    const QString code = withoutComments(text);
    m_includes = readIncludes(code);
    m_literals = readLiterals(code);
    m_startsWithPragmaOnce = code.trimmed().startsWith(QLatin1String("#pragma once"));
}

QString SourceFile::withoutComments(const QString& text)
{
    QString code = text;
    for (qsizetype i = 0; i < code.size();) {
        const QStringView rest = QStringView(code).mid(i);
        if ((code.at(i) == QLatin1Char('"') || code.at(i) == QLatin1Char('\'')) && !isDigitSeparator(code, i)) {
            i = endOfLiteral(code, i);
            continue;
        }
        qsizetype end = i;
        if (rest.startsWith(QLatin1String("//"))) {
            end = code.indexOf(QLatin1Char('\n'), i);
            end = end < 0 ? code.size() : end;
        } else if (rest.startsWith(QLatin1String("/*"))) {
            end = code.indexOf(QLatin1String("*/"), i + 2);
            end = end < 0 ? code.size() : end + 2;
        }
        for (; i < end; ++i) {
            if (code.at(i) != QLatin1Char('\n'))
                code[i] = QLatin1Char(' ');
        }
        if (i >= code.size())
            break;
        if (i == end)
            ++i;
    }
    return code;
}

} // namespace Korvex::Meridane::Architecture
