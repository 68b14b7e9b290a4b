#pragma once

#include "kestotool/platform/Export.h"

#include <string>
#include <string_view>

namespace KestoPlatform {

// A wide string with the few framework operations the library uses.
class KESTO_API CString {
public:
    CString() = default;
    CString(const wchar_t* text) : m_text(text ? text : L"") {}
    CString(std::wstring text) : m_text(std::move(text)) {}
    // Text from UTF-8 bytes; invalid sequences become U+FFFD.
    static CString FromUtf8(std::string_view utf8);

    // printf-style formatting with wide format strings (%s takes a wide string).
    void Format(const wchar_t* format, ...);
    void Empty() { m_text.clear(); }

    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& TrimLeft();
    CString& TrimRight();

    bool IsEmpty() const { return m_text.empty(); }
    int GetLength() const { return static_cast<int>(m_text.size()); }
    const wchar_t* GetString() const { return m_text.c_str(); }
    const std::wstring& Str() const { return m_text; }
    wchar_t operator[](int i) const { return m_text[static_cast<std::size_t>(i)]; }
    // Index of the first character that is one of the given ones, or -1.
    int FindOneOf(const wchar_t* characters) const;
    // The text as UTF-8, for file names and narrow interfaces.
    std::string ToUtf8() const;

    CString& operator+=(const CString& s)
    {
        m_text += s.m_text;
        return *this;
    }
    friend CString operator+(CString a, const CString& b) { return a += b; }
    friend bool operator==(const CString& a, const CString& b) { return a.m_text == b.m_text; }

private:
    std::wstring m_text;
};

} // namespace KestoPlatform
