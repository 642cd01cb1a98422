#pragma once

#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QPointF>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/**
 * The arguments of one edit, read one by one and checked for their JSON type.
 *
 * The first fault stays: error() names the argument, and the getters called after it give defaults. An operation reads
 * all its arguments first and asks isComplete() before it does anything; what it did not ask for is refused there.
 */
class EditArguments
{
public:
    explicit EditArguments(const QJsonObject& edit);

    [[nodiscard]] bool has(QLatin1String name) const { return m_edit.contains(name); }
    [[nodiscard]] bool isText(QLatin1String name) const { return m_edit.value(name).isString(); }

    /// A text that must be given.
    QString text(QLatin1String name);
    /// A text that may be missing: then \a fallback.
    QString optionalText(QLatin1String name, const QString& fallback = {});
    /// A finite number that must be given.
    double number(QLatin1String name);
    /// A whole number from \a minimum to \a maximum that may be missing: then \a fallback.
    int optionalInteger(QLatin1String name, int fallback, int minimum, int maximum);
    /// A point [x, y] that must be given, in scene pixels, each number within ±largestCoordinate.
    QPointF point(QLatin1String name);
    /// A list of points that may be missing: then empty.
    QList<QPointF> optionalPoints(QLatin1String name);
    /// A list of texts that may be missing: then empty.
    QStringList optionalTexts(QLatin1String name);
    /// An object of texts that may be missing: then empty.
    QMap<QString, QString> optionalTextMap(QLatin1String name);

    /// Records a fault that the operation itself found in an argument.
    void refuse(const QString& message);
    /// True when no argument was at fault and none is left that nobody asked for.
    [[nodiscard]] bool isComplete();
    [[nodiscard]] bool hasError() const { return !m_error.isEmpty(); }
    [[nodiscard]] const QString& error() const { return m_error; }

    /// Far beyond any screen; what lies further out is a mistake.
    static constexpr double largestCoordinate = 1e6;

private:
    /// The value of an argument, or undefined when it is missing.
    QJsonValue value(QLatin1String name);
    QJsonValue requiredValue(QLatin1String name);
    void refuseType(QLatin1String name, const QString& wanted);
    QPointF toPoint(const QJsonValue& value, QLatin1String name);

    QJsonObject m_edit;
    QSet<QString> m_known;
    QString m_error;
};

} // namespace Korvex::Meridane::Designer
