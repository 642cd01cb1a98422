#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace Korvex::Meridane::Translations {

/** Reads the calls in C++ code, one after the other; comments and texts in quotes are no code. */
class CodeReader
{
public:
    explicit CodeReader(const QString& code);

    /** Goes on to the next name that is followed by an opening parenthesis; false at the end. Also goes into arguments. */
    bool toNextCall();
    /** The name before the parenthesis. */
    [[nodiscard]] const QString& callee() const { return m_callee; }
    /** The function belongs to what is named before it: `menu->add(`, `menu.add(`, `Menu::add(`. */
    [[nodiscard]] bool isQualified() const;
    /** All the code before the name, without comments. */
    [[nodiscard]] QString codeBefore() const { return m_code.left(m_nameStart); }
    /** The line of the name, from 1. */
    [[nodiscard]] int line() const;
    /** What stands between the commas of the call's parentheses, without comments; none when they are empty. */
    [[nodiscard]] QStringList arguments() const;

    /**
     * The value of an expression that is one text: literals side by side, on their own or in `QStringLiteral()`,
     * `QLatin1String()` or `QString::fromUtf8()`. Nothing for any other expression.
     */
    [[nodiscard]] static std::optional<QString> literal(const QString& expression);

private:
    QString m_code; // comments blanked out
    QString m_callee;
    qsizetype m_nameStart = 0;
    qsizetype m_position = 0; // after the opening parenthesis of the current call
};

} // namespace Korvex::Meridane::Translations
