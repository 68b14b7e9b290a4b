#pragma once

#include "kestotool/gdi/CFill.h"
#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/platform/Export.h"

namespace KestoGDI {

// The fills that keep a stop list: the gradients, the three- and four-colour and plasma fills
// (through CFillGradient) and the bitmap fill, whose stops recolour the bitmap.
//
// The list lives here rather than in CFillGradient so that every tool that edits node colours
// reads and replaces it in one way (cast to CFillWithStops), while a bitmap fill still is no
// CFillGradient: kind tests that mean "a gradient" (the editor entry points, the two-colour
// test) keep giving the right answer for it.
class KESTO_API CFillWithStops : public CFill {
    KESTO_DECLARE_DYNAMIC(CFillWithStops)
public:
    const ColourIntPairs& GetColourIntPairs() const { return m_stops; }
    // Replaces the whole list. A list whose size this kind cannot take (see GetMinStops and
    // GetMaxStops) answers false and changes nothing. The list is taken as given, unsorted.
    bool SetColourIntPairs(const ColourIntPairs& stops);
    int GetMinStops() const { return m_minStops; }
    // -1 for no limit.
    int GetMaxStops() const { return m_maxStops; }

    // count stops spread evenly from 0 to 10000: for a fill black to white (three and four
    // stops are the corner colours red, green, blue and yellow), for a transparency grey levels
    // from opaque (0) to clear (255).
    static ColourIntPairs DefaultStops(int count, bool transparency);

protected:
    CFillWithStops(ColourIntPairs stops, int minStops, int maxStops);

    bool IsEqualData(const CFill& other) const override;
    std::size_t HeapBytes() const override { return m_stops.Measure(); }

private:
    ColourIntPairs m_stops;
    int m_minStops;
    int m_maxStops;
};

} // namespace KestoGDI
