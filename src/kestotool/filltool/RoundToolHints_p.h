#pragma once

#include "kestotool/filltool/FillTool.h"

namespace KestoTool {

class FillToolGradient;

// The hint-line strings of the radial and elliptical tools, which share one table (the radial
// tool's lines speak of an elliptical fill where the shared texts do), for the tool's state.
HintIds RoundToolHintIds(const FillToolGradient& tool);

} // namespace KestoTool
