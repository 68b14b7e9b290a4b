#include "kestotool/filltool/RoundToolHints_p.h"

#include "kestotool/filltool/FillToolGradient.h"
#include "kestotool/resources/ResourceIds.h"

namespace KestoTool {

HintIds RoundToolHintIds(const FillToolGradient& tool)
{
    const bool dragging = tool.IsInDrag();
    const int node = tool.GetHintNode();
    if (tool.IsCreate())
        return {IDS_HINT_ROUND_CREATE_FILL, IDS_HINT_ROUND_CREATE_TRANSPARENCY};
    if (node == -1)
        return {IDS_HINT_ROUND_NO_NODE_FILL, IDS_HINT_ROUND_NO_NODE_TRANSPARENCY};
    if (tool.IsFirstNode(node))
        return dragging ? HintIds{IDS_HINT_ROUND_CENTRE_DRAGGING_FILL, IDS_HINT_ROUND_CENTRE_DRAGGING_TRANSPARENCY}
                        : HintIds{IDS_HINT_ROUND_CENTRE_OVER_FILL, IDS_HINT_ROUND_CENTRE_OVER_TRANSPARENCY};
    if (tool.IsLastNode(node))
        return dragging ? HintIds{IDS_HINT_ROUND_RIM_DRAGGING_FILL, IDS_HINT_ROUND_RIM_DRAGGING_TRANSPARENCY}
                        : HintIds{IDS_HINT_ROUND_RIM_OVER_FILL, IDS_HINT_ROUND_RIM_OVER_TRANSPARENCY};
    if (tool.IsExtendedNode(node))
        return dragging ? HintIds{IDS_HINT_ROUND_SHAPE_DRAGGING_FILL, IDS_HINT_ROUND_SHAPE_DRAGGING_TRANSPARENCY}
                        : HintIds{IDS_HINT_ROUND_SHAPE_OVER_FILL, IDS_HINT_ROUND_SHAPE_OVER_TRANSPARENCY};
    return dragging ? HintIds{IDS_HINT_ROUND_INNER_DRAGGING_FILL, IDS_HINT_ROUND_INNER_DRAGGING_TRANSPARENCY}
                    : HintIds{IDS_HINT_ROUND_INNER_OVER_FILL, IDS_HINT_ROUND_INNER_OVER_TRANSPARENCY};
}

} // namespace KestoTool
