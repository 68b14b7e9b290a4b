#include "kestotool/gdi/CFill.h"

#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/FillKinds.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <algorithm>
#include <memory>
#include <typeinfo>

namespace KestoGDI {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportControlIndex = 57;
constexpr int kReportControlsWithoutArray = 67;

} // namespace

KESTO_IMPLEMENT_DYNAMIC(CFill, KestoPlatform::CObject)

const CRuntimeClass* CFill::GetRuntimeClassFromType(int type)
{
    const FillKind* kind = FillKinds::Find(type);
    return kind ? kind->fillClass : nullptr;
}

const wchar_t* CFill::GetTypeAsString() const
{
    const FillKind* kind = FillKinds::Find(GetFillType());
    if (!kind)
        return L"";
    return IsTransparency() ? kind->transparencyName : kind->fillName;
}

RefPtr<CFill> CFill::CreateFromClass(const CRuntimeClass* runtimeClass)
{
    if (!runtimeClass)
        return {};
    std::unique_ptr<KestoPlatform::CObject> object(runtimeClass->CreateObject());
    auto* fill = dynamic_cast<CFill*>(object.get());
    if (!fill)
        return {};
    object.release();
    return RefPtr<CFill>(fill);
}

bool CFill::IsNone() const
{
    return dynamic_cast<const CFillNone*>(this) != nullptr;
}

bool CFill::IsSolid() const
{
    return dynamic_cast<const CFillSolid*>(this) != nullptr;
}

K2DDblPoint CFill::GetControlPoint(int index) const
{
    const auto points = ControlPoints();
    if (index < 0 || index >= static_cast<int>(points.size())) {
        KestoKernel::VerifyFailed("KestoGDI", "CFill", kReportControlIndex,
                                  "control point index out of range: see GetControlCount");
        return {};
    }
    return points[static_cast<std::size_t>(index)];
}

void CFill::GetControls(K2DArrayPoint* out) const
{
    if (!out) {
        KestoKernel::VerifyFailed("KestoGDI", "CFill", kReportControlsWithoutArray,
                                  "pass an array for the control points");
        return;
    }
    for (const K2DDblPoint& p : ControlPoints())
        out->Add(p.Round());
}

bool CFill::SetControls(const K2DArrayPoint& points)
{
    const auto mine = ControlPoints();
    if (points.GetSize() != static_cast<int>(mine.size()))
        return false;
    std::transform(points.begin(), points.end(), mine.begin(),
                   [](const CPoint& p) { return Kesto2D::SaturateToRange(K2DDblPoint(p)); });
    return true;
}

bool CFill::SetControlPoints(std::span<const K2DDblPoint> points)
{
    const auto mine = ControlPoints();
    if (points.size() != mine.size())
        return false;
    std::transform(points.begin(), points.end(), mine.begin(), Kesto2D::SaturateToRange);
    return true;
}

bool CFill::SetControls(const CFill* other)
{
    if (!other)
        return false;
    const auto theirs = other->ControlPoints();
    const auto mine = ControlPoints();
    if (theirs.size() != mine.size())
        return false;
    std::copy(theirs.begin(), theirs.end(), mine.begin());
    return true;
}

void CFill::SetDefaultControls(const CRect&)
{
    // A kind without control points has nothing to place.
}

void CFill::Transform(const K2DLtGeneral& t)
{
    for (K2DDblPoint& p : ControlPoints())
        p = Kesto2D::SaturateToRange(t.ApplyTo(p));
}

bool CFill::IsEqual(const CFill& other) const
{
    return typeid(*this) == typeid(other) && IsEqualData(other);
}

bool CFill::IsEqualData(const CFill& other) const
{
    const auto a = ControlPoints();
    const auto b = other.ControlPoints();
    return m_alpha == other.m_alpha && m_blendMode == other.m_blendMode && m_overprint == other.m_overprint &&
           std::equal(a.begin(), a.end(), b.begin(), b.end());
}

void CFill::SetAlpha(int alpha)
{
    m_alpha = std::clamp(alpha, 0, 255);
}

std::size_t CFill::Measure() const
{
    return GetRuntimeClass()->m_nObjectSize + HeapBytes();
}

} // namespace KestoGDI
