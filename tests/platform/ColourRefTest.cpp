#include "platform/ColourRef.h"

#include <gtest/gtest.h>

using namespace Platform;

TEST(ColourRef, LayoutIsBlueGreenRedWithRedInTheLowByte)
{
    static_assert(RGB(0x12, 0x34, 0x56) == 0x00563412u);
    static_assert(GetRValue(0x00563412u) == 0x12);
    static_assert(GetGValue(0x00563412u) == 0x34);
    static_assert(GetBValue(0x00563412u) == 0x56);
    EXPECT_EQ(RGB(255, 255, 255), 0xFFFFFFu);
    // Out-of-range channels are masked, not carried into the next channel.
    EXPECT_EQ(RGB(256, 0, 0), 0u);
}
