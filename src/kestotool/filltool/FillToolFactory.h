#pragma once

#include "kestotool/filltool/FillTool.h"
#include "kestotool/platform/Export.h"

#include <memory>

namespace KestoTool {

// Builds the on-canvas tool that edits a fill: by the fill's kind, linear (4), radial (5),
// three-colour (6), four-colour (7), plasma (8), square (9), elliptical (10), conical (11),
// bitmap (12) and vector (14) fills and transparencies each get their tool; none, solid and
// discrete-mesh fills get none. The host and the editor dialogs build their tools here.
class KESTO_API FillToolFactory {
public:
    FillToolFactory() = delete;

    // A new tool with its own copy of fill and site as its host; null for a kind without a
    // tool (or no fill).
    static std::unique_ptr<FillTool> Create(const CFill* fill, IToolSite* site);
    // The same tool as FillToolWrapper<Tool>, as the editor dialogs hold them.
    static std::unique_ptr<FillTool> CreateWrapped(const CFill* fill, IToolSite* site);
    // Whether the fill's kind has a tool (false for no fill).
    static bool HasTool(const CFill* fill);
};

} // namespace KestoTool
