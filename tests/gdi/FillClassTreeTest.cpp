#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillFractal.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CFillVector.h"
#include "kestotool/gdi/CTransparency.h"
#include "kestotool/gdi/CTransparencyBitmap.h"
#include "kestotool/gdi/CTransparencyConical.h"
#include "kestotool/gdi/CTransparencyEllipse.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/gdi/CTransparencyFourPoint.h"
#include "kestotool/gdi/CTransparencyFractal.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/CTransparencyNone.h"
#include "kestotool/gdi/CTransparencyRadial.h"
#include "kestotool/gdi/CTransparencySquare.h"
#include "kestotool/gdi/CTransparencyThreePoint.h"
#include "kestotool/gdi/FillKinds.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace KestoGDI;

namespace {

struct KindRow {
    const CRuntimeClass* runtimeClass;
    int type;
    bool transparency;
    bool gradient; // a CFillGradient: what the editors treat as a gradient
    bool stops;    // keeps a stop list
    int controls;
};

const KindRow kKinds[] = {
    {CFillNone::GetThisClass(), 0, false, false, false, 0},
    {CFillSolid::GetThisClass(), 1, false, false, false, 0},
    {CFillLinear::GetThisClass(), 4, false, true, true, 2},
    {CFillRadial::GetThisClass(), 5, false, true, true, 2},
    {CFillThreeColour::GetThisClass(), 6, false, true, true, 3},
    {CFillFourColour::GetThisClass(), 7, false, true, true, 4},
    {CFillFractal::GetThisClass(), 8, false, true, true, 3},
    {CFillSquare::GetThisClass(), 9, false, true, true, 3},
    {CFillEllipse::GetThisClass(), 10, false, true, true, 3},
    {CFillConical::GetThisClass(), 11, false, true, true, 2},
    {CFillBitmap::GetThisClass(), 12, false, false, true, 3},
    {CFillDiscreteMesh::GetThisClass(), 13, false, false, false, 4},
    {CFillVector::GetThisClass(), 14, false, false, true, 3},
    {CTransparencyNone::GetThisClass(), 0, true, false, false, 0},
    {CTransparencyFlat::GetThisClass(), 1, true, false, false, 0},
    {CTransparencyLinear::GetThisClass(), 4, true, true, true, 2},
    {CTransparencyRadial::GetThisClass(), 5, true, true, true, 2},
    {CTransparencyThreePoint::GetThisClass(), 6, true, true, true, 3},
    {CTransparencyFourPoint::GetThisClass(), 7, true, true, true, 4},
    {CTransparencyFractal::GetThisClass(), 8, true, true, true, 3},
    {CTransparencySquare::GetThisClass(), 9, true, true, true, 3},
    {CTransparencyEllipse::GetThisClass(), 10, true, true, true, 3},
    {CTransparencyConical::GetThisClass(), 11, true, true, true, 2},
    {CTransparencyBitmap::GetThisClass(), 12, true, false, true, 3},
};

RefPtr<CFill> Make(const KindRow& row)
{
    RefPtr<CFill> fill = CFill::CreateFromClass(row.runtimeClass);
    EXPECT_TRUE(fill) << row.runtimeClass->m_lpszClassName;
    return fill;
}

// Records which Visit a fill reached, as the run-time class of the parameter's type.
class VisitedClass final : public ConstFillVisitor {
public:
    const CRuntimeClass* visited = nullptr;
    void Visit(const CFillNone&) override { visited = CFillNone::GetThisClass(); }
    void Visit(const CFillSolid&) override { visited = CFillSolid::GetThisClass(); }
    void Visit(const CFillLinear&) override { visited = CFillLinear::GetThisClass(); }
    void Visit(const CFillRadial&) override { visited = CFillRadial::GetThisClass(); }
    void Visit(const CFillEllipse&) override { visited = CFillEllipse::GetThisClass(); }
    void Visit(const CFillConical&) override { visited = CFillConical::GetThisClass(); }
    void Visit(const CFillSquare&) override { visited = CFillSquare::GetThisClass(); }
    void Visit(const CFillThreeColour&) override { visited = CFillThreeColour::GetThisClass(); }
    void Visit(const CFillFourColour&) override { visited = CFillFourColour::GetThisClass(); }
    void Visit(const CFillFractal&) override { visited = CFillFractal::GetThisClass(); }
    void Visit(const CFillBitmap&) override { visited = CFillBitmap::GetThisClass(); }
    void Visit(const CFillDiscreteMesh&) override { visited = CFillDiscreteMesh::GetThisClass(); }
    void Visit(const CFillVector&) override { visited = CFillVector::GetThisClass(); }
};

} // namespace

TEST(FillClassTree, EachKindOfTheTableVisitsAsItsFillClassAndAgreesWithItsInstances)
{
    const auto kinds = FillKinds::All();
    EXPECT_EQ(kinds.size(), std::size(kKinds) - 11);
    for (const FillKind& kind : kinds) {
        SCOPED_TRACE(kind.fillName);
        for (const CRuntimeClass* c : {kind.fillClass, kind.transparencyClass}) {
            if (!c)
                continue;
            const RefPtr<CFill> fill = CFill::CreateFromClass(c);
            ASSERT_TRUE(fill);
            VisitedClass visitor;
            fill->Accept(visitor);
            EXPECT_EQ(visitor.visited, kind.fillClass);
            EXPECT_EQ(fill->GetFillType(), kind.type);
            EXPECT_EQ(dynamic_cast<const CFillWithStops*>(fill.get()) != nullptr, kind.hasStops);
            EXPECT_STREQ(fill->GetTypeAsString(), fill->IsTransparency() ? kind.transparencyName : kind.fillName);
        }
    }
    EXPECT_EQ(FillKinds::Find(3), nullptr);
}

