#pragma once

#include <cstdint>

namespace KestoPlatform {

// An RGB colour value laid out as 0x00BBGGRR: red in the low byte.
using COLORREF = std::uint32_t;

constexpr COLORREF RGB(int r, int g, int b)
{
    return static_cast<COLORREF>((r & 0xFF) | ((g & 0xFF) << 8) | ((b & 0xFF) << 16));
}
constexpr int GetRValue(COLORREF c)
{
    return static_cast<int>(c & 0xFF);
}
constexpr int GetGValue(COLORREF c)
{
    return static_cast<int>((c >> 8) & 0xFF);
}
constexpr int GetBValue(COLORREF c)
{
    return static_cast<int>((c >> 16) & 0xFF);
}

} // namespace KestoPlatform
