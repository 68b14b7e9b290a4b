#pragma once

#include "kestotool/platform/CXTPCommandBars.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// Once per process: allocates the fill tools' range, then (given bars) puts every image of every
// resolution folder on its command at the bars' image manager's preferred size for that folder.
// A second call does nothing, also after a first call that failed part-way.
KESTO_API void RegisterFillToolImagesOnce(Platform::CXTPCommandBars* bars);

// The registration itself, for the commands whose IDs start at start. The image archive is
// opened once for all the images.
KESTO_API void RegisterFillToolImages(Platform::CXTPImageManager& images, int start);

} // namespace KestoTool
