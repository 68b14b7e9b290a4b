#include "kestotool/platform/CString.h"

#include <cstdarg>
#include <cstdint>
#include <cwchar>
#include <cwctype>
#include <vector>

namespace KestoPlatform {
namespace {

// Wide format strings here follow the classic platform: %s and %c take wide arguments and %S a
// narrow string. The C library reads them the other way round, so translate each conversion.
std::wstring ToCLibraryFormat(const wchar_t* format)
{
    std::wstring out;
    for (const wchar_t* p = format; *p; ++p) {
        out += *p;
        if (*p != L'%')
            continue;
        if (p[1] == L'%') {
            out += *++p;
            continue;
        }
        // Copy flags, width, precision and length up to the conversion letter.
        bool sized = false;
        while (p[1] && std::wcschr(L"-+ #0123456789.*hlLqjzt", p[1])) {
            sized = sized || std::wcschr(L"hlLqjzt", p[1]) != nullptr;
            out += *++p;
        }
        if (!p[1])
            break;
        const wchar_t conversion = *++p;
        if (!sized && (conversion == L's' || conversion == L'c'))
            out += L'l';
        out += conversion == L'S' ? L's' : conversion == L'C' ? L'c' : conversion;
    }
    return out;
}

} // namespace

void CString::Format(const wchar_t* format, ...)
{
    const std::wstring cFormat = ToCLibraryFormat(format);
    // vswprintf reports only failure, not the length it needed, so grow until it fits.
    std::vector<wchar_t> buffer(256);
    for (;;) {
        va_list args;
        va_start(args, format);
        const int written = std::vswprintf(buffer.data(), buffer.size(), cFormat.c_str(), args);
        va_end(args);
        if (written >= 0) {
            m_text.assign(buffer.data(), static_cast<std::size_t>(written));
            return;
        }
        if (buffer.size() >= (1u << 24)) {
            m_text.clear();
            return;
        }
        buffer.resize(buffer.size() * 4);
    }
}

CString& CString::TrimLeft()
{
    std::size_t i = 0;
    while (i < m_text.size() && std::iswspace(static_cast<wint_t>(m_text[i])))
        ++i;
    m_text.erase(0, i);
    return *this;
}

CString& CString::TrimRight()
{
    std::size_t n = m_text.size();
    while (n > 0 && std::iswspace(static_cast<wint_t>(m_text[n - 1])))
        --n;
    m_text.resize(n);
    return *this;
}

std::string CString::ToUtf8() const
{
    std::string out;
    for (const wchar_t wc : m_text) {
        auto c = static_cast<std::uint32_t>(wc);
        if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
            c = 0xFFFD;
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

CString CString::FromUtf8(std::string_view utf8)
{
    std::wstring out;
    std::size_t i = 0;
    while (i < utf8.size()) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        const int extra = lead < 0x80           ? 0
                          : (lead >> 5) == 0x6  ? 1
                          : (lead >> 4) == 0xE  ? 2
                          : (lead >> 3) == 0x1E ? 3
                                                : -1;
        std::uint32_t c = extra == 0 ? lead : extra == 1 ? lead & 0x1Fu : extra == 2 ? lead & 0x0Fu : lead & 0x07u;
        bool valid = extra >= 0 && i + static_cast<std::size_t>(extra) < utf8.size();
        for (int k = 1; valid && k <= extra; ++k) {
            const auto next = static_cast<unsigned char>(utf8[i + static_cast<std::size_t>(k)]);
            valid = (next & 0xC0) == 0x80;
            c = (c << 6) | (next & 0x3Fu);
        }
        if (!valid) {
            out += L'\uFFFD';
            ++i;
            continue;
        }
        out += static_cast<wchar_t>(c);
        i += static_cast<std::size_t>(extra) + 1;
    }
    return CString(std::move(out));
}

int CString::FindOneOf(const wchar_t* characters) const
{
    const auto at = m_text.find_first_of(characters);
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

} // namespace KestoPlatform
