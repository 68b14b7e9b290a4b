#pragma once

#include "kestotool/geometry/K2DDblPoint.h"
#include "kestotool/geometry/K2DLtRotate.h"
#include "kestotool/geometry/K2DLtScale.h"
#include "kestotool/geometry/K2DLtTranslate.h"
#include "kestotool/geometry/K2DVector.h"
#include "kestotool/platform/Export.h"

namespace Kesto2D {

// A general 2-D affine transform. A point maps as
//
//     x' = m11 x + m21 y + dx
//     y' = m12 x + m22 y + dy
//
// Composition order: t += step appends the step, so the steps apply in the order they were
// added. "Move c to the origin, rotate, move back" is written exactly in that order, and is what
// About(c, K2DLtRotate(a)) answers.
class KESTO_API K2DLtGeneral {
public:
    K2DLtGeneral() = default;
    K2DLtGeneral(double m11, double m12, double m21, double m22, double dx, double dy)
        : m_m11(m11), m_m12(m12), m_m21(m21), m_m22(m22), m_dx(dx), m_dy(dy)
    {
    }
    K2DLtGeneral(const K2DLtTranslate& t) : m_dx(t.dx), m_dy(t.dy) {}
    K2DLtGeneral(const K2DLtScale& s) : m_m11(s.sx), m_m22(s.sy) {}
    K2DLtGeneral(const K2DLtRotate& r);

    // step applied about centre: move centre to the origin, apply step, move back.
    [[nodiscard]] static K2DLtGeneral About(const K2DDblPoint& centre, const K2DLtGeneral& step);

    // Appends next: the result applies this first, then next.
    K2DLtGeneral& operator+=(const K2DLtGeneral& next);
    [[nodiscard]] K2DLtGeneral Then(const K2DLtGeneral& next) const
    {
        K2DLtGeneral t = *this;
        return t += next;
    }

    // Integer points come back rounded half away from zero, saturated to the coordinate range.
    CPoint ApplyTo(const CPoint& p) const;
    K2DDblPoint ApplyTo(const K2DDblPoint& p) const;
    // A displacement sees the linear part only.
    K2DVector ApplyTo(const K2DVector& v) const;

    double Determinant() const { return m_m11 * m_m22 - m_m21 * m_m12; }
    // False for a singular transform (zero or non-finite determinant).
    bool HasInverse() const;
    // The inverse; a singular transform reports "Verify failed" and answers identity.
    K2DLtGeneral GetInverse() const;
    void SetToIdentity() { *this = K2DLtGeneral(); }
    bool IsIdentity() const { return *this == K2DLtGeneral(); }

    double GetM11() const { return m_m11; }
    double GetM12() const { return m_m12; }
    double GetM21() const { return m_m21; }
    double GetM22() const { return m_m22; }
    K2DVector GetTranslation() const { return {m_dx, m_dy}; }

    friend bool operator==(const K2DLtGeneral&, const K2DLtGeneral&) = default;

private:
    double m_m11 = 1, m_m12 = 0, m_m21 = 0, m_m22 = 1, m_dx = 0, m_dy = 0;
};

} // namespace Kesto2D
