#include "kestotool/geometry/K2DLtGeneral.h"

#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <cmath>

namespace Kesto2D {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportSingularInverse = 65;

} // namespace

K2DLtGeneral::K2DLtGeneral(const K2DLtRotate& r)
{
    double s = 0, c = 1;
    r.angle.SinCos(s, c);
    // The rotation matrix of the convention written out in KCAngle.h.
    m_m11 = c;
    m_m21 = s;
    m_m12 = -s;
    m_m22 = c;
}

K2DLtGeneral K2DLtGeneral::About(const K2DDblPoint& centre, const K2DLtGeneral& step)
{
    K2DLtGeneral t(K2DLtTranslate(-centre.x, -centre.y));
    t += step;
    t += K2DLtTranslate(centre.x, centre.y);
    return t;
}

K2DLtGeneral& K2DLtGeneral::operator+=(const K2DLtGeneral& n)
{
    const K2DLtGeneral t = *this;
    m_m11 = t.m_m11 * n.m_m11 + t.m_m12 * n.m_m21;
    m_m12 = t.m_m11 * n.m_m12 + t.m_m12 * n.m_m22;
    m_m21 = t.m_m21 * n.m_m11 + t.m_m22 * n.m_m21;
    m_m22 = t.m_m21 * n.m_m12 + t.m_m22 * n.m_m22;
    m_dx = t.m_dx * n.m_m11 + t.m_dy * n.m_m21 + n.m_dx;
    m_dy = t.m_dx * n.m_m12 + t.m_dy * n.m_m22 + n.m_dy;
    return *this;
}

K2DDblPoint K2DLtGeneral::ApplyTo(const K2DDblPoint& p) const
{
    return {m_m11 * p.x + m_m21 * p.y + m_dx, m_m12 * p.x + m_m22 * p.y + m_dy};
}

CPoint K2DLtGeneral::ApplyTo(const CPoint& p) const
{
    return SaturateToRange(ApplyTo(K2DDblPoint(p))).Round();
}

K2DVector K2DLtGeneral::ApplyTo(const K2DVector& v) const
{
    return {m_m11 * v.dx + m_m21 * v.dy, m_m12 * v.dx + m_m22 * v.dy};
}

bool K2DLtGeneral::HasInverse() const
{
    const double det = Determinant();
    return std::isnormal(det) && std::isfinite(m_dx) && std::isfinite(m_dy);
}

K2DLtGeneral K2DLtGeneral::GetInverse() const
{
    if (!HasInverse()) {
        KestoKernel::VerifyFailed("Kesto2D", "K2DLtGeneral", kReportSingularInverse,
                                  "the transform is singular: test HasInverse first");
        return {};
    }
    const double det = Determinant();
    const double i11 = m_m22 / det;
    const double i21 = -m_m21 / det;
    const double i12 = -m_m12 / det;
    const double i22 = m_m11 / det;
    return {i11, i12, i21, i22, -(i11 * m_dx + i21 * m_dy), -(i12 * m_dx + i22 * m_dy)};
}

} // namespace Kesto2D
