#pragma once

#include "kestotool/gdi/CLtBitmap.h"
#include "kestotool/platform/CXTPCommandBars.h"
#include "kestotool/platform/ColourRef.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// A bitmap of the image archive as a command image.
KESTO_API KestoPlatform::XTPImage ToXTPImage(const KestoGDI::CLtBitmap& bitmap);
// An image of the archive's folder for the screen's resolution ("Zoom in.png"); empty when the
// archive lacks it.
KESTO_API KestoPlatform::XTPImage LoadXTPImage(const wchar_t* name);

// A square of one colour, side pixels wide: the swatch of a colour button.
KESTO_API KestoPlatform::XTPImage SwatchImage(KestoPlatform::COLORREF colour, int side);

// Once per process: allocates the fill tools' range, then (given bars) puts every image of every
// resolution folder on its command at the bars' image manager's preferred size for that folder.
// A second call does nothing, also after a first call that failed part-way.
KESTO_API void RegisterFillToolImagesOnce(KestoPlatform::CXTPCommandBars* bars);

// The registration itself, for the commands whose IDs start at start. The image archive is
// opened once for all the images.
KESTO_API void RegisterFillToolImages(KestoPlatform::CXTPImageManager& images, int start);

} // namespace KestoTool
