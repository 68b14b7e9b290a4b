#include "kestotool/geometry/K2DArrayPoint.h"

#include "kestotool/geometry/K2DDblPoint.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Kesto2D {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportIndexRange = 17;

} // namespace

K2DArrayPoint::K2DArrayPoint(int initialSize) : m_points(static_cast<std::size_t>(std::max(initialSize, 0))) {}

CPoint K2DArrayPoint::GetAt(int index) const
{
    if (index < 0 || index >= GetSize()) {
        KestoKernel::VerifyFailed("Kesto2D", "K2DArrayPoint", kReportIndexRange,
                                  "point index out of range: see GetSize");
        return {};
    }
    return m_points[static_cast<std::size_t>(index)];
}

void K2DArrayPoint::SetAt(int index, const CPoint& p)
{
    if (index < 0 || index >= GetSize()) {
        KestoKernel::VerifyFailed("Kesto2D", "K2DArrayPoint", kReportIndexRange,
                                  "point index out of range: see GetSize");
        return;
    }
    m_points[static_cast<std::size_t>(index)] = p;
}

int K2DArrayPoint::Add(const CPoint& p)
{
    m_points.push_back(p);
    return GetSize() - 1;
}

void K2DArrayPoint::AddClose(int startIndex)
{
    if (startIndex < 0 || startIndex >= GetSize())
        return;
    const CPoint first = m_points[static_cast<std::size_t>(startIndex)];
    if (!(m_points.back() == first))
        m_points.push_back(first);
}

void K2DArrayPoint::AppendEllipse(const CPoint& centre, int radiusX, int radiusY)
{
    constexpr int steps = 64;
    const int start = GetSize();
    for (int i = 0; i < steps; ++i) {
        const double a = 2 * std::numbers::pi * i / steps;
        // Anticlockwise on screen: y decreases first.
        Add(K2DDblPoint(centre.x + radiusX * std::cos(a), centre.y - radiusY * std::sin(a)).Round());
    }
    AddClose(start);
}

CRect K2DArrayPoint::GetBBox() const
{
    if (m_points.empty())
        return {};
    CRect r(m_points.front(), m_points.front());
    for (const CPoint& p : m_points) {
        r.left = std::min(r.left, p.x);
        r.top = std::min(r.top, p.y);
        r.right = std::max(r.right, p.x);
        r.bottom = std::max(r.bottom, p.y);
    }
    return r;
}

} // namespace Kesto2D
