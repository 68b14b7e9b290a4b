#pragma once

#include "platform/CXTPCommandBars.h"

namespace KestoTool {

// The key under which the fill tools allocate their command IDs: compared by address, so
// everyone passes this one constant.
extern const wchar_t* const FillToolKey;
// How many command IDs the fill tools use (their own numbers 0..21).
constexpr int FillToolCommandCount = 22;

// Once per process: allocates the fill tools' range, then (given bars) puts every image of every
// resolution folder on its command at the bars' image manager's preferred size for that folder.
// A second call does nothing, also after a first call that failed part-way.
void RegisterFillToolImagesOnce(Platform::CXTPCommandBars* bars);

// The registration itself, for the commands whose IDs start at start.
void RegisterFillToolImages(Platform::CXTPImageManager& images, int start);

} // namespace KestoTool
