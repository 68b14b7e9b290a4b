#pragma once

#include <charconv>
#include <string>

namespace KestoTool {

// A number as SVG text: the shortest decimal that reads back as the same double.
inline std::string SvgNumber(double value)
{
    char text[32];
    const auto [end, error] = std::to_chars(text, text + sizeof text, value);
    return error == std::errc() ? std::string(text, end) : std::string("0");
}

} // namespace KestoTool
