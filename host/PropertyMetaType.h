#pragma once

#include <property/Property.h>

#include <QMetaType>

// For the signals of this library that tell a property, in spies and queued connections.
Q_DECLARE_METATYPE(Tessark::PropertyUI::Property *)
