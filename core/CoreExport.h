#pragma once

#include <QtGlobal>

#if defined(TESSARK_BUILDING_CORE)
#define TESSARK_CORE_EXPORT Q_DECL_EXPORT
#else
#define TESSARK_CORE_EXPORT Q_DECL_IMPORT
#endif
