#pragma once

namespace Tessark::PropertyPanel {

/// How the program ends, as the process that started it sees it.
enum class ExitStatus {
    Saved = 0,     // or everything else that was asked for was done
    Cancelled = 1, // or the reader of --live is gone, and no file to save to was named
    BadInput = 2,  // a wrong command line, list or values file, or something that cannot be written
};

} // namespace Tessark::PropertyPanel
