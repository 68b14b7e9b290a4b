#include "kestotool/gdi/ColourIntPairs.h"

#include <algorithm>

namespace KestoGDI {

namespace {

// Stable insertion sort, as long as the list is nearly sorted (a stop dragged past a few of its
// neighbours): it answers false, part-way, once it has moved more than the budget allows.
// Equal positions are never swapped, so a stable sort finishing the job gives the same order.
template <class It>
bool InsertionSortWithin(It first, It last, std::size_t budget)
{
    std::size_t moves = 0;
    for (It i = first; i != last; ++i) {
        for (It j = i; j != first && j->GetValue() < (j - 1)->GetValue(); --j) {
            if (++moves > budget)
                return false;
            std::iter_swap(j, j - 1);
        }
    }
    return true;
}

} // namespace

const ColourIntPairs::Stops& ColourIntPairs::Read() const
{
    static const Stops none;
    return m_pairs ? *m_pairs : none;
}

ColourIntPairs::Stops& ColourIntPairs::Write()
{
    if (!m_pairs)
        m_pairs = std::make_shared<Stops>();
    else if (m_pairs.use_count() > 1)
        m_pairs = std::make_shared<Stops>(*m_pairs);
    return *m_pairs;
}

bool operator==(const ColourIntPairs& a, const ColourIntPairs& b)
{
    return a.m_pairs == b.m_pairs || a.Read() == b.Read();
}

const CColourIntPair* ColourIntPairs::GetAt(int index) const
{
    return index >= 0 && index < GetSize() ? &Read()[static_cast<std::size_t>(index)] : nullptr;
}

CColourIntPair* ColourIntPairs::GetAt(int index)
{
    return index >= 0 && index < GetSize() ? &Write()[static_cast<std::size_t>(index)] : nullptr;
}

int ColourIntPairs::Add(const CColour& colour, int value)
{
    return Add(CColourIntPair(colour, value));
}

int ColourIntPairs::Add(CColourIntPair pair)
{
    Write().push_back(std::move(pair));
    return GetSize() - 1;
}

bool ColourIntPairs::Delete(int index)
{
    if (index < 0 || index >= GetSize())
        return false;
    Stops& stops = Write();
    stops.erase(stops.begin() + index);
    return true;
}

int ColourIntPairs::Find(int value, const CColour* colour) const
{
    const Stops& stops = Read();
    for (int i = 0; i < GetSize(); ++i) {
        const CColourIntPair& p = stops[static_cast<std::size_t>(i)];
        if (p.GetValue() == value && (!colour || p.GetColour().IsEqual(*colour)))
            return i;
    }
    return -1;
}

int ColourIntPairs::Move(int index, int value)
{
    if (index < 0 || index >= GetSize())
        return -1;
    Stops& stops = Write();
    // Moving the stop to the end first makes it the last among equals after the stable sort,
    // so its new index is found by position alone.
    CColourIntPair moved = std::move(stops[static_cast<std::size_t>(index)]);
    stops.erase(stops.begin() + index);
    moved.SetValue(value);
    const auto at = std::upper_bound(stops.begin(), stops.end(), value,
                                     [](int v, const CColourIntPair& p) { return v < p.GetValue(); });
    const auto placed = stops.insert(at, std::move(moved));
    return static_cast<int>(placed - stops.begin());
}

void ColourIntPairs::Sort()
{
    const auto byValue = [](const CColourIntPair& a, const CColourIntPair& b) { return a.GetValue() < b.GetValue(); };
    if (std::is_sorted(begin(), end(), byValue))
        return;
    Stops& stops = Write();
    if (!InsertionSortWithin(stops.begin(), stops.end(), 4 * stops.size() + 64))
        std::stable_sort(stops.begin(), stops.end(), byValue);
}

std::unique_ptr<CColour> ColourIntPairs::MakeColourForValue(int value) const
{
    const Stops& stops = Read();
    if (stops.empty())
        return nullptr;
    if (value <= stops.front().GetValue())
        return stops.front().GetColour().Clone();
    for (std::size_t i = 1; i < stops.size(); ++i) {
        const CColourIntPair& next = stops[i];
        if (value >= next.GetValue())
            continue;
        const CColourIntPair& prev = stops[i - 1];
        const double span = next.GetValue() - prev.GetValue();
        const double t = span > 0 ? (value - prev.GetValue()) / span : 1.0;
        return CColour::Interpolate(prev.GetColour(), next.GetColour(), prev.GetSpline().Apply(t));
    }
    return stops.back().GetColour().Clone();
}

std::size_t ColourIntPairs::Measure() const
{
    // The stops are counted in full although copies of the list may share them (a palette
    // name's characters are not counted).
    return m_pairs ? sizeof(Stops) + m_pairs->capacity() * sizeof(CColourIntPair) : 0;
}

} // namespace KestoGDI
