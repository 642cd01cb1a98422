#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcessEnvironment>
#include <QStringList>

/// Runs the built program as a user would, and tells what became of it.
class MeridaneProgram
{
public:
    struct Result
    {
        int status = -1; ///< exit status; -1 when the program was ended by a signal or did not end
        QByteArray output;
        QByteArray errors;

        [[nodiscard]] QJsonArray lines() const; ///< the output as one JSON object a line
        [[nodiscard]] QJsonObject line(int index) const;
        [[nodiscard]] bool saysError(const char* text) const { return errors.contains(text); }
    };

    /// The program's file, absolute.
    [[nodiscard]] static QString path();
    /// \a input is what it reads from standard input; \a folder its working folder.
    static Result run(const QStringList& arguments, const QByteArray& input = {}, const QString& folder = {});
    /// The same in an environment of its own.
    static Result runIn(const QProcessEnvironment& environment, const QStringList& arguments,
                        const QByteArray& input = {}, const QString& folder = {});
    /// Runs a bash script in which "$M" is the program and "$1" … are \a arguments.
    static Result script(const QString& text, const QStringList& arguments = {});
    /// The element classes that the program offers, in its order.
    [[nodiscard]] static QStringList classNames();
    /// The environment of the test without any display or chosen platform.
    [[nodiscard]] static QProcessEnvironment withoutDisplay();
};
