#pragma once

#include "kestotool/gdi/CColourIntPair.h"
#include "kestotool/platform/Export.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace KestoGDI {

// The stop list of a gradient (and the node colours of three- and four-colour, plasma and
// bitmap fills). A value with copy-on-write storage: copies share the stops until one of them
// changes, so that handing a list from fill to fill (clones, commits) copies nothing. Positions
// are hundredths of a percent, 0 at the start handle and 10000 at the end; editors keep the
// list sorted.
class KESTO_API ColourIntPairs {
public:
    ColourIntPairs() = default;

    int GetSize() const { return static_cast<int>(Read().size()); }
    bool IsEmpty() const { return Read().empty(); }
    // The stop at index, or null when the index is out of range.
    const CColourIntPair* GetAt(int index) const;
    CColourIntPair* GetAt(int index);

    // Appends a stop (the list is not re-sorted) and answers its index.
    int Add(const CColour& colour, int value);
    int Add(CColourIntPair pair);
    // Removes the stop at index; false (and no change) when out of range.
    bool Delete(int index);
    void RemoveAll() { m_pairs.reset(); }
    // Index of the first stop at value whose colour equals colour (IsEqual), or of the first
    // stop at value when colour is null; -1 when there is none.
    int Find(int value, const CColour* colour) const;
    // Gives stop index the position value, re-sorts and answers the stop's new index;
    // -1 (and no change) for an index out of range.
    int Move(int index, int value);
    // Orders the stops by position; stops at the same position keep their order. A list that is
    // sorted already is left alone (and stays shared).
    void Sort();

    // The gradient's colour at a position: before the first stop the first colour, after the
    // last the last, between two stops the blend shaped by the earlier stop's spline. Null for
    // an empty list.
    std::unique_ptr<CColour> MakeColourForValue(int value) const;

    std::size_t Measure() const;

    auto begin() const { return Read().begin(); }
    auto end() const { return Read().end(); }
    friend KESTO_API bool operator==(const ColourIntPairs& a, const ColourIntPairs& b);

private:
    using Stops = std::vector<CColourIntPair>;

    const Stops& Read() const;
    // The stops, made this list's own first when another list shares them.
    Stops& Write();

    std::shared_ptr<Stops> m_pairs; // null while empty
};

} // namespace KestoGDI
