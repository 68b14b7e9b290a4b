#pragma once

#include "kestotool/platform/CRect.h"
#include "kestotool/platform/CXTPControl.h"
#include "kestotool/platform/Export.h"

#include <span>

namespace KestoTool {

// The fill tools' own command numbers. Hosts see them moved into their granted band through
// ToolIdMap under FillToolKey; the library dispatches on these.
enum FillCommand : int {
    FillCmdContext = 0,
    FillCmdEdit = 1,
    FillCmdEditType = 2, // the fill-type combo box
    FillCmdStart = 3,    // colour of the start node
    FillCmdEnd = 4,      // colour of the end node
    FillCmdSolid = 5,    // colour of the selected node
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

// The key under which the fill tools allocate their command IDs: compared by address, so
// everyone passes this one constant.
extern KESTO_API const wchar_t* const FillToolKey;

// The toolbar control classes a command's control can be made of; None where the library
// describes no control (the colour commands' controls come from the host's tool helper).
enum class FillControlClass { None, Button, Popup, SplitButtonPopup, ComboBox, UnitEdit };

// Everything the library knows of one command, in one row: its number, the string id of its
// prompt (0: none), its icon in the image archive (null: none), and how to make its control:
// the class, the toolkit type and button style, a rectangle in 96-dpi pixels, a caption, and
// whether it becomes a plain button when made off a toolbar.
struct KESTO_API FillCommandRow {
    FillCommand number;
    int promptId;
    const wchar_t* icon;
    FillControlClass controlClass;
    KestoPlatform::XTPControlType type;
    KestoPlatform::XTPButtonStyle style;
    KestoPlatform::CRect rect;
    const wchar_t* caption;
    bool buttonOffToolbar;
};

// The one command table of the fill tools: image registration, control creation, prompts and
// the size of the ID range all read it.
class KESTO_API FillCommands {
public:
    FillCommands() = delete;

    // One row per command, in number order.
    static std::span<const FillCommandRow> All();
    // How many command IDs the fill tools allocate.
    static int Count() { return static_cast<int>(All().size()); }
    // The row of a command number; null outside 0..Count() - 1.
    static const FillCommandRow* Find(int number);
    // The host's command ID of a command, which its toolbar control and its routing carry (the
    // fill tools' IDs are allocated on first use); -1 before KestoTool::Init or for a number
    // outside 0..Count() - 1.
    static int HostId(int number);
    // The command a host command ID stands for; -1 for an ID outside the fill tools' range.
    static int CommandOf(int hostId);
};

} // namespace KestoTool
