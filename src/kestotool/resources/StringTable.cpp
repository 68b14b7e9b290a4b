#include "kestotool/resources/StringTable_p.h"

#include <algorithm>
#include <iterator>

namespace KestoTool {
namespace {

struct Entry {
    int id;
    const wchar_t* text;
};

// The built-in texts, sorted by id. Misspellings and doubled spaces are part of the texts.
// One text a line, as the texts are searched for.
// clang-format off
constexpr Entry kStrings[] = {
    {100, L"Hold |Ctrl| to centre fill."},
    {101, L"|Drag| to set new a conical fill. |Click| to change selection. Drag colours onto fill radius to add handles."},
    {102, L"|Drag| to move the fill."},
    {103, L"|Drag| to move fill step."},
    {104, L"|Drag| to rotate the fill."},
    {105, L"|Click| to select transparency handle. |Drag| to move transparency step. Drag solid transparencies onto handle to set transparency level."},
    {106, L"|Click| to select transparency handle. |Drag| to rotate the transparency. Drag solid transparencies onto handle to set transparency level."},
    {107, L"|Click| to select transparency handle. |Drag| to move the transparency."},
    {108, L"|Drag| to move transparency step."},
    {109, L"|Drag| to rotate the transparency."},
    {110, L"Hold |Ctrl| to centre transparency."},
    {111, L"|Drag| to set new a conical transparency. |Click| to change selection.  Drag solid transparencies onto fill radius to add handles."},
    {112, L"|Drag| to move the transparency."},
    {113, L"|Click| to select fill handle. |Drag| to move the fill."},
    {114, L"|Click| to select fill handle. |Drag| to rotate the fill. Drag colours onto handle to change colour."},
    {115, L"|Click| to select fill handle. |Drag| to move fill step. Drag colours onto handle to change colour."},
    {116, L"Edit the selected object's fill properties.\nFill editor dialog\nEdit Fill"},
    {117, L"original"},
    {118, L"Adjust the colour of the fill.\nFill Colour"},
    {119, L"Adjust the colour of the fill start handle.\nStart Handle Colour\nStart Colour"},
    {120, L"Adjust the colour of the fill end handle.\nEnd Handle Colour\nEnd Colour"},
    {121, L"Rotate fill/transparency 90 degrees clockwise.\nRotate Right"},
    {122, L"Rotate fill/transparency 90 degrees anti-clockwise.\nRotate Left"},
    {123, L"Rotate Fill"},
    {124, L"Adjust the transparency/opacity \rof the selected handle.\nHandle Opacity"},
    {125, L"Adjust the transparency/opacity \rof the object's start handle.\nStart Handle Opacity"},
    {126, L"Adjust the transparency/opacity \rof the object's end handle.\nEnd Handle Opacity"},
    {127, L"\n\nOpacity:"},
    {128, L"\n\nOpacity Start:"},
    {129, L"\n\nOpacity End:"},
    {130, L"Edit the selected object's transparency.\nTransparency editor dialog\nEdit Transparency"},
    {131, L"Rotate Transparency"},
    {132, L"Maintain the aspect ratio of the \rfill/transparency during rotation.\nLock Ratio"},
    {133, L"Stretch or compress bitmap transparency \rto fit the selected %=ObjectName%.\nStretch to Fit the %=ObjectNameUpper%\nFit to Shape"},
    {134, L"Stretch or compress bitmap fill \rto fit the selected %=ObjectName%.\nStretch to Fit the %=ObjectNameUpper%\nFit to Shape"},
    {135, L"Maintain bitmap aspect ratio \rwhile resizing the bitmap fill to fit %=ObjectName%.\nProportional Stretch to Fit the %=ObjectNameUpper%\nMax Fit to Shape"},
    {136, L"Reset the fill handles to fit the %=ObjectName%.\nReset Handles"},
    {137, L"Hold |Shift| to constrain fill angle. Hold |Ctrl| to centre fill."},
    {138, L"|Drag| to set new a elliptical fill. |Click| to change selection. Drag colours onto fill line to add handles."},
    {139, L"Hold |Shift| to limit to horizontal and vertical dragging."},
    {140, L"|Drag| to move fill step."},
    {141, L"Hold |Shift| to constrain the fill angle. Hold |Ctrl| to maintain aspect ratio."},
    {142, L"Hold |Shift| to constrain the fill angle. Hold |Ctrl| to maintain aspect ratio."},
    {143, L"|Drag| to move fill."},
    {144, L"|Click| to select fill handle. |Drag| to move fill step. Drag colours onto handle to change colour."},
    {145, L"|Drag| to adjust shape of elliptical fill"},
    {146, L"|Drag| to adjust shape of elliptical fill"},
    {147, L"Hold |Shift| to constrain fill angle. Hold |Ctrl| to move the start of the fill to the left centre."},
    {148, L"|Drag| to create a new linear fill. |Click| to change selection. Drag colours onto fill line to add handles."},
    {149, L"Hold |Shift| to constrain the angle of the fill."},
    {150, L"Hold |Shift| to constrain transparency angle. Hold |Ctrl| to centre transparency."},
    {151, L"|Drag| to set new a elliptical transparency. |Click| to change selection.  Drag solid transparencies onto transparency line to add handles."},
    {152, L"Hold |Shift| to limit to horizontal and vertical dragging."},
    {153, L"|Drag| to move transparency step."},
    {154, L"Hold |Shift| to constrain the transparency angle. Hold |Ctrl| to maintain aspect ratio."},
    {155, L"Hold |Shift| to constrain the transparency angle. Hold |Ctrl| to maintain aspect ratio."},
    {156, L"|Drag| to move transparency."},
    {157, L"|Click| to select transparency handle. |Drag| to move transparency step. Drag solid transparencies onto handle to set transparency level."},
    {158, L"|Drag| to adjust shape of elliptical transparency"},
    {159, L"|Drag| to adjust shape of elliptical transparency"},
    {160, L"Hold |Shift| to constrain transparency angle. Hold |Ctrl| to move the start of the transparency to the left centre."},
    {161, L"|Drag| to adjust length and angle of the transparency. Drag solid transparencies onto transparency line to add handles."},
    {162, L"Hold |Shift| to constrain the angle of the transparency."},
    {163, L"|Drag| to move transparency handle."},
    {164, L"|Drag| to adjust length and angle of the transparency. Drag solid transparencies onto to handle to set transparency level."},
    {165, L"|Drag| to move transparency handle. Drag solid transparencies onto to handle to set transparency level."},
    {166, L"|Drag| to create a linear transparency. |Click| to change selection."},
    {167, L"|Drag| to move fill handle."},
    {168, L"|Drag| to adjust length and angle of the fill. Drag colours on to fill handle to adjust fill."},
    {169, L"|Drag| to move fill handle. Drag colours on to fill handle to adjust fill."},
    {170, L"|Drag| to create a linear fill. |Click| to change selection."},
    {171, L"Zoom preview in"},
    {172, L"Zoom preview out"},
    {173, L"Show / Hide Preview"},
    {174, L"Zoom to Fit"},
    {25493, L"Fill handles will scale, rotate and skew in this mode\nScaling Mode"},
    {25494, L"Fill handles will adjust spacing between instances of the objects in the fill\nSpacing Mode"},
    {25495, L"Scaling Mode"},
    {25496, L"Spacing Mode"},
};
// clang-format on

} // namespace

const wchar_t* FindBuiltInString(int id)
{
    const auto it = std::lower_bound(std::begin(kStrings), std::end(kStrings), id,
                                     [](const Entry& e, int key) { return e.id < key; });
    return it != std::end(kStrings) && it->id == id ? it->text : nullptr;
}

} // namespace KestoTool
