#include "kestotool/filltool/FillToolFactory.h"

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

using namespace KestoTool;

TEST(FillToolFactory, EachKindGetsItsToolOrNone)
{
    // The kinds whose tools exist; every other kind, fill or transparency, gets no tool.
    const std::map<int, const std::type_info*> tools = {
        {KestoGDI::FillType::Linear, &typeid(FillToolLinear)},
        {KestoGDI::FillType::Radial, &typeid(FillToolRadial)},
        {KestoGDI::FillType::Elliptical, &typeid(FillToolElliptical)},
        {KestoGDI::FillType::Conical, &typeid(FillToolConical)},
        {KestoGDI::FillType::Square, &typeid(FillToolSquare)},
        {KestoGDI::FillType::ThreeColour, &typeid(FillToolThreeColour)},
        {KestoGDI::FillType::FourColour, &typeid(FillToolFourColour)},
        {KestoGDI::FillType::Plasma, &typeid(FillToolPlasma)},
        {KestoGDI::FillType::Bitmap, &typeid(FillToolBitmap)},
        {KestoGDI::FillType::Vector, &typeid(FillToolVector)},
    };
    KestoTest::TestToolSite site;
    for (const KestoGDI::FillKind& kind : KestoGDI::FillKinds::All()) {
        for (const Platform::CRuntimeClass* c : {kind.fillClass, kind.transparencyClass}) {
            if (!c)
                continue;
            SCOPED_TRACE(c->m_lpszClassName);
            const RefPtr<CFill> fill = CFill::CreateFromClass(c);
            const std::unique_ptr<FillTool> tool = FillToolFactory::Create(fill.get(), &site);
            const auto expected = tools.find(kind.type);
            if (expected == tools.end()) {
                EXPECT_EQ(tool, nullptr);
                continue;
            }
            ASSERT_NE(tool, nullptr);
            EXPECT_EQ(typeid(*tool), *expected->second);
            EXPECT_TRUE(tool->GetFill()->IsEqual(*fill));
        }
    }
    EXPECT_EQ(FillToolFactory::Create(nullptr, &site), nullptr);
}
