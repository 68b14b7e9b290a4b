#include "kestotool/platform/ScreenMetrics.h"

namespace KestoPlatform::ScreenMetrics {
namespace {
int g_logPixelsX = 96;
} // namespace

int GetLogPixelsX()
{
    return g_logPixelsX;
}

void SetLogPixelsX(int dpi)
{
    g_logPixelsX = dpi;
}

} // namespace KestoPlatform::ScreenMetrics
