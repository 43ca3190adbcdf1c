#pragma once

#include <QtGlobal>

#if defined(HOST_IPCORE_LIBRARY)
#define HOST_IPCORE_EXPORT Q_DECL_EXPORT
#else
#define HOST_IPCORE_EXPORT Q_DECL_IMPORT
#endif
