#pragma once

#include "kestotool/platform/Export.h"

// The version of the headers a host is compiled against; KestoTool::Version() answers the
// version of the library it runs with. The build reads its project version from these lines.
#define KESTOTOOL_VERSION_MAJOR 0
#define KESTOTOOL_VERSION_MINOR 1
#define KESTOTOOL_VERSION_PATCH 0
#define KESTOTOOL_VERSION_STRING "0.1.0"

namespace KestoTool {

// "major.minor.patch" of the loaded libKestoTool.
KESTO_API const char* Version();

} // namespace KestoTool
