#pragma once

#include <QtGlobal>

#if defined(TESSARK_BUILDING_PROPERTY)
#define TESSARK_PROPERTY_EXPORT Q_DECL_EXPORT
#else
#define TESSARK_PROPERTY_EXPORT Q_DECL_IMPORT
#endif
