#pragma once

#include <QJsonObject>

namespace Tessark::PropertyUI {
class Property;
}

namespace Tessark::PropertyHost {

/// The JSON form of a row, from which readPropertyList() makes an equal one. What has no JSON form,
/// a picture that was not read from a file for example, is left out.
QJsonObject rowToJson(const PropertyUI::Property &property);

} // namespace Tessark::PropertyHost
