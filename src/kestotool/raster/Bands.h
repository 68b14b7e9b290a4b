#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/raster/PreparedPaint.h"

namespace KestoRaster {

// Render on every core: the clip is cut into bands of rows, which the calling thread and a pool
// of worker threads render at once. Rows are independent, so the pixels are those Render gives
// on one thread. A clip too small to pay for the threads is rendered on the calling thread.
// Any thread may call it, several at once; each call finishes its own bands.
KESTO_API void RenderInBands(const PreparedPaint& paint, const Target& target, const Clip& clip);

// The threads a call may use, the calling one among them: 1 renders on the calling thread
// alone; 0 (the default) the hardware's count.
KESTO_API void SetRenderThreads(int count);
KESTO_API int RenderThreads();

} // namespace KestoRaster
