#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;
class QSizeF;

namespace Korvex::Meridane::Designer {

/**
 * Takes the values of a command line over, checking them. Every function gives false and a message for wrong usage.
 * The first fault stays: functions called after it do nothing and give false.
 */
class ArgumentReader
{
public:
    ArgumentReader(const QCommandLineParser& parser, QString* message);

    /// The arguments that are no options: exactly one, not empty, for each of \a names.
    bool positional(const QStringList& names, const QList<QString*>& values);
    /// The value of an option that must be given.
    bool required(const QString& option, QString* value);
    /// The value of an option that may be missing: then \a value stays as it is. An empty value is refused.
    bool optional(const QString& option, QString* value);
    /// A finite real from \a minimum to \a maximum; \a value stays as it is when the option is missing.
    bool real(const QString& option, double minimum, double maximum, double* value);
    /// "WxH" in whole pixels, each from 1 to maximumSide; \a value stays as it is when the option is missing.
    bool size(const QString& option, QSizeF* value);

    /// The longest side of a display, in pixels.
    static constexpr int maximumSide = 20000;

    [[nodiscard]] bool isValid() const { return m_valid; }

private:
    bool refuse(const QString& message);

    const QCommandLineParser& m_parser;
    QString* m_message;
    bool m_valid = true;
};

} // namespace Korvex::Meridane::Designer
