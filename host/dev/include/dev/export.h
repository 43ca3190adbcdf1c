#pragma once

#include <QtGlobal>

#if defined(HOST_DEV_LIBRARY)
#define HOST_DEV_EXPORT Q_DECL_EXPORT
#else
#define HOST_DEV_EXPORT Q_DECL_IMPORT
#endif
