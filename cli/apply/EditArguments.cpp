#include "cli/apply/EditArguments.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/values/ValueConversion.h"

#include <QJsonArray>

#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

EditArguments::EditArguments(const QJsonObject& edit)
    : m_edit(edit)
    , m_known{QStringLiteral("op")}
{}

QJsonValue EditArguments::value(QLatin1String name)
{
    m_known.insert(name);
    return hasError() ? QJsonValue(QJsonValue::Undefined) : m_edit.value(name);
}

QJsonValue EditArguments::requiredValue(QLatin1String name)
{
    QJsonValue given = value(name);
    if (given.isUndefined())
        refuse(LocalizationHelper::coreString(QStringLiteral("The argument \"%1\" is missing.")).arg(name));
    return given;
}

void EditArguments::refuse(const QString& message)
{
    if (m_error.isEmpty())
        m_error = message;
}

void EditArguments::refuseType(QLatin1String name, const QString& wanted)
{
    refuse(LocalizationHelper::coreString(QStringLiteral("The argument \"%1\" must be %2.")).arg(name, wanted));
}

QString EditArguments::text(QLatin1String name)
{
    const QJsonValue given = requiredValue(name);
    if (!hasError() && !given.isString())
        refuseType(name, LocalizationHelper::coreString(QStringLiteral("a text")));
    return given.toString();
}

QString EditArguments::optionalText(QLatin1String name, const QString& fallback)
{
    return has(name) ? text(name) : fallback;
}

double EditArguments::number(QLatin1String name)
{
    const QJsonValue given = requiredValue(name);
    if (!hasError() && (!given.isDouble() || !std::isfinite(given.toDouble())))
        refuseType(name, LocalizationHelper::coreString(QStringLiteral("a number")));
    return given.toDouble();
}

int EditArguments::optionalInteger(QLatin1String name, int fallback, int minimum, int maximum)
{
    const QJsonValue given = value(name);
    if (given.isUndefined())
        return fallback;
    const double number = given.toDouble(std::nan(""));
    if (number >= minimum && number <= maximum && number == std::floor(number))
        return static_cast<int>(number);
    refuseType(
        name, LocalizationHelper::coreString(QStringLiteral("a whole number from %1 to %2")).arg(minimum).arg(maximum));
    return fallback;
}

QPointF EditArguments::toPoint(const QJsonValue& value, QLatin1String name)
{
    const QJsonArray pair = value.toArray();
    const auto isCoordinate = [](const QJsonValue& number) {
        return number.isDouble() && std::abs(number.toDouble()) <= largestCoordinate;
    };
    if (pair.size() == 2 && isCoordinate(pair.at(0)) && isCoordinate(pair.at(1)))
        return {pair.at(0).toDouble(), pair.at(1).toDouble()};
    if (!hasError()) {
        refuse(LocalizationHelper::coreString(
                   QStringLiteral("The argument \"%1\" must hold points [x, y] in pixels, each number within ±%2."))
                   .arg(name, ValueConversion::toQmlString(largestCoordinate, 0)));
    }
    return {};
}

QPointF EditArguments::point(QLatin1String name)
{
    return toPoint(requiredValue(name), name);
}

QList<QPointF> EditArguments::optionalPoints(QLatin1String name)
{
    const QJsonValue given = value(name);
    if (given.isUndefined())
        return {};
    if (!given.isArray())
        refuseType(name, LocalizationHelper::coreString(QStringLiteral("a list of points [[x, y], …]")));
    QList<QPointF> points;
    const QJsonArray entries = given.toArray();
    for (const QJsonValue entry : entries)
        points.append(toPoint(entry, name));
    return points;
}

QStringList EditArguments::optionalTexts(QLatin1String name)
{
    const QJsonValue given = value(name);
    if (given.isUndefined())
        return {};
    bool ok = given.isArray();
    QStringList texts;
    const QJsonArray entries = given.toArray();
    for (const QJsonValue entry : entries) {
        ok = ok && entry.isString();
        texts.append(entry.toString());
    }
    if (!ok)
        refuseType(name, LocalizationHelper::coreString(QStringLiteral("a list of texts")));
    return texts;
}

QMap<QString, QString> EditArguments::optionalTextMap(QLatin1String name)
{
    const QJsonValue given = value(name);
    if (given.isUndefined())
        return {};
    if (!given.isObject())
        refuseType(name, LocalizationHelper::coreString(QStringLiteral("an object of texts")));
    QMap<QString, QString> texts;
    const QJsonObject entries = given.toObject();
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        if (!it.value().isString()) {
            refuse(LocalizationHelper::coreString(
                       QStringLiteral("The value of \"%1\" in the argument \"%2\" must be a text."))
                       .arg(it.key(), name));
        }
        texts.insert(it.key(), it.value().toString());
    }
    return texts;
}

bool EditArguments::isComplete()
{
    for (auto it = m_edit.constBegin(); it != m_edit.constEnd() && !hasError(); ++it) {
        if (!m_known.contains(it.key()))
            refuse(LocalizationHelper::coreString(QStringLiteral("There is no argument \"%1\".")).arg(it.key()));
    }
    return !hasError();
}

} // namespace Korvex::Meridane::Designer
