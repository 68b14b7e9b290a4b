#pragma once

#include <charconv>
#include <cstdint>
#include <string>
#include <vector>

namespace KestoTool {

// A number as SVG text: the shortest decimal that reads back as the same double.
inline std::string SvgNumber(double value)
{
    char text[32];
    const auto [end, error] = std::to_chars(text, text + sizeof text, value);
    return error == std::errc() ? std::string(text, end) : std::string("0");
}

// Bytes as base64, for data URLs.
inline std::string Base64(const std::vector<std::uint8_t>& bytes)
{
    static constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::uint32_t n = static_cast<std::uint32_t>(bytes[i]) << 16 |
                                (i + 1 < bytes.size() ? static_cast<std::uint32_t>(bytes[i + 1]) << 8 : 0u) |
                                (i + 2 < bytes.size() ? bytes[i + 2] : 0u);
        out += kDigits[n >> 18 & 63];
        out += kDigits[n >> 12 & 63];
        out += i + 1 < bytes.size() ? kDigits[n >> 6 & 63] : '=';
        out += i + 2 < bytes.size() ? kDigits[n & 63] : '=';
    }
    return out;
}

} // namespace KestoTool
