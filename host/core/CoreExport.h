#pragma once

#include <QtCore/qglobal.h>

#if defined(MERIDANE_CORE_LIBRARY)
#define MERIDANE_CORE_EXPORT Q_DECL_EXPORT
#else
#define MERIDANE_CORE_EXPORT Q_DECL_IMPORT
#endif
