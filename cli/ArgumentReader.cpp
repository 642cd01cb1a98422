#include "cli/ArgumentReader.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/values/ValueConversion.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <QSizeF>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

ArgumentReader::ArgumentReader(const QCommandLineParser& parser, QString* message)
    : m_parser(parser)
    , m_message(message)
{}

bool ArgumentReader::refuse(const QString& message)
{
    if (m_valid)
        *m_message = message;
    m_valid = false;
    return false;
}

bool ArgumentReader::positional(const QStringList& names, const QList<QString*>& values)
{
    if (!m_valid)
        return false;
    const QStringList given = m_parser.positionalArguments();
    if (given.size() > names.size()) {
        return refuse(
            LocalizationHelper::coreString(QStringLiteral("Unexpected argument \"%1\".")).arg(given.at(names.size())));
    }
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (i >= given.size() || given.at(i).isEmpty())
            return refuse(
                LocalizationHelper::coreString(QStringLiteral("The argument %1 is missing.")).arg(names.at(i)));
        *values.at(i) = given.at(i);
    }
    return true;
}

bool ArgumentReader::required(const QString& option, QString* value)
{
    if (m_valid && !m_parser.isSet(option))
        return refuse(LocalizationHelper::coreString(QStringLiteral("The option --%1 is missing.")).arg(option));
    return optional(option, value);
}

bool ArgumentReader::optional(const QString& option, QString* value)
{
    if (!m_valid || !m_parser.isSet(option))
        return m_valid;
    const QString given = m_parser.value(option);
    if (given.isEmpty())
        return refuse(LocalizationHelper::coreString(QStringLiteral("The value of --%1 is empty.")).arg(option));
    *value = given;
    return true;
}

bool ArgumentReader::real(const QString& option, double minimum, double maximum, double* value)
{
    QString text;
    if (!optional(option, &text) || text.isEmpty())
        return m_valid;
    bool ok = false;
    const double number = ValueConversion::toReal(text, &ok);
    if (!ok || number < minimum || number > maximum) {
        return refuse(
            LocalizationHelper::coreString(QStringLiteral("The value \"%1\" of --%2 is not a number from %3 to %4."))
                .arg(text, option, ValueConversion::toString(minimum), ValueConversion::toString(maximum)));
    }
    *value = number;
    return true;
}

bool ArgumentReader::size(const QString& option, QSizeF* value)
{
    QString text;
    if (!optional(option, &text) || text.isEmpty())
        return m_valid;
    static const QRegularExpression form(QStringLiteral("\\A([0-9]{1,9})x([0-9]{1,9})\\z"));
    const QRegularExpressionMatch match = form.match(text);
    const int width = match.captured(1).toInt();
    const int height = match.captured(2).toInt();
    if (!match.hasMatch() || width < 1 || height < 1 || width > maximumSide || height > maximumSide) {
        return refuse(LocalizationHelper::coreString(
                          QStringLiteral("The value \"%1\" of --%2 is not WIDTHxHEIGHT in pixels, each from 1 to %3."))
                          .arg(text, option)
                          .arg(maximumSide));
    }
    *value = QSizeF(width, height);
    return true;
}

} // namespace Korvex::Meridane::Designer
