#pragma once

namespace KestoTool {

// The fill tools' own command numbers. Hosts see them moved into their granted band through
// ToolIdMap under FillToolKey; the library dispatches on these.
enum FillCommand : int {
    FillCmdContext = 0,
    FillCmdEdit = 1,
    FillCmdEditType = 2,   // the fill-type combo box
    FillCmdStart = 3,      // colour of the start node
    FillCmdEnd = 4,        // colour of the end node
    FillCmdSolid = 5,      // colour of the selected node
    FillCmdRotateLeft = 6,
    FillCmdRotateRight = 7,
    FillCmdTransEdit = 8,
    FillCmdOpacityStart = 9,
    FillCmdOpacityStartHandle = 10,
    FillCmdOpacityEnd = 11,
    FillCmdOpacityEndHandle = 12,
    FillCmdOpacity = 13,
    FillCmdOpacityHandle = 14,
    FillCmdLockRatio = 15,
    FillCmdFitFill = 16,
    FillCmdMaxFit = 17,
    FillCmdFitTransparency = 18,
    FillCmdResetHandles = 19,
    FillCmdScaleMode = 20,
    FillCmdSpaceMode = 21,
};

} // namespace KestoTool
