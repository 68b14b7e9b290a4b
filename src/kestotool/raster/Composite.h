#pragma once

#include "kestotool/platform/Export.h"
#include "kestotool/raster/Paint.h"

namespace KestoRaster {

// The one compositing step a host needs to show a fill with its transparency: inside the clip,
// destination = (fill x mask) over destination, premultiplied source-over. fill is an Argb32
// target of the destination's size and mask, when given, a Mask8 one (none: fully covered).
KESTO_API void CompositeOver(const Target& destination, const Target& fill, const Target* mask, const Clip& clip);

// A premultiplied 0xAARRGGBB word with straight alpha instead (as PNG files and bitmaps keep
// colours): each channel c becomes c x 255 / alpha rounded, at most 255; clear stays 0.
KESTO_API std::uint32_t Straight(std::uint32_t premultiplied);

} // namespace KestoRaster
