#include "kestotool/platform/CString.h"

#include <gtest/gtest.h>

using KestoPlatform::CString;

TEST(CString, FormatWithWideArguments)
{
    CString s;
    s.Format(L"%s%d%%", L"+", 70);
    EXPECT_EQ(s, CString(L"+70%"));
}

TEST(CString, FormatGrowsPastItsFirstBuffer)
{
    const std::wstring longText(5000, L'x');
    CString s;
    s.Format(L"[%s]", longText.c_str());
    EXPECT_EQ(s.GetLength(), 5002);
    EXPECT_EQ(s[1], L'x');
}

TEST(CString, FormatReadsPercentSAsWideAndPercentCapitalSAsNarrow)
{
    CString s;
    s.Format(L"%s|%S|%c|%5.1f|%%", L"wide", "narrow", L'w', 2.25);
    EXPECT_EQ(s, CString(L"wide|narrow|w|  2.2|%"));
}

TEST(CString, TrimRemovesWhitespaceOnBothEnds)
{
    CString s(L" \t 42 \n");
    s.Trim();
    EXPECT_EQ(s, CString(L"42"));
    CString blank(L"   ");
    EXPECT_TRUE(blank.Trim().IsEmpty());
}

TEST(CString, Utf8RoundTripAndInvalidBytes)
{
    const CString text(L"F\u00fcllung \u20ac \U0001F600");
    EXPECT_EQ(text.ToUtf8(), "F\xC3\xBCllung \xE2\x82\xAC \xF0\x9F\x98\x80");
    EXPECT_EQ(CString::FromUtf8(text.ToUtf8()), text);
    EXPECT_EQ(CString::FromUtf8("a\xC3").Str(), L"a\uFFFD");
    EXPECT_EQ(CString::FromUtf8("\xFFz").Str(), L"\uFFFDz");
}
