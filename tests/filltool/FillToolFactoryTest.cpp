#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/filltool/FillToolWrapper.h"

#include "kestotool/filltool/FillToolBitmap.h"
#include "kestotool/filltool/FillToolConical.h"
#include "kestotool/filltool/FillToolElliptical.h"
#include "kestotool/filltool/FillToolFourColour.h"
#include "kestotool/filltool/FillToolLinear.h"
#include "kestotool/filltool/FillToolPlasma.h"
#include "kestotool/filltool/FillToolRadial.h"
#include "kestotool/filltool/FillToolSquare.h"
#include "kestotool/filltool/FillToolThreeColour.h"
#include "kestotool/filltool/FillToolVector.h"
#include "kestotool/gdi/FillKinds.h"
#include "support/TestToolSite.h"

#include <gtest/gtest.h>

#include <map>
#include <typeinfo>
#include <utility>

using namespace KestoTool;

namespace {

// A tool class as the host gets it and as the editor dialogs get it.
using ToolTypes = std::pair<const std::type_info*, const std::type_info*>;
template <class Tool>
ToolTypes Types()
{
    return {&typeid(Tool), &typeid(FillToolWrapper<Tool>)};
}

} // namespace

TEST(FillToolFactory, EachKindGetsItsToolOrNone)
{
    // The kinds whose tools exist; every other kind, fill or transparency, gets no tool.
    const std::map<int, ToolTypes> tools = {
        {KestoGDI::FillType::Linear, Types<FillToolLinear>()},
        {KestoGDI::FillType::Radial, Types<FillToolRadial>()},
        {KestoGDI::FillType::Elliptical, Types<FillToolElliptical>()},
        {KestoGDI::FillType::Conical, Types<FillToolConical>()},
        {KestoGDI::FillType::Square, Types<FillToolSquare>()},
        {KestoGDI::FillType::ThreeColour, Types<FillToolThreeColour>()},
        {KestoGDI::FillType::FourColour, Types<FillToolFourColour>()},
        {KestoGDI::FillType::Plasma, Types<FillToolPlasma>()},
        {KestoGDI::FillType::Bitmap, Types<FillToolBitmap>()},
        {KestoGDI::FillType::Vector, Types<FillToolVector>()},
    };
    KestoTest::TestToolSite site;
    for (const KestoGDI::FillKind& kind : KestoGDI::FillKinds::All()) {
        for (const KestoPlatform::CRuntimeClass* c : {kind.fillClass, kind.transparencyClass}) {
            if (!c)
                continue;
            SCOPED_TRACE(c->m_lpszClassName);
            const RefPtr<CFill> fill = CFill::CreateFromClass(c);
            const std::unique_ptr<FillTool> tool = FillToolFactory::Create(fill.get(), &site);
            const std::unique_ptr<FillTool> wrapped = FillToolFactory::CreateWrapped(fill.get(), &site);
            const auto expected = tools.find(kind.type);
            if (expected == tools.end()) {
                EXPECT_EQ(tool, nullptr);
                EXPECT_EQ(wrapped, nullptr);
                continue;
            }
            ASSERT_NE(tool, nullptr);
            ASSERT_NE(wrapped, nullptr);
            EXPECT_EQ(typeid(*tool), *expected->second.first);
            EXPECT_EQ(typeid(*wrapped), *expected->second.second);
            EXPECT_TRUE(tool->GetFill()->IsEqual(*fill));
        }
    }
    EXPECT_EQ(FillToolFactory::Create(nullptr, &site), nullptr);
}
