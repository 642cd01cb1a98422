#include "host/core/plugins/PluginVerification.h"

#include <QtGlobal>

// The root object's entry point, qt_plugin_instance, comes with Q_PLUGIN_METADATA in VisualElements.h.
MERIDANE_EXPORT_VERIFICATION
