#include "tests/plugins/bad/SamplePlugin.h"

#include "host/core/plugins/PluginVerification.h"

#ifndef SAMPLE_VERSION
#define SAMPLE_VERSION QT_VERSION_STR
#endif
#ifndef SAMPLE_BUILD_KEY
#define SAMPLE_BUILD_KEY MERIDANE_BUILD_KEY
#endif
#if !defined(SAMPLE_OTHER_DEBUG)
#define SAMPLE_DEBUG MERIDANE_BUILD_DEBUG
#elif defined(QT_NO_DEBUG)
#define SAMPLE_DEBUG "true"
#else
#define SAMPLE_DEBUG "false"
#endif

#ifndef SAMPLE_WITHOUT_VERIFICATION
extern "C" Q_DECL_EXPORT const char* qt_plugin_query_verification_data()
{
#ifdef SAMPLE_GARBLED
    return "no verification data";
#else
    return "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=" SAMPLE_VERSION "\ndebug=" SAMPLE_DEBUG
           "\nbuildkey=" SAMPLE_BUILD_KEY;
#endif
}
#endif
