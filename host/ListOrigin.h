#pragma once

namespace Tessark::PropertyHost {

/// Where a property list comes from, and so what it may ask for; see readPropertyList().
enum class ListOrigin {
    Trusted,  // from the host or its user: it may name any file
    Stranger, // from anywhere
};

} // namespace Tessark::PropertyHost
