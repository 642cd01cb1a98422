#pragma once

#include "host/core/CoreExport.h"

#include <QString>

#include <optional>

// What a plug-in says about its own build, in the text that its qt_plugin_query_verification_data() returns:
//
//     pattern=QT_PLUGIN_VERIFICATION_DATA
//     version=6.4.2
//     debug=false
//     buildkey=Linux x86_64 g++ full-config
//
// The loader reads it before it asks the library for anything else.

#if defined(__clang__)
#define MERIDANE_BUILD_COMPILER "clang++"
#elif defined(__GNUC__)
#define MERIDANE_BUILD_COMPILER "g++"
#else
#define MERIDANE_BUILD_COMPILER "unknown"
#endif

#if defined(__x86_64__)
#define MERIDANE_BUILD_ARCHITECTURE "x86_64"
#elif defined(__aarch64__)
#define MERIDANE_BUILD_ARCHITECTURE "aarch64"
#else
#define MERIDANE_BUILD_ARCHITECTURE "unknown"
#endif

#if defined(QT_NO_DEBUG)
#define MERIDANE_BUILD_DEBUG "false"
#else
#define MERIDANE_BUILD_DEBUG "true"
#endif

#define MERIDANE_BUILD_KEY "Linux " MERIDANE_BUILD_ARCHITECTURE " " MERIDANE_BUILD_COMPILER " full-config"

/// The verification text of the translation unit that expands it.
#define MERIDANE_VERIFICATION_TEXT                                                                                     \
    "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=" QT_VERSION_STR "\ndebug=" MERIDANE_BUILD_DEBUG                     \
    "\nbuildkey=" MERIDANE_BUILD_KEY

/// Defines a plug-in's verification entry point; stands once in a plug-in, beside Q_PLUGIN_METADATA.
#define MERIDANE_EXPORT_VERIFICATION                                                                                   \
    extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()                                           \
    {                                                                                                                  \
        return MERIDANE_VERIFICATION_TEXT;                                                                             \
    }

namespace Korvex::Meridane::Designer {

/// The verification text, taken apart.
struct MERIDANE_CORE_EXPORT PluginVerification
{
    QString version;
    QString debug;
    QString buildKey;

    /// Nothing when \a text is not a verification text.
    [[nodiscard]] static std::optional<PluginVerification> parse(const QString& text);
    /// What the host itself was built as.
    [[nodiscard]] static PluginVerification ofHost();
    /// Whether a plug-in built as \a plugin fits this host; if not, \a reason names what differs with both values.
    [[nodiscard]] bool accepts(const PluginVerification& plugin, QString* reason) const;
};

} // namespace Korvex::Meridane::Designer
