#pragma once

#include <QString>
#include <QVector>

#include <optional>

namespace Korvex::Meridane::Translations {

/** A function, or a lambda, that looks up one of its arguments as a text for the user. */
struct TextFunction
{
    QString name;
    QString context; ///< In which it looks; empty where its first argument says so.
    int argument = 0; ///< Which one is the text, from 0.

    bool operator==(const TextFunction& other) const
    {
        return name == other.name && context == other.context && argument == other.argument;
    }
};

/** The functions that all sources have in common. */
[[nodiscard]] const QVector<TextFunction>& commonTextFunctions();

/**
 * The function that hands its parameter on as the argument @p given (`text`, `QString::fromUtf8(text)`), when
 * @p codeBefore is what stands before the call. Its context is left empty.
 */
[[nodiscard]] std::optional<TextFunction> forwardingFunction(const QString& given, const QString& codeBefore);

/**
 * The functions that @p code itself defines to hand a `const char*` parameter on to a function of @p known, such as
 * `QAction* make(const char* icon, const char* text) { … coreText(text) … }`.
 */
[[nodiscard]] QVector<TextFunction> forwardingFunctions(const QString& code, const QVector<TextFunction>& known);

} // namespace Korvex::Meridane::Translations