TEST(FillClassTree, EveryKindAnswersItsTypeKindAndControlCount)
{
    for (const auto& row : kKinds) {
        SCOPED_TRACE(row.runtimeClass->m_lpszClassName);
        const RefPtr<CFill> fill = Make(row);
        ASSERT_TRUE(fill);
        EXPECT_EQ(fill->GetRefCount(), 1);
        EXPECT_EQ(fill->GetRuntimeClass(), row.runtimeClass);
        EXPECT_EQ(fill->GetFillType(), row.type);
        EXPECT_EQ(fill->IsTransparency(), row.transparency);
        EXPECT_EQ(dynamic_cast<const CFillGradient*>(fill.get()) != nullptr, row.gradient);
        EXPECT_EQ(dynamic_cast<const CFillWithStops*>(fill.get()) != nullptr, row.stops);
        EXPECT_EQ(fill->GetControlCount(), row.controls);
        EXPECT_TRUE(fill->GetRuntimeClass()->IsDerivedFrom(CFill::GetThisClass()));
    }
}

TEST(FillClassTree, TypeNumbersMapBackToTheirClasses)
{
    for (const auto& row : kKinds) {
        const CRuntimeClass* found = row.transparency ? CTransparency::GetRuntimeClassFromType(row.type)
                                                      : CFill::GetRuntimeClassFromType(row.type);
        EXPECT_EQ(found, row.runtimeClass) << row.runtimeClass->m_lpszClassName;
    }
    for (int unknown : {-1, 2, 3, 15, 1000})
        EXPECT_EQ(CFill::GetRuntimeClassFromType(unknown), nullptr) << unknown;
    for (int unknown : {-1, 2, 3, 13, 14})
        EXPECT_EQ(CTransparency::GetRuntimeClassFromType(unknown), nullptr) << unknown;
}

TEST(FillClassTree, TypeNamesAreDistinctWithinFillsAndWithinTransparencies)
{
    std::set<std::wstring> fills, transparencies;
    for (const auto& row : kKinds) {
        const std::wstring name = Make(row)->GetTypeAsString();
        EXPECT_FALSE(name.empty());
        EXPECT_TRUE((row.transparency ? transparencies : fills).insert(name).second)
            << row.runtimeClass->m_lpszClassName;
    }
}

TEST(FillClassTree, OnlyCreatableFillClassesCreateFills)
{
    EXPECT_FALSE(CFill::CreateFromClass(nullptr));
    EXPECT_FALSE(CFill::CreateFromClass(CFillGradient::GetThisClass()));
    EXPECT_FALSE(CFill::CreateFromClass(KestoPlatform::CObject::GetThisClass()));
}

TEST(FillClassTree, CloneIsAnEqualIndependentFillOfTheSameClass)
{
    const CRect box(-300, 100, 700, 600);
    for (const auto& row : kKinds) {
        SCOPED_TRACE(row.runtimeClass->m_lpszClassName);
        RefPtr<CFill> original = Make(row);
        original->SetDefaultControls(box);
        original->SetAlpha(200);
        RefPtr<CFill> clone = original->Clone();
        ASSERT_TRUE(clone);
        EXPECT_NE(clone.get(), original.get());
        EXPECT_EQ(clone->GetRefCount(), 1);
        EXPECT_EQ(original->GetRefCount(), 1);
        EXPECT_EQ(clone->GetRuntimeClass(), row.runtimeClass);
        EXPECT_TRUE(clone->IsEqual(*original));

        clone->SetAlpha(10);
        EXPECT_EQ(original->GetAlpha(), 200);
        EXPECT_FALSE(clone->IsEqual(*original));
    }
}

TEST(FillClassTree, TransformThenInverseRestoresTheControls)
{
    K2DLtGeneral toPage;
    toPage += Kesto2D::K2DLtTranslate(-250, 80);
    toPage += Kesto2D::K2DLtRotate(3000);
    toPage += Kesto2D::K2DLtScale(1.5, -2);
    toPage += Kesto2D::K2DLtTranslate(10000, 20000);
    const K2DLtGeneral back = toPage.GetInverse();
    for (const auto& row : kKinds) {
        SCOPED_TRACE(row.runtimeClass->m_lpszClassName);
        RefPtr<CFill> fill = Make(row);
        fill->SetDefaultControls(CRect(0, 0, 400, 300));
        const RefPtr<CFill> before = fill->Clone();
        fill->Transform(toPage);
        if (row.controls > 0) {
            EXPECT_FALSE(fill->IsEqual(*before));
            EXPECT_NEAR(fill->GetControlPoint(0).x, toPage.ApplyTo(before->GetControlPoint(0)).x, 1e-9);
        }
        fill->Transform(back);
        for (int i = 0; i < row.controls; ++i) {
            EXPECT_NEAR(fill->GetControlPoint(i).x, before->GetControlPoint(i).x, 1e-6);
            EXPECT_NEAR(fill->GetControlPoint(i).y, before->GetControlPoint(i).y, 1e-6);
        }
    }
}
