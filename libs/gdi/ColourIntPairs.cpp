#include "gdi/ColourIntPairs.h"

#include "gdi/CRGBColour.h"

#include <algorithm>

namespace KestoGDI {

const CColourIntPair* ColourIntPairs::GetAt(int index) const
{
    return index >= 0 && index < GetSize() ? &m_pairs[static_cast<std::size_t>(index)] : nullptr;
}

CColourIntPair* ColourIntPairs::GetAt(int index)
{
    return index >= 0 && index < GetSize() ? &m_pairs[static_cast<std::size_t>(index)] : nullptr;
}

int ColourIntPairs::Add(const CColour& colour, int value)
{
    return Add(CColourIntPair(colour, value));
}

int ColourIntPairs::Add(CColourIntPair pair)
{
    m_pairs.push_back(std::move(pair));
    return GetSize() - 1;
}

bool ColourIntPairs::Delete(int index)
{
    if (!GetAt(index))
        return false;
    m_pairs.erase(m_pairs.begin() + index);
    return true;
}

int ColourIntPairs::Find(int value, const CColour* colour) const
{
    for (int i = 0; i < GetSize(); ++i) {
        const CColourIntPair& p = m_pairs[static_cast<std::size_t>(i)];
        if (p.GetValue() == value && (!colour || p.GetColour().IsEqual(*colour)))
            return i;
    }
    return -1;
}

int ColourIntPairs::Move(int index, int value)
{
    CColourIntPair* pair = GetAt(index);
    if (!pair)
        return -1;
    // Moving the stop to the end first makes it the last among equals after the stable sort,
    // so its new index is found by position alone.
    CColourIntPair moved = std::move(*pair);
    m_pairs.erase(m_pairs.begin() + index);
    moved.SetValue(value);
    const auto at = std::upper_bound(m_pairs.begin(), m_pairs.end(), value,
                                     [](int v, const CColourIntPair& p) { return v < p.GetValue(); });
    const auto placed = m_pairs.insert(at, std::move(moved));
    return static_cast<int>(placed - m_pairs.begin());
}

void ColourIntPairs::Sort()
{
    std::stable_sort(m_pairs.begin(), m_pairs.end(),
                     [](const CColourIntPair& a, const CColourIntPair& b) { return a.GetValue() < b.GetValue(); });
}

std::unique_ptr<CColour> ColourIntPairs::MakeColourForValue(int value) const
{
    if (m_pairs.empty())
        return nullptr;
    if (value <= m_pairs.front().GetValue())
        return m_pairs.front().GetColour().Clone();
    for (std::size_t i = 1; i < m_pairs.size(); ++i) {
        const CColourIntPair& next = m_pairs[i];
        if (value >= next.GetValue())
            continue;
        const CColourIntPair& prev = m_pairs[i - 1];
        const double span = next.GetValue() - prev.GetValue();
        const double t = span > 0 ? (value - prev.GetValue()) / span : 1.0;
        return CColour::Interpolate(prev.GetColour(), next.GetColour(), prev.GetSpline().Apply(t));
    }
    return m_pairs.back().GetColour().Clone();
}

std::size_t ColourIntPairs::Measure() const
{
    // Each stop owns one colour object; the largest colour class bounds its size (a palette
    // name's characters are not counted).
    return m_pairs.capacity() * sizeof(CColourIntPair) + m_pairs.size() * sizeof(CRGBColour);
}

} // namespace KestoGDI
