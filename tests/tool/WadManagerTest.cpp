#include "kestotool/tool/WadManager.h"

#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <vector>

using KestoTool::WadManager;

namespace {

std::vector<char> ReadFile(const char* path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::wstring Wide(const char* s)
{
    return Platform::CString::FromUtf8(s).Str();
}

} // namespace

TEST(WadManager, DpiSnapsToTheLargestFolderNotAbove)
{
    WadManager& wad = WadManager::GetInstance();
    const struct {
        int screen;
        int folder;
    } rows[] = {{110, 96}, {144, 144}, {300, 192}, {72, 96}, {120, 120}, {191, 144}};
    for (const auto& row : rows) {
        wad.SetDpi(row.screen);
        EXPECT_EQ(wad.GetDpi(), row.folder) << row.screen;
    }
    wad.SetDpi(96);
}

TEST(WadManager, ArchivePathDropsOneTrailingDOrNFromTheTitle)
{
    EXPECT_EQ(WadManager::ArchivePathFor(L"/opt/k/lib/libKestoTool.so"), L"/opt/k/lib/libKestoTool.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/opt/k/lib/libKestoToolD.so"), L"/opt/k/lib/libKestoTool.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/opt/k/lib/libKestoToolN.so"), L"/opt/k/lib/libKestoTool.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/opt/k/lib/libKestoToold.so"), L"/opt/k/lib/libKestoToold.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/opt/k/lib/libKestoToolDN.so"), L"/opt/k/lib/libKestoToolD.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/usr/lib/libKestoTool.so.0.1.0"), L"/usr/lib/libKestoTool.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/usr/lib/libKestoTool.so.0"), L"/usr/lib/libKestoTool.wad");
    EXPECT_EQ(WadManager::ArchivePathFor(L"/usr/lib/libKesto.Tool2.so"), L"/usr/lib/libKesto.Tool2.wad");
}

TEST(WadManager, ArchiveOfTheBuiltLibraryLiesBesideIt)
{
    EXPECT_EQ(WadManager::GetInstance().ArchivePath(), Wide(KESTO_TEST_ARCHIVE));
}

TEST(WadManager, LoadsEveryFolderAtItsIconSize)
{
    WadManager& wad = WadManager::GetInstance();
    for (const int folder : WadManager::Folders) {
        wad.SetDpi(folder);
        const auto bitmap = wad.LoadImage(L"Edit Fill.png");
        ASSERT_TRUE(bitmap) << folder;
        EXPECT_EQ(bitmap->GetWidth(), folder / 6) << folder;  // 16, 20, 24, 32
        EXPECT_EQ(bitmap->GetHeight(), folder / 6) << folder;
        // The icon is drawn: some pixels are opaque, the corners are clear.
        EXPECT_EQ(bitmap->GetPixel(0, 0) >> 24, 0u);
        EXPECT_EQ(bitmap->GetPixel(folder / 12, folder / 12 + 2) >> 24, 0xFFu);
    }
    wad.SetDpi(96);
    EXPECT_FALSE(wad.LoadImage(L"No Such Icon.png"));
    EXPECT_FALSE(wad.LoadImage(nullptr));
}

TEST(WadManager, BadArchivesAndEntriesGiveNoBitmap)
{
    const std::vector<char> archive = ReadFile(KESTO_TEST_ARCHIVE);
    ASSERT_GT(archive.size(), 100u);
    const wchar_t* entry = L"Icons\\96\\Zoom in.png";
    EXPECT_TRUE(WadManager::LoadFromMemory(archive.data(), archive.size(), entry));

    EXPECT_FALSE(WadManager::LoadFromMemory(archive.data(), archive.size() / 2, entry)) << "truncated";
    std::vector<char> corrupt = archive;
    for (std::size_t i = 0; i < corrupt.size(); i += 7)
        corrupt[i] = static_cast<char>(corrupt[i] ^ 0x5A);
    EXPECT_FALSE(WadManager::LoadFromMemory(corrupt.data(), corrupt.size(), entry)) << "corrupt";
    EXPECT_FALSE(WadManager::LoadFromMemory(archive.data(), archive.size(), L"Icons\\96\\")) << "a folder";
    EXPECT_FALSE(KestoGDI::WadManager().LoadBitmapW(L"/nonexistent/archive.wad", entry));

    const char notPng[] = "GIF89a not a png at all";
    EXPECT_FALSE(WadManager::DecodePng(notPng, sizeof notPng));
}

TEST(WadManager, AbsurdPngDimensionsAreRefusedBeforeDecoding)
{
    // A valid PNG signature and header chunk claiming 100000 x 100000 pixels, no image data.
    const unsigned char header[] = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A,
                                    0, 0, 0, 13, 'I', 'H', 'D', 'R',
                                    0, 1, 0x86, 0xA0, 0, 1, 0x86, 0xA0, 8, 6, 0, 0, 0,
                                    0x00, 0x00, 0x00, 0x00};
    EXPECT_FALSE(WadManager::DecodePng(header, sizeof header));
}

TEST(WadManager, AMissingArchiveIsReportedOnceWithItsPath)
{
    std::vector<Kernel::VerifyReport> reports;
    Kernel::ScopedVerifyHandler recorder([&](const Kernel::VerifyReport& r) { reports.push_back(r); });
    const WadManager& wad = WadManager::GetInstance();
    EXPECT_FALSE(wad.OpenArchiveAt(L"/nonexistent/libKestoTool.wad").IsOpen());
    EXPECT_FALSE(wad.OpenArchiveAt(L"/nonexistent/libKestoTool.wad").Load(L"Icons\\96\\Edit Fill.png"));
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].hint.find("/nonexistent/libKestoTool.wad"), std::string::npos);
    EXPECT_TRUE(wad.OpenArchive().IsOpen());
}
