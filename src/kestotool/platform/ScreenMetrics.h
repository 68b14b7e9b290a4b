#pragma once

#include "kestotool/platform/Export.h"

// The screen facts a back end answers. Headless, and until a back end sets them, the screen
// has 96 pixels per logical inch.
namespace KestoPlatform::ScreenMetrics {

KESTO_API int GetLogPixelsX();
KESTO_API void SetLogPixelsX(int dpi);

} // namespace KestoPlatform::ScreenMetrics
