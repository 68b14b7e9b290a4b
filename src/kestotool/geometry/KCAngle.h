#pragma once

#include "kestotool/platform/Export.h"

namespace Kesto2D {

// An angle in hundredths of a degree (9000 is a right angle, 36000 a full turn).
//
// The angle convention of the whole system lives here. Document coordinates grow downward
// (y down, as on screen). A positive angle turns anticlockwise as seen on screen, so a rotation
// by a maps a point (x, y) about the origin to
//
//     x' =  x cos a + y sin a
//     y' = -x sin a + y cos a
//
// which takes the +x direction (1, 0) onto (cos a, -sin a): 9000 turns +x onto -y, "up".
// DirectionOf and Between measure angles in the same sense, so that rotating a point R by a
// about C to P gives Between(P - C, R - C) = 36000 - a.
class KESTO_API KCAngle {
public:
    static constexpr int FullCircle = 36000;
    static constexpr int HalfCircle = 18000;
    static constexpr int RightAngle = 9000;

    constexpr KCAngle() = default;
    constexpr KCAngle(int hundredths) : m_value(hundredths) {}
    constexpr operator int() const { return m_value; }
    constexpr int Value() const { return m_value; }

    // Radians in the same anticlockwise-on-screen sense, rounded to the nearest hundredth.
    static KCAngle FromRadians(double radians);
    double ToRadians() const;
    // The one conversion from radians measured clockwise on screen, as atan2(dy, dx) gives them
    // in document coordinates.
    static KCAngle FromScreenRadians(double clockwise) { return FromRadians(-clockwise); }

    // The same angle in [0, 36000).
    [[nodiscard]] constexpr KCAngle Normalized() const
    {
        const int r = m_value % FullCircle;
        return r < 0 ? r + FullCircle : r;
    }

    // Sine and cosine, exact for whole quarter turns so that right-angle rotations of integer
    // points stay integers.
    void SinCos(double& sine, double& cosine) const;

    // Angle of the direction (dx, dy) from +x, in [0, 36000); 0 for the zero vector.
    static KCAngle DirectionOf(double dx, double dy);
    // The rotation in [0, 36000) that takes direction (ux, uy) onto (vx, vy); 0 when either is zero.
    static KCAngle Between(double ux, double uy, double vx, double vy);

private:
    int m_value = 0;
};

} // namespace Kesto2D
