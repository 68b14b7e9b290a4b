#include "kestotool/gdi/CColour.h"

#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/geometry/Rounding.h"

#include <algorithm>

namespace KestoGDI {
namespace {

int Lerp(int a, int b, double t)
{
    return Kesto2D::RoundHalfUp(a + (b - a) * t);
}

int TintChannel(int c, int tint)
{
    if (tint > 0)
        return c + Kesto2D::RoundHalfUp((255 - c) * tint / 100.0);
    if (tint < 0)
        return Kesto2D::RoundHalfUp(c * (100 + tint) / 100.0);
    return c;
}

} // namespace

CColour::CColour(short tint, int alpha)
{
    SetTint(tint);
    SetAlpha(alpha);
}

void CColour::SetAlpha(int alpha)
{
    m_alpha = static_cast<unsigned char>(std::clamp(alpha, 0, 255));
}

void CColour::SetTint(short tint)
{
    m_tint = std::clamp<short>(tint, -100, 100);
}

COLORREF CColour::GetRGB() const
{
    const COLORREF base = GetBaseRGB();
    return KestoPlatform::RGB(TintChannel(KestoPlatform::GetRValue(base), m_tint),
                              TintChannel(KestoPlatform::GetGValue(base), m_tint),
                              TintChannel(KestoPlatform::GetBValue(base), m_tint));
}

int CColour::GetIntensity() const
{
    const COLORREF c = GetRGB();
    return (299 * KestoPlatform::GetRValue(c) + 587 * KestoPlatform::GetGValue(c) + 114 * KestoPlatform::GetBValue(c) +
            500) /
           1000;
}

bool CColour::EqualColour(const CColour* a, const CColour* b)
{
    if (!a || !b)
        return a == b;
    return a->GetRGB() == b->GetRGB() && a->GetAlpha() == b->GetAlpha();
}

std::unique_ptr<CColour> CColour::Interpolate(const CColour& a, const CColour& b, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    const int alpha = Lerp(a.GetAlpha(), b.GetAlpha(), t);
    const auto* monoA = dynamic_cast<const CMonoColour*>(&a);
    const auto* monoB = dynamic_cast<const CMonoColour*>(&b);
    std::unique_ptr<CColour> result;
    if (monoA && monoB) {
        result = std::make_unique<CMonoColour>(Lerp(monoA->GetIntensity(), monoB->GetIntensity(), t));
    } else {
        const COLORREF ca = a.GetRGB();
        const COLORREF cb = b.GetRGB();
        const COLORREF rgb = KestoPlatform::RGB(Lerp(KestoPlatform::GetRValue(ca), KestoPlatform::GetRValue(cb), t),
                                                Lerp(KestoPlatform::GetGValue(ca), KestoPlatform::GetGValue(cb), t),
                                                Lerp(KestoPlatform::GetBValue(ca), KestoPlatform::GetBValue(cb), t));
        result = std::make_unique<CRGBColour>(rgb);
    }
    result->SetAlpha(alpha);
    return result;
}

} // namespace KestoGDI
