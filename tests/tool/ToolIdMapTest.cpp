#include "kestotool/tool/ToolIdMap.h"

#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

#include <limits>

#include <string>
#include <vector>

using KestoTool::ToolIdMap;

namespace {

const wchar_t kKey1[] = L"k1";
const wchar_t kKey2[] = L"k2";
const wchar_t kKey3[] = L"k3";

class ToolIdMapTest : public testing::Test {
protected:
    KestoKernel::ScopedVerifyHandler recorder{[this](const KestoKernel::VerifyReport& r) { reports.push_back(r); }};
    std::vector<KestoKernel::VerifyReport> reports;
    ToolIdMap map;

    std::vector<int> Lines() const
    {
        std::vector<int> lines;
        for (const auto& r : reports)
            lines.push_back(r.line);
        return lines;
    }
};

} // namespace

TEST_F(ToolIdMapTest, AllocationHandsOutConsecutiveRangesUntilTheLimit)
{
    map.Init(1000, 1100);
    EXPECT_EQ(map.AllocateRange(kKey1, 22), 1000);
    EXPECT_EQ(map.AllocateRange(kKey2, 50), 1022);
    EXPECT_EQ(map.AllocateRange(kKey3, 29), -1); // 1072 + 29 > 1100
    EXPECT_EQ(Lines(), std::vector<int>{43});
    EXPECT_EQ(map.AllocateRange(kKey3, 28), 1072);
    EXPECT_TRUE(map.RangeAllocated(kKey3));
}

TEST_F(ToolIdMapTest, RepeatedKeyGetsItsFirstRangeWhateverCountItAsks)
{
    map.Init(1000, 1100);
    EXPECT_EQ(map.AllocateRange(kKey1, 22), 1000);
    EXPECT_EQ(map.AllocateRange(kKey1, 5), 1000);
    EXPECT_EQ(map.AllocateRange(kKey1, 500), 1000);
    EXPECT_EQ(map.AllocateRange(kKey2, 1), 1022); // next was left alone
    EXPECT_TRUE(reports.empty());
}

TEST_F(ToolIdMapTest, KeysAreAddressesNotTexts)
{
    map.Init(1000, 1100);
    map.AllocateRange(kKey1, 22);
    const std::wstring sameText = L"k1";
    EXPECT_FALSE(map.RangeAllocated(sameText.c_str()));
    EXPECT_EQ(map.MapIDToApp(sameText.c_str(), 3), -1);
    EXPECT_EQ(Lines(), std::vector<int>{97});
}

TEST_F(ToolIdMapTest, AllocationBeforeInitFailsWithItsReport)
{
    EXPECT_EQ(map.AllocateRange(kKey1, 1), -1);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].message, "Verify failed");
    EXPECT_EQ(reports[0].module, "KestoUiGdi");
    EXPECT_EQ(reports[0].file, "ToolIdMap.cpp");
    EXPECT_EQ(reports[0].line, 29);
}

struct MapRow {
    const char* name;
    bool toApp;
    int in;
    int out;
};

TEST_F(ToolIdMapTest, MappingIsRelativeToTheMapBaseAndBoundedByTheRange)
{
    map.Init(1000, 1100);
    map.AllocateRange(kKey1, 22);
    map.AllocateRange(kKey2, 50);
    const MapRow rows[] = {
        {"id to the map base, not the range start", true, 3, 1003},
        {"id at the count", true, 50, -1},
        {"zero means no command", true, 0, 0},
        {"negative id has no lower bound", true, -5, 995},
        {"app id back", false, 1003, 3},
        {"app id below base", false, 999, -1},
        {"app id past the count", false, 1050, -1},
        {"app zero", false, 0, 0},
    };
    for (const auto& row : rows) {
        const int out = row.toApp ? map.MapIDToApp(kKey2, row.in) : map.MapIDToLibrary(kKey2, row.in);
        EXPECT_EQ(out, row.out) << row.name;
    }
    EXPECT_TRUE(reports.empty());
}

TEST_F(ToolIdMapTest, UnknownKeysReportTheirDirectionsLines)
{
    map.Init(1000, 1100);
    EXPECT_EQ(map.MapIDToLibrary(kKey1, 1003), -1);
    EXPECT_EQ(map.MapIDToApp(kKey1, 3), -1);
    EXPECT_EQ(map.MapIDToApp(kKey1, 0), 0); // no look-up, no report
    EXPECT_FALSE(map.RangeAllocated(kKey1));
    EXPECT_EQ(Lines(), (std::vector<int>{70, 97}));
}

TEST_F(ToolIdMapTest, ReInitKeepsRangesAndCopiesAreIndependent)
{
    map.Init(1000, 1100);
    map.AllocateRange(kKey1, 22);
    map.Init(2000, 2100);
    EXPECT_EQ(map.AllocateRange(kKey1, 22), 1000);
    EXPECT_EQ(map.AllocateRange(kKey2, 10), 2022); // next survived Init

    ToolIdMap copy = map;
    copy.AllocateRange(kKey3, 1);
    EXPECT_TRUE(copy.RangeAllocated(kKey3));
    EXPECT_FALSE(map.RangeAllocated(kKey3));
}

TEST_F(ToolIdMapTest, HugeGrantDoesNotWrap)
{
    map.Init(2147483000, 2147483647);
    EXPECT_EQ(map.AllocateRange(kKey1, 600), 2147483000);
    EXPECT_EQ(map.AllocateRange(kKey2, 100), -1);
}

TEST_F(ToolIdMapTest, NegativeCountsAndWholeIntGrantsStayInsideTheGrant)
{
    map.Init(500, 600);
    EXPECT_EQ(map.AllocateRange(kKey1, -50), -1);
    EXPECT_EQ(map.AllocateRange(kKey2, 100), 500) << "a refused negative count moves nothing";
    EXPECT_EQ(Lines(), std::vector<int>{43});

    ToolIdMap whole;
    whole.Init(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_EQ(whole.AllocateRange(kKey1, most - 5), std::numeric_limits<int>::min());
    EXPECT_EQ(whole.AllocateRange(kKey2, most), -6);
    EXPECT_EQ(whole.AllocateRange(kKey3, 7), -1) << "six IDs are left";
    EXPECT_EQ(whole.MapIDToApp(kKey1, -5), -1) << "no int below the base";
}

TEST(ToolIdMapInit, HostInitSetsTheProcessWideMap)
{
    KestoTool::Init(5000, 5100);
    static const wchar_t key[] = L"init-test";
    EXPECT_EQ(ToolIdMap::GetInstance().AllocateRange(key, 10) >= 5000, true);
    EXPECT_EQ(&ToolIdMap::GetInstance(), &ToolIdMap::GetInstance());
}
