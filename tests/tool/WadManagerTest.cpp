#include "kestotool/tool/WadManager.h"

#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
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
    return KestoPlatform::CString::FromUtf8(s).Str();
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
        EXPECT_EQ(bitmap->GetWidth(), folder / 6) << folder; // 16, 20, 24, 32
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
    const unsigned char header[] = {0x89, 'P',  'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A, 0,    0,    0,
                                    13,   'I',  'H', 'D', 'R',  0,    1,    0x86, 0xA0, 0,    1,
                                    0x86, 0xA0, 8,   6,   0,    0,    0,    0x00, 0x00, 0x00, 0x00};
    EXPECT_FALSE(WadManager::DecodePng(header, sizeof header));
}

#if defined(__SANITIZE_ADDRESS__)
// The sanitizer runtime's allocation hooks (declared here: GCC ships no header for them).
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*)(const volatile void*, std::size_t),
                                                         void (*)(const volatile void*));

namespace {

// The largest allocation made while recording, seen through the sanitizer's allocation hooks.
std::atomic<bool> g_recording{false};
std::atomic<std::size_t> g_largest{0};

void OnAllocate(const volatile void*, std::size_t size)
{
    if (g_recording)
        g_largest = std::max(g_largest.load(), size);
}

void OnRelease(const volatile void*) {}

} // namespace
#endif

TEST(WadManager, APngChunkLongerThanTheDataIsRefusedBeforeItIsAllocated)
{
#if defined(__SANITIZE_ADDRESS__)
    // 16 x 16 images whose second chunk, a text chunk, declares 0x73544552 bytes (1.9 GB), or
    // whose third chunk's header, all there is of it, declares 0x58740000 (1.4 GB).
    const std::vector<std::vector<unsigned char>> lies = {
        {
            0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52,
            0x00, 0x00, 0x00, 0x10, 0x00, 0x00, 0x00, 0x10, 0x08, 0x06, 0x00, 0x00, 0x00, 0x1F, 0xF3, 0xFF,
            0x61, 0x73, 0x54, 0x45, 0x52, 0x69, 0x54, 0x58, 0x74, 0x00, 0xFF, 0x00, 0xA7, 0x23, 0x00, 0x10,
            0x01, 0x2E, 0x49, 0x44, 0x00, 0x10, 0x00, 0x00, 0x00, 0x10, 0x08, 0x06, 0x00, 0x00, 0x00, 0x41,
            0x54, 0x01, 0x49, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x3C, 0xAE, 0x42, 0x60, 0x82,
        },
        {
            0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48, 0x44, 0x52,
            0x00, 0x00, 0x00, 0x10, 0x00, 0x00, 0x00, 0x10, 0x08, 0x06, 0x00, 0x00, 0x00, 0x1F, 0xF3, 0xFF,
            0x61, 0x00, 0x00, 0x00, 0x06, 0x65, 0x58, 0x49, 0x66, 0x74, 0x45, 0x58, 0x74, 0x65, 0x58, 0x49,
            0x66, 0x74, 0x45, 0x58, 0x74, 0x00, 0x00, 0x65, 0x58, 0x49, 0x66, 0x74, 0xE1, 0xAE,
        },
    };
    static const bool hooked = __sanitizer_install_malloc_and_free_hooks(&OnAllocate, &OnRelease) != 0;
    ASSERT_TRUE(hooked);
    for (const auto& png : lies) {
        g_largest = 0;
        g_recording = true;
        const auto decoded = WadManager::DecodePng(png.data(), png.size());
        g_recording = false;
        EXPECT_FALSE(decoded);
        EXPECT_LT(g_largest.load(), std::size_t{1} << 20) << png.size() << "-byte image";
    }
#else
    GTEST_SKIP() << "the allocation is watched through AddressSanitizer's hooks";
#endif
}

TEST(WadManager, AMissingArchiveIsReportedOnceWithItsPath)
{
    std::vector<KestoKernel::VerifyReport> reports;
    KestoKernel::ScopedVerifyHandler recorder([&](const KestoKernel::VerifyReport& r) { reports.push_back(r); });
    const WadManager& wad = WadManager::GetInstance();
    EXPECT_FALSE(wad.OpenArchiveAt(L"/nonexistent/libKestoTool.wad").IsOpen());
    EXPECT_FALSE(wad.OpenArchiveAt(L"/nonexistent/libKestoTool.wad").Load(L"Icons\\96\\Edit Fill.png"));
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].hint.find("/nonexistent/libKestoTool.wad"), std::string::npos);
    EXPECT_TRUE(wad.OpenArchive().IsOpen());
}
