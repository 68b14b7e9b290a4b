#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/geometry/CoordinateRange.h"
#include "kestotool/platform/Export.h"

#include <array>

namespace KestoGDI {

// The storage of a kind's control points: N double points that CFill's generic control-point
// operations see. A shaped fill class derives from FillWithControls<ItsBase, N>.
template <class Base, std::size_t N>
class KESTO_API FillWithControls : public Base {
protected:
    using Base::Base;

    std::span<K2DDblPoint> ControlPoints() override { return m_points; }
    const K2DDblPoint& Point(std::size_t i) const { return m_points[i]; }
    // Stored inside the coordinate range.
    void SetPoints(const std::array<K2DDblPoint, N>& points)
    {
        for (std::size_t i = 0; i < N; ++i)
            m_points[i] = Kesto2D::SaturateToRange(points[i]);
    }

private:
    std::array<K2DDblPoint, N> m_points{};
};

} // namespace KestoGDI
