#pragma once

#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CRGBColour.h"
#include "kestotool/gdi/CSpline.h"
#include "kestotool/platform/Export.h"

#include <variant>

namespace KestoGDI {

// One stop of a gradient: a colour at an integer position 0..10000 along the gradient, and the
// spline that shapes the blend to the next stop. The colour is held by value (an RGB colour or
// a grey level), so a stop is a plain value: copying stop lists allocates nothing per stop. A
// colour of another kind is held as the RGB colour it shows, with its alpha.
class KESTO_API CColourIntPair {
public:
    // Opaque black at position 0.
    CColourIntPair();
    CColourIntPair(const CColour& colour, int value, CSpline spline = {});

    const CColour& GetColour() const;
    CColour& GetColour();
    void SetColour(const CColour& colour);

    int GetValue() const { return m_value; }
    void SetValue(int value) { m_value = value; }
    // Where this stop lies between start (position 0) and end (position 10000), each coordinate
    // start + MulDiv(end - start, position, 10000), computed wide and saturated to the
    // coordinate range.
    CPoint GetValue(const CPoint& start, const CPoint& end) const;

    const CSpline& GetSpline() const { return m_spline; }
    void SetSpline(const CSpline& spline) { m_spline = spline; }
    bool IsStraight() const { return m_spline.IsStraight(); }

    friend bool operator==(const CColourIntPair& a, const CColourIntPair& b);

private:
    std::variant<CRGBColour, CMonoColour> m_colour;
    int m_value = 0;
    CSpline m_spline;
};

} // namespace KestoGDI
