#pragma once

#include <kestotool/gdi/VectorDrawing.h>

// A motif of our own for vector fills, 40000 units square: a gold-to-orange disc, a navy diamond
// over it and a teal corner that shows which way up the tile is.
KestoKernel::RefPtr<const KestoGDI::VectorDrawing> SampleMotif();
