#include "kestotool/Version.h"

namespace KestoTool {

const char* Version()
{
    return KESTOTOOL_VERSION_STRING;
}

} // namespace KestoTool
