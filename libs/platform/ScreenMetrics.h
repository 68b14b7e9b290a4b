#pragma once

// The screen facts a back end answers. Headless, and until a back end sets them, the screen
// has 96 pixels per logical inch.
namespace Platform::ScreenMetrics {

int GetLogPixelsX();
void SetLogPixelsX(int dpi);

} // namespace Platform::ScreenMetrics
