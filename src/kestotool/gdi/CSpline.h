#pragma once

#include "kestotool/platform/Export.h"

namespace KestoGDI {

// The shape of the blend from one stop to the next: a one-dimensional cubic Bezier from 0 to 1
// with two inner control values, each clamped to 0..1 so the blend never runs backwards.
// Control values 1/3 and 2/3 give the straight (linear) blend.
class KESTO_API CSpline {
public:
    constexpr CSpline() = default;
    constexpr CSpline(double c1, double c2) : m_c1(Clamp(c1)), m_c2(Clamp(c2)) {}

    constexpr double GetC1() const { return m_c1; }
    constexpr double GetC2() const { return m_c2; }
    constexpr bool IsStraight() const { return m_c1 == 1.0 / 3 && m_c2 == 2.0 / 3; }

    // The blend fraction at t (0..1 along the way between the two stops).
    constexpr double Apply(double t) const
    {
        if (IsStraight())
            return t;
        const double s = 1 - t;
        return 3 * s * s * t * m_c1 + 3 * s * t * t * m_c2 + t * t * t;
    }

    friend constexpr bool operator==(const CSpline&, const CSpline&) = default;

private:
    static constexpr double Clamp(double c) { return c < 0 ? 0 : c > 1 ? 1 : c; }
    double m_c1 = 1.0 / 3;
    double m_c2 = 2.0 / 3;
};

} // namespace KestoGDI
