#include "kestotool/platform/CXTPCommandBars.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/platform/CXTPControlPopupColor.h"

#include <gtest/gtest.h>

using namespace KestoPlatform;

TEST(CommandBars, AddMakesTheControlClassOfEachType)
{
    CXTPCommandBars bars;
    EXPECT_NE(dynamic_cast<CXTPControlComboBox*>(bars.Add(XTPControlType::ComboBox, 7)), nullptr);
    EXPECT_NE(dynamic_cast<CXTPControlPopupColor*>(bars.Add(XTPControlType::PopupColor, 8)), nullptr);
    EXPECT_NE(dynamic_cast<CXTPControlButton*>(bars.Add(XTPControlType::Button, 9)), nullptr);
    EXPECT_EQ(bars.Add(nullptr), nullptr);
    EXPECT_EQ(bars.GetCount(), 3);
    EXPECT_EQ(bars.FindControl(8)->GetType(), XTPControlType::PopupColor);
    EXPECT_EQ(bars.FindControl(10), nullptr);
    EXPECT_EQ(bars.GetAt(3), nullptr);
}

TEST(CommandBars, ComboItemsCarryDataAndBadIndicesChangeNothing)
{
    CXTPControlComboBox combo;
    EXPECT_EQ(combo.AddString(L"Linear"), 0);
    EXPECT_EQ(combo.AddString(L"Radial"), 1);
    combo.SetItemData(1, 5);
    combo.SetItemData(2, 99);
    EXPECT_EQ(combo.GetItemData(1), 5);
    EXPECT_EQ(combo.GetItemData(2), 0);
    EXPECT_EQ(combo.GetLBText(0), CString(L"Linear"));
    combo.SetCurSel(1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    combo.SetCurSel(2);
    EXPECT_EQ(combo.GetCurSel(), -1);
    combo.SetCurSel(0);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetCurSel(), -1);
}

TEST(CommandBars, PreferredIconSizeFollowsTheScreen)
{
    const struct {
        int dpi;
        int side;
    } rows[] = {{96, 16}, {120, 20}, {144, 24}, {192, 32}, {72, 16}, {0, 16}};
    for (const auto& row : rows)
        EXPECT_EQ(CXTPImageManager::GetPreferredIconSizeforDPI(row.dpi), CSize(row.side, row.side)) << row.dpi;
}
