#pragma once

#include "raster/Paint.h"

namespace KestoRaster {

// The one compositing step a host needs to show a fill with its transparency: inside the clip,
// destination = (fill x mask) over destination, premultiplied source-over. fill is an Argb32
// target of the destination's size and mask, when given, a Mask8 one (none: fully covered).
void CompositeOver(const Target& destination, const Target& fill, const Target* mask, const Clip& clip);

} // namespace KestoRaster
