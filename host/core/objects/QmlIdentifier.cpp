#include "host/core/objects/QmlIdentifier.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {

namespace {

constexpr qsizetype LongestIdentifier = 100;

// The reserved words of ECMAScript and the lower-case global names that QML does not let an id hide; sorted.
constexpr std::array<const char*, 81> ReservedWords{
    "arguments",   "as",         "async",
    "await",       "break",      "case",
    "catch",       "class",      "component",
    "console",     "const",      "continue",
    "debugger",    "decodeURI",  "decodeURIComponent",
    "default",     "delete",     "do",
    "else",        "encodeURI",  "encodeURIComponent",
    "enum",        "escape",     "eval",
    "export",      "extends",    "false",
    "finally",     "for",        "from",
    "function",    "gc",         "get",
    "globalThis",  "if",         "implements",
    "import",      "in",         "instanceof",
    "interface",   "isFinite",   "isNaN",
    "let",         "new",        "null",
    "of",          "on",         "package",
    "parent",      "parseFloat", "parseInt",
    "pragma",      "print",      "private",
    "property",    "protected",  "public",
    "qsTr",        "qsTrId",     "qsTrNoOp",
    "qsTranslate", "readonly",   "required",
    "return",      "set",        "signal",
    "static",      "super",      "switch",
    "this",        "throw",      "true",
    "try",         "typeof",     "undefined",
    "unescape",    "var",        "void",
    "while",       "with",       "yield",
};

bool isReserved(const QString& id)
{
    return std::any_of(ReservedWords.begin(), ReservedWords.end(),
                       [&id](const char* word) { return id == QLatin1String(word); });
}

} // namespace

bool isQmlIdentifier(const QString& id, QString* reason)
{
    const auto refuse = [reason](const char* text) {
        if (reason)
            *reason = Common::LocalizationHelper::coreString(QString::fromLatin1(text));
        return false;
    };
    if (id.isEmpty())
        return refuse("The id must not be empty.");
    if (id.size() > LongestIdentifier)
        return refuse("The id must not be longer than 100 characters.");
    const auto isLower = [](QChar c) { return c >= QLatin1Char('a') && c <= QLatin1Char('z'); };
    const auto isPart = [&isLower](QChar c) {
        return isLower(c) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
               || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('_');
    };
    if (!isLower(id.front()) && id.front() != QLatin1Char('_'))
        return refuse("The id must begin with a lower-case letter or an underscore.");
    if (!std::all_of(id.begin(), id.end(), isPart))
        return refuse("The id may hold only letters, digits and underscores.");
    if (isReserved(id))
        return refuse("The id is a reserved word; choose another one.");
    if (reason)
        reason->clear();
    return true;
}

} // namespace Korvex::Meridane::Designer
