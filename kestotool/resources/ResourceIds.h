#pragma once

// Ids of the library's resources: dialog templates, their controls and string-table entries.
namespace KestoTool {

constexpr int IDD_SOLID_TRANSPARENCY = 10464;
constexpr int IDC_SOLID_PREVIEW = 11804;
constexpr int IDC_SOLID_EDIT = 14883;
constexpr int IDC_SOLID_SLIDER = 14887;
constexpr int IDC_SOLID_SPIN = 14890;

// The fill editors and the controls of their preview pane.
constexpr int IDD_GRADIENT_FILL = 25480;
constexpr int IDD_GRADIENT_TRANSPARENCY = 25481;
constexpr int IDD_PLASMA_FILL = 25482;
constexpr int IDD_THREE_FOUR_COLOUR_FILL = 25483;
constexpr int IDD_THREE_FOUR_COLOUR_TRANSPARENCY = 25484;
constexpr int IDD_VECTOR_FILL = 25485;
constexpr int IDC_EDITOR_PREVIEW = 14901;
constexpr int IDC_PREVIEW_ZOOM_IN = 14902;
constexpr int IDC_PREVIEW_ZOOM_OUT = 14903;
constexpr int IDC_PREVIEW_EXPAND = 14904;

constexpr int IDS_TINT_ORIGINAL = 117;

} // namespace KestoTool
