#pragma once

#include <QtCore/qglobal.h>

#if defined(MERIDANE_COMMON_LIBRARY)
#define MERIDANE_COMMON_EXPORT Q_DECL_EXPORT
#else
#define MERIDANE_COMMON_EXPORT Q_DECL_IMPORT
#endif
