#include "kestotool/tool/Module.h"

#include "kestotool/platform/CResourceModule.h"

#include "kestotool/kernel/VerifyReporter.h"
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/resources/ResourceIds.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

using KestoTool::Module;

namespace {

class ModuleTest : public testing::Test {
protected:
    void SetUp() override
    {
        // Whatever the build's umask, the fixture module is writable by its owner only.
        std::filesystem::permissions(KESTO_TEST_LOC_MODULE,
                                     std::filesystem::perms::group_write | std::filesystem::perms::others_write,
                                     std::filesystem::perm_options::remove);
    }
    void TearDown() override { Module::Get().UseBuiltInResources(); }
};

// A copy of the fixture module in a fresh folder, cut to size bytes (all of it for -1).
std::string CopyOfModule(const char* name, std::intmax_t size = -1)
{
    const auto folder = std::filesystem::temp_directory_path() / ("kesto-module-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    const auto copy = folder / name;
    std::filesystem::copy_file(KESTO_TEST_LOC_MODULE, copy, std::filesystem::copy_options::overwrite_existing);
    if (size >= 0)
        std::filesystem::resize_file(copy, static_cast<std::uintmax_t>(size));
    return copy.string();
}

} // namespace

TEST_F(ModuleTest, BuiltInTextsAreExactToTheByte)
{
    Module& m = Module::Get();
    EXPECT_FALSE(m.IsLocalised()); // none lies beside the library in the build tree
    EXPECT_EQ(m.LoadString(117), KestoPlatform::CString(L"original"));
    EXPECT_EQ(m.LoadString(116).Str(), L"Edit the selected object's fill properties.\nFill editor dialog\nEdit Fill");
    EXPECT_EQ(m.LoadString(124).Str(), L"Adjust the transparency/opacity \rof the selected handle.\nHandle Opacity");
    EXPECT_NE(m.LoadString(111).Str().find(L"selection.  Drag"), std::wstring::npos);
    EXPECT_NE(m.LoadString(164).Str().find(L"onto to handle"), std::wstring::npos);
    EXPECT_EQ(m.LoadString(25496).Str(), L"Spacing Mode");
}

TEST_F(ModuleTest, UnknownIdsHaveNoText)
{
    KestoPlatform::CString out(L"untouched");
    EXPECT_FALSE(Module::Get().LoadString(99, out));
    EXPECT_EQ(out, KestoPlatform::CString(L"untouched"));
    EXPECT_TRUE(Module::Get().LoadString(175).IsEmpty());
    EXPECT_TRUE(Module::Get().LoadString(25497).IsEmpty());
}

TEST_F(ModuleTest, LocalisedModuleTextsReplaceBuiltInOnes)
{
    Module& m = Module::Get();
    ASSERT_TRUE(m.UseLocalisedModule(KESTO_TEST_LOC_MODULE));
    EXPECT_TRUE(m.IsLocalised());
    EXPECT_EQ(m.LoadString(117), KestoPlatform::CString(L"Original"));
    EXPECT_EQ(m.LoadString(123), KestoPlatform::CString(L"F\u00fcllung drehen"));
    EXPECT_EQ(m.LoadString(131), KestoPlatform::CString(L"Rotate Transparency")); // not translated
    // A dialog's texts are the module's where it has them; its layout stays the library's.
    const KestoPlatform::DialogTemplate* dialog = m.LoadDialogTemplate(KestoTool::IDD_SOLID_TRANSPARENCY);
    ASSERT_NE(dialog, nullptr);
    ASSERT_EQ(dialog->items.back().id, KestoPlatform::IDCANCEL);
    EXPECT_EQ(dialog->items.back().text, L"Abbrechen");
    EXPECT_EQ(dialog->caption, L"Transparency");
    m.UseBuiltInResources();
    EXPECT_EQ(m.LoadString(117), KestoPlatform::CString(L"original"));
    const KestoPlatform::DialogTemplate* english = m.LoadDialogTemplate(KestoTool::IDD_SOLID_TRANSPARENCY);
    EXPECT_EQ(english->items.back().text, L"Cancel");
    for (std::size_t i = 0; i < english->items.size(); ++i)
        EXPECT_EQ(english->items[i].rect, dialog->items[i].rect) << i;
    EXPECT_EQ(dialog->items.back().text, L"Abbrechen"); // a dialog made before keeps its texts
}

TEST_F(ModuleTest, MissingLocalisedModuleKeepsTheCurrentResources)
{
    Module& m = Module::Get();
    EXPECT_FALSE(m.UseLocalisedModule("/nonexistent/libKestoToolLoc.so"));
    EXPECT_FALSE(m.IsLocalised());
    EXPECT_EQ(m.LoadString(117), KestoPlatform::CString(L"original"));
}

TEST_F(ModuleTest, TheLibraryJoinsTheResourceChainWhenLoaded)
{
    EXPECT_TRUE(KestoPlatform::CResourceModule::IsInChain(&Module::Get()));
    KestoPlatform::CString text;
    ASSERT_TRUE(KestoPlatform::CResourceModule::FindString(123, text));
    EXPECT_EQ(text, KestoPlatform::CString(L"Rotate Fill"));
    EXPECT_NE(Module::GetLibraryPath().find(L"libKestoTool.so"), std::wstring::npos);
}

TEST_F(ModuleTest, ABrokenOrOpenModuleIsCheckedBeforeLoadingAndReportedOnce)
{
    Module& m = Module::Get();
    const auto whole = std::filesystem::file_size(KESTO_TEST_LOC_MODULE);
    const struct {
        const char* name;
        std::intmax_t size;
        bool groupWritable;
    } rows[] = {
        {"header only", 64, false},
        {"half copied", static_cast<std::intmax_t>(whole / 2), false},
        {"writable by the group", -1, true},
    };
    for (const auto& row : rows) {
        std::vector<KestoKernel::VerifyReport> reports;
        KestoKernel::ScopedVerifyHandler recorder([&](const KestoKernel::VerifyReport& r) { reports.push_back(r); });
        const std::string path = CopyOfModule("libKestoToolLoc.so", row.size);
        if (row.groupWritable)
            std::filesystem::permissions(path, std::filesystem::perms::group_write, std::filesystem::perm_options::add);
        EXPECT_FALSE(m.UseLocalisedModule(path)) << row.name;
        EXPECT_FALSE(m.IsLocalised()) << row.name;
        EXPECT_EQ(m.LoadString(117), KestoPlatform::CString(L"original")) << row.name;
        ASSERT_EQ(reports.size(), 1u) << row.name;
        EXPECT_NE(reports[0].hint.find(path), std::string::npos) << row.name;
    }
    EXPECT_TRUE(m.UseLocalisedModule(CopyOfModule("whole.so"))) << "an intact copy loads";
}
