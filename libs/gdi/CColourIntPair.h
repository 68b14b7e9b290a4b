#pragma once

#include "gdi/CColour.h"
#include "gdi/CSpline.h"

#include <memory>

namespace KestoGDI {

// One stop of a gradient: a colour (owned; copying the stop copies it) at an integer position
// 0..10000 along the gradient, and the spline that shapes the blend to the next stop.
class CColourIntPair {
public:
    // Opaque black at position 0.
    CColourIntPair();
    CColourIntPair(const CColour& colour, int value, CSpline spline = {});
    CColourIntPair(const CColourIntPair& other);
    CColourIntPair& operator=(const CColourIntPair& other);
    CColourIntPair(CColourIntPair&&) noexcept = default;
    CColourIntPair& operator=(CColourIntPair&&) noexcept = default;
    ~CColourIntPair();

    const CColour& GetColour() const { return *m_colour; }
    CColour& GetColour() { return *m_colour; }
    void SetColour(const CColour& colour) { m_colour = colour.Clone(); }

    int GetValue() const { return m_value; }
    void SetValue(int value) { m_value = value; }
    // Where this stop lies between start (position 0) and end (position 10000), each coordinate
    // start + MulDiv(end - start, position, 10000).
    CPoint GetValue(const CPoint& start, const CPoint& end) const;

    const CSpline& GetSpline() const { return m_spline; }
    void SetSpline(const CSpline& spline) { m_spline = spline; }
    bool IsStraight() const { return m_spline.IsStraight(); }

    friend bool operator==(const CColourIntPair& a, const CColourIntPair& b);

private:
    std::unique_ptr<CColour> m_colour;
    int m_value = 0;
    CSpline m_spline;
};

} // namespace KestoGDI
