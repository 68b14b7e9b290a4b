#pragma once

namespace KestoTool {

class FillToolGradient;

// The hint-line strings of the radial and elliptical tools, which share one table (the radial
// tool's lines speak of an elliptical fill where the shared texts do): the ids for a fill and
// for a transparency, for the tool's state.
struct HintIds {
    int fill;
    int transparency;
};

HintIds RoundToolHintIds(const FillToolGradient& tool);

} // namespace KestoTool
