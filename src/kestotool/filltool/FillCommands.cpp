#include "kestotool/filltool/FillCommands.h"

#include "kestotool/tool/ToolIdMap.h"

namespace KestoTool {

const wchar_t* const FillToolKey = L"KestoTool::FillTool";

namespace {

using C = FillControlClass;
using T = KestoPlatform::XTPControlType;
using S = KestoPlatform::XTPButtonStyle;

// The colour commands share the edit-fill image; lock ratio and reset handles share the
// maximum-fit image. The edit buttons show icon and caption; the opacity labels are popups that
// hold their boxes, the boxes unit edits; fit to shape is a split button whose drop-down offers
// the other fits.
// clang-format off
constexpr FillCommandRow kRows[] = {
    {FillCmdContext, 0, nullptr, C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdEdit, 116, L"Edit Fill.png", C::Button, T::Button, S::IconAndCaption, {}, L"Edit Fill", false},
    {FillCmdEditType, 0, nullptr, C::ComboBox, T::ComboBox, S::Automatic, {0, 0, 120, 22}, L"Fill Type", false},
    {FillCmdStart, 119, L"Edit Fill.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdEnd, 120, L"Edit Fill.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdSolid, 118, L"Edit Fill.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdRotateLeft, 122, L"Rotate Anticlockwise.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdRotateRight, 121, L"Rotate Clockwise.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdTransEdit, 130, L"Edit Transparency.png", C::Button, T::Button, S::IconAndCaption, {},
     L"Edit Transparency", false},
    {FillCmdOpacityStart, 128, nullptr, C::Popup, T::Popup, S::Caption, {}, L"Opacity Start:", true},
    {FillCmdOpacityStartHandle, 125, nullptr, C::UnitEdit, T::Edit, S::Automatic, {0, 0, 50, 22}, L"", false},
    {FillCmdOpacityEnd, 129, nullptr, C::Popup, T::Popup, S::Caption, {}, L"Opacity End:", true},
    {FillCmdOpacityEndHandle, 126, nullptr, C::UnitEdit, T::Edit, S::Automatic, {0, 0, 50, 22}, L"", false},
    {FillCmdOpacity, 127, nullptr, C::Popup, T::Popup, S::Caption, {}, L"Opacity:", true},
    {FillCmdOpacityHandle, 124, nullptr, C::UnitEdit, T::Edit, S::Automatic, {0, 0, 50, 22}, L"", false},
    {FillCmdLockRatio, 132, L"Maximum Fit To Shape.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdFitFill, 134, L"Fit To Shape.png", C::SplitButtonPopup, T::SplitButtonPopup, S::Icon, {},
     L"Fit to Shape", true},
    {FillCmdMaxFit, 135, L"Maximum Fit To Shape.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdFitTransparency, 133, L"Fit To Shape.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdResetHandles, 136, L"Maximum Fit To Shape.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdScaleMode, 25493, L"Scale Mode.png", C::None, T::None, S::Automatic, {}, nullptr, false},
    {FillCmdSpaceMode, 25494, L"Space Mode.png", C::None, T::None, S::Automatic, {}, nullptr, false},
};
// clang-format on

constexpr bool InNumberOrder()
{
    for (int i = 0; i < static_cast<int>(std::size(kRows)); ++i) {
        if (kRows[i].number != i)
            return false;
    }
    return true;
}
static_assert(InNumberOrder(), "Find indexes the rows by command number");

} // namespace

std::span<const FillCommandRow> FillCommands::All()
{
    return kRows;
}

const FillCommandRow* FillCommands::Find(int number)
{
    return number >= 0 && number < Count() ? &kRows[number] : nullptr;
}

int FillCommands::HostId(int number)
{
    if (!Find(number))
        return -1;
    const int base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, Count());
    return base < 0 ? -1 : base + number;
}

int FillCommands::CommandOf(int hostId)
{
    const int base = HostId(0);
    return base >= 0 && hostId >= base && hostId - base < Count() ? hostId - base : -1;
}

} // namespace KestoTool
