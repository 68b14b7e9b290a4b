#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolImages.h"

#include "kestotool/tool/ToolIdMap.h"

#include <gtest/gtest.h>

using KestoPlatform::CSize;
using KestoPlatform::CXTPImageManager;
using KestoPlatform::XTPImageState;

TEST(FillToolImages, EveryImagedCommandGetsAnImageAtEachFoldersSize)
{
    CXTPImageManager images;
    KestoTool::RegisterFillToolImages(images, 3000);
    const int imaged[] = {1, 3, 4, 5, 6, 7, 8, 15, 16, 17, 18, 19, 20, 21};
    const int plain[] = {0, 2, 9, 10, 11, 12, 13, 14};
    for (const int side : {16, 20, 24, 32}) {
        for (const int offset : imaged) {
            const auto* image = images.GetImage(3000 + offset, CSize(side, side));
            ASSERT_NE(image, nullptr) << offset << " at " << side;
            EXPECT_EQ(image->width, side);
        }
        for (const int offset : plain)
            EXPECT_EQ(images.GetImage(3000 + offset, CSize(side, side)), nullptr) << offset;
    }
    EXPECT_EQ(images.GetImageCount(), 14 * 4);
}

TEST(FillToolImages, SharedImagesArePairedAsTheTableSays)
{
    CXTPImageManager images;
    KestoTool::RegisterFillToolImages(images, 0);
    const CSize s(24, 24);
    const auto same = [&](int a, int b) { return images.GetImage(a, s)->argb == images.GetImage(b, s)->argb; };
    EXPECT_TRUE(same(1, 3)); // colour commands reuse the edit-fill image
    EXPECT_TRUE(same(1, 5));
    EXPECT_TRUE(same(15, 19)); // lock ratio and reset handles reuse maximum fit
    EXPECT_TRUE(same(16, 18));
    EXPECT_FALSE(same(1, 8));
    EXPECT_FALSE(same(6, 7));
    EXPECT_FALSE(same(20, 21));
}

TEST(FillToolImages, TheRangeIsAllocatedEvenWithoutBars)
{
    KestoTool::Init(41000, 41100);
    KestoTool::RegisterFillToolImagesOnce(nullptr);
    EXPECT_TRUE(KestoTool::ToolIdMap::GetInstance().RangeAllocated(KestoTool::FillToolKey));
}

TEST(FillToolImages, RegistrationRunsOncePerProcessUnderTheFillToolKey)
{
    KestoTool::Init(40000, 40100);
    KestoPlatform::CXTPCommandBars bars;
    KestoTool::RegisterFillToolImagesOnce(&bars);
    const int start = KestoTool::ToolIdMap::GetInstance().AllocateRange(KestoTool::FillToolKey, 22);
    ASSERT_NE(start, -1);
    EXPECT_NE(bars.GetImageManager()->GetImage(start + 1, CSize(16, 16)), nullptr);

    KestoPlatform::CXTPCommandBars again;
    KestoTool::RegisterFillToolImagesOnce(&again);
    EXPECT_EQ(again.GetImageManager()->GetImageCount(), 0);
}
