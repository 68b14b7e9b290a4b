#pragma once

#include "gdi/CFill.h"

#include <array>

namespace KestoGDI {

// The storage of a kind's control points: N double points that CFill's generic control-point
// operations see. A shaped fill class derives from FillWithControls<ItsBase, N>.
template <class Base, std::size_t N>
class FillWithControls : public Base {
protected:
    using Base::Base;

    std::span<K2DDblPoint> ControlPoints() override { return m_points; }
    const K2DDblPoint& Point(std::size_t i) const { return m_points[i]; }
    void SetPoints(const std::array<K2DDblPoint, N>& points) { m_points = points; }

private:
    std::array<K2DDblPoint, N> m_points{};
};

} // namespace KestoGDI
