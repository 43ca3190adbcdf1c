#pragma once

#include <QtGlobal>

#if defined(HOST_SERDESIP_LIBRARY)
#define HOST_SERDESIP_EXPORT Q_DECL_EXPORT
#else
#define HOST_SERDESIP_EXPORT Q_DECL_IMPORT
#endif
