#pragma once

#include "gdi/CColourIntPair.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace KestoGDI {

// The stop list of a gradient (and the node colours of three- and four-colour, plasma and
// bitmap fills). A value: copying the list copies every colour. Positions are hundredths of a
// percent, 0 at the start handle and 10000 at the end; editors keep the list sorted.
class ColourIntPairs {
public:
    ColourIntPairs() = default;

    int GetSize() const { return static_cast<int>(m_pairs.size()); }
    bool IsEmpty() const { return m_pairs.empty(); }
    // The stop at index, or null when the index is out of range.
    const CColourIntPair* GetAt(int index) const;
    CColourIntPair* GetAt(int index);

    // Appends a stop (the list is not re-sorted) and answers its index.
    int Add(const CColour& colour, int value);
    int Add(CColourIntPair pair);
    // Removes the stop at index; false (and no change) when out of range.
    bool Delete(int index);
    void RemoveAll() { m_pairs.clear(); }
    // Index of the first stop at value whose colour equals colour (IsEqual), or of the first
    // stop at value when colour is null; -1 when there is none.
    int Find(int value, const CColour* colour) const;
    // Gives stop index the position value, re-sorts and answers the stop's new index;
    // -1 (and no change) for an index out of range.
    int Move(int index, int value);
    // Orders the stops by position; stops at the same position keep their order.
    void Sort();

    // The gradient's colour at a position: before the first stop the first colour, after the
    // last the last, between two stops the blend shaped by the earlier stop's spline. Null for
    // an empty list.
    std::unique_ptr<CColour> MakeColourForValue(int value) const;

    std::size_t Measure() const;

    auto begin() const { return m_pairs.begin(); }
    auto end() const { return m_pairs.end(); }
    friend bool operator==(const ColourIntPairs&, const ColourIntPairs&) = default;

private:
    std::vector<CColourIntPair> m_pairs;
};

} // namespace KestoGDI
