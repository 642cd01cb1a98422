#include "host/core/values/NumberExpression.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/values/NumberText.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
using Common::LocalizationHelper;

/** Operators also come from keyboards and texts that use the typographic signs. */
QChar canonical(QChar c)
{
    switch (c.unicode()) {
    case u'\u2212': // minus sign
        return u'-';
    case u'\u00d7': // multiplication sign
    case u'\u00b7': // middle dot
        return u'*';
    case u'\u00f7': // division sign
        return u'/';
    default:
        return c;
    }
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/**
 * Recursive descent over:  sum = product { (+|-) product };  product = factor { (*|/) factor };
 * factor = (+|-) factor | "(" sum ")" | number.
 */
class Parser
{
public:
    explicit Parser(QStringView text)
        : m_text(text)
    {}

    [[nodiscard]] std::optional<double> parse()
    {
        const double value = sum();
        skipBlanks();
        if (m_error.isEmpty() && m_position < m_text.size()) {
            fail(LocalizationHelper::coreString(QStringLiteral("Unexpected character \"%1\"."))
                     .arg(m_text.at(m_position)));
        }
        if (m_error.isEmpty() && !std::isfinite(value)) {
            fail(LocalizationHelper::coreString(QStringLiteral("The result is too large.")));
        }
        return m_error.isEmpty() ? std::optional(value) : std::nullopt;
    }

    [[nodiscard]] const QString& error() const { return m_error; }

private:
    double sum()
    {
        double value = product();
        while (m_error.isEmpty()) {
            if (accept(u'+')) {
                value += product();
            } else if (accept(u'-')) {
                value -= product();
            } else {
                break;
            }
        }
        return value;
    }

    double product()
    {
        double value = factor();
        while (m_error.isEmpty()) {
            if (accept(u'*')) {
                value *= factor();
            } else if (accept(u'/')) {
                const double divisor = factor();
                if (divisor != 0) {
                    value /= divisor;
                } else {
                    fail(LocalizationHelper::coreString(QStringLiteral("A number cannot be divided by zero.")));
                }
            } else {
                break;
            }
        }
        return value;
    }

    double factor()
    {
        if (m_depth == NumberExpression::maximumDepth) {
            fail(LocalizationHelper::coreString(QStringLiteral("The expression is nested too deeply.")));
            return 0;
        }
        ++m_depth;
        double value = 0;
        if (accept(u'-')) {
            value = -factor();
        } else if (accept(u'+')) {
            value = factor();
        } else if (accept(u'(')) {
            value = sum();
            if (m_error.isEmpty() && !accept(u')')) {
                fail(LocalizationHelper::coreString(QStringLiteral("A closing parenthesis is missing.")));
            }
        } else {
            value = number();
        }
        --m_depth;
        return value;
    }

    double number()
    {
        skipBlanks();
        const qsizetype start = m_position;
        int separators = 0;
        while (m_position < m_text.size() && (isDigit(peek()) || peek() == u'.' || peek() == u',')) {
            separators += isDigit(peek()) ? 0 : 1;
            ++m_position;
        }
        if (m_position - start == separators) {
            fail(LocalizationHelper::coreString(QStringLiteral("A number is missing.")));
            return 0;
        }
        if (separators > 1) {
            fail(LocalizationHelper::coreString(QStringLiteral("A number can have one decimal sign only.")));
            return 0;
        }
        skipExponent();
        QString digits = m_text.sliced(start, m_position - start).toString();
        digits.replace(u',', u'.');
        const std::optional<double> value = readReal(digits);
        if (!value) {
            fail(LocalizationHelper::coreString(QStringLiteral("The number is too large or too small.")));
        }
        return value.value_or(0);
    }

    /** Moves over "e5", "E-7"; an "e" without digits behind it stays where it is. */
    void skipExponent()
    {
        qsizetype end = m_position;
        if (end == m_text.size() || (m_text.at(end) != u'e' && m_text.at(end) != u'E')) {
            return;
        }
        ++end;
        if (end < m_text.size() && (m_text.at(end) == u'+' || m_text.at(end) == u'-')) {
            ++end;
        }
        const qsizetype digits = end;
        while (end < m_text.size() && isDigit(m_text.at(end))) {
            ++end;
        }
        if (end > digits) {
            m_position = end;
        }
    }

    [[nodiscard]] QChar peek() const { return m_text.at(m_position); }

    [[nodiscard]] bool accept(char16_t sign)
    {
        skipBlanks();
        if (m_position == m_text.size() || canonical(peek()) != sign) {
            return false;
        }
        ++m_position;
        return true;
    }

    void skipBlanks()
    {
        while (m_position < m_text.size() && peek().isSpace()) {
            ++m_position;
        }
    }

    /** The first error counts; what follows from it does not. */
    void fail(const QString& error)
    {
        if (m_error.isEmpty()) {
            m_error = error;
        }
    }

    QStringView m_text;
    qsizetype m_position = 0;
    int m_depth = 0;
    QString m_error;
};

std::optional<NumberOperation::Kind> relativeKind(QStringView text)
{
    if (text.size() < 2 || text.at(1) != u'=') {
        return std::nullopt;
    }
    switch (canonical(text.at(0)).unicode()) {
    case u'+':
        return NumberOperation::Kind::Add;
    case u'-':
        return NumberOperation::Kind::Subtract;
    case u'*':
        return NumberOperation::Kind::Multiply;
    case u'/':
        return NumberOperation::Kind::Divide;
    default:
        return std::nullopt;
    }
}
} // namespace

std::optional<NumberOperation> NumberExpression::parse(QStringView text, RelativeInput relativeInput, QString* error)
{
    text = text.trimmed();
    NumberOperation operation;
    if (const std::optional<NumberOperation::Kind> kind = relativeKind(text);
        kind && relativeInput == RelativeInput::Allowed) {
        operation.kind = *kind;
        text = text.sliced(2);
    }
    Parser parser(text);
    const std::optional<double> value = parser.parse();
    QString message = parser.error();
    if (value && operation.kind == NumberOperation::Kind::Divide && *value == 0) {
        message = LocalizationHelper::coreString(QStringLiteral("A number cannot be divided by zero."));
    }
    if (error) {
        *error = message;
    }
    if (!message.isEmpty()) {
        return std::nullopt;
    }
    operation.operand = *value == 0 ? 0 : *value; // never -0
    return operation;
}

bool NumberExpression::mayBecomeExpression(QStringView text, RelativeInput relativeInput)
{
    return std::all_of(text.cbegin(), text.cend(), [relativeInput](QChar c) {
        if (c == u'=') {
            return relativeInput == RelativeInput::Allowed;
        }
        return isDigit(c) || c.isSpace() || QStringView(u"+-*/().,eE").contains(canonical(c));
    });
}
} // namespace Korvex::Meridane::Designer
