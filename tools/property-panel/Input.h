#pragma once

#include "CommandLine.h"

#include <host/PropertyList.h>
#include <host/PropertyStore.h>

#include <QStringList>

#include <memory>

namespace Tessark::PropertyPanel {

/// A property list with its values, and all that is wrong with them.
struct Input
{
    PropertyHost::PropertyList list;
    std::unique_ptr<PropertyHost::PropertyStore> store;
    QStringList problems; // one line each, ready to print
    bool hasErrors = false;
};

/// Reads the list and the values that the options name, with the built-in list and the defaults in
/// place of what they do not name. Values of the values file go before those of the settings. A list
/// without title gets one.
Input readInput(const Options &options);

} // namespace Tessark::PropertyPanel
