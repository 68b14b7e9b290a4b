#pragma once

#include "kestotool/platform/Export.h"

#include <string>

namespace KestoTool {

// Looks at a shared object's file before it is loaded: loading a truncated or foreign file
// beside the library (a half-copied install) would crash the host inside the loader, and a file
// that others may write to could be swapped for code of theirs.
class KESTO_API ModuleFileCheck {
public:
    ModuleFileCheck() = delete;

    // Empty when the file at path is a whole shared object of this machine's kind that only its
    // owner may write; otherwise what is wrong with it, in plain words.
    static std::string Problem(const std::string& path);
};

} // namespace KestoTool
