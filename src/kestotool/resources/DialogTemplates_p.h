#pragma once

#include "kestotool/platform/DialogTemplate.h"

namespace KestoTool {

// The library's dialog layouts by template id; null for an id it does not have.
const KestoPlatform::DialogTemplate* FindBuiltInDialogTemplate(int id);

} // namespace KestoTool
