#pragma once

// Ids of the library's resources: dialog templates, their controls and string-table entries.
namespace KestoTool {

constexpr int IDD_SOLID_TRANSPARENCY = 10464;
constexpr int IDC_SOLID_PREVIEW = 11804;
constexpr int IDC_SOLID_EDIT = 14883;
constexpr int IDC_SOLID_SLIDER = 14887;
constexpr int IDC_SOLID_SPIN = 14890;

constexpr int IDS_TINT_ORIGINAL = 117;

} // namespace KestoTool
