#include "tool/Module.h"

#include "platform/CResourceModule.h"

#include <gtest/gtest.h>

using KestoTool::Module;

namespace {

class ModuleTest : public testing::Test {
protected:
    void TearDown() override { Module::Get().UseBuiltInResources(); }
};

} // namespace

TEST_F(ModuleTest, BuiltInTextsAreExactToTheByte)
{
    Module& m = Module::Get();
    EXPECT_FALSE(m.IsLocalised());  // none lies beside the library in the build tree
    EXPECT_EQ(m.LoadString(117), Platform::CString(L"original"));
    EXPECT_EQ(m.LoadString(116).Str(), L"Edit the selected object's fill properties.\nFill editor dialog\nEdit Fill");
    EXPECT_EQ(m.LoadString(124).Str(), L"Adjust the transparency/opacity \rof the selected handle.\nHandle Opacity");
    EXPECT_NE(m.LoadString(111).Str().find(L"selection.  Drag"), std::wstring::npos);
    EXPECT_NE(m.LoadString(164).Str().find(L"onto to handle"), std::wstring::npos);
    EXPECT_EQ(m.LoadString(25496).Str(), L"Spacing Mode");
}

TEST_F(ModuleTest, UnknownIdsHaveNoText)
{
    Platform::CString out(L"untouched");
    EXPECT_FALSE(Module::Get().LoadString(99, out));
    EXPECT_EQ(out, Platform::CString(L"untouched"));
    EXPECT_TRUE(Module::Get().LoadString(175).IsEmpty());
    EXPECT_TRUE(Module::Get().LoadString(25497).IsEmpty());
}

TEST_F(ModuleTest, LocalisedModuleTextsReplaceBuiltInOnes)
{
    Module& m = Module::Get();
    ASSERT_TRUE(m.UseLocalisedModule(KESTO_TEST_LOC_MODULE));
    EXPECT_TRUE(m.IsLocalised());
    EXPECT_EQ(m.LoadString(117), Platform::CString(L"Original"));
    EXPECT_EQ(m.LoadString(123), Platform::CString(L"F\u00fcllung drehen"));
    EXPECT_EQ(m.LoadString(131), Platform::CString(L"Rotate Transparency"));  // not translated
    m.UseBuiltInResources();
    EXPECT_EQ(m.LoadString(117), Platform::CString(L"original"));
}

TEST_F(ModuleTest, MissingLocalisedModuleKeepsTheCurrentResources)
{
    Module& m = Module::Get();
    EXPECT_FALSE(m.UseLocalisedModule("/nonexistent/libKestoToolLoc.so"));
    EXPECT_FALSE(m.IsLocalised());
    EXPECT_EQ(m.LoadString(117), Platform::CString(L"original"));
}

TEST_F(ModuleTest, TheLibraryJoinsTheResourceChainWhenLoaded)
{
    EXPECT_TRUE(Platform::CResourceModule::IsInChain(&Module::Get()));
    Platform::CString text;
    ASSERT_TRUE(Platform::CResourceModule::FindString(123, text));
    EXPECT_EQ(text, Platform::CString(L"Rotate Fill"));
    EXPECT_NE(Module::GetLibraryPath().find(L"libKestoTool.so"), std::wstring::npos);
}
