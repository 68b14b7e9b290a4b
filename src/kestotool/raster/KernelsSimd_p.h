#pragma once

// The instruction-set primitives of the row kernels: the vector types, the arithmetic that has
// an instruction of its own on some sets, gathers, narrowing stores and the table lookup. This
// is the only file that asks which instruction set it is compiled for; each kernel translation
// unit (KernelsScalar.cpp, KernelsAvx2.cpp and KernelsAvx2Interleaved.cpp, KernelsAvx512.cpp)
// includes it with its own flags, and everything here has internal linkage, so no copy compiled
// for a wider set can stand in for another unit's.
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <type_traits>
#if defined(__AVX2__)
#include <immintrin.h>
#endif

namespace {

constexpr int kBlock = 64;
// Every kernel is written with vectors of
// kLanes floats or integers: the compiler keeps their per-pixel loops scalar otherwise. A block
// of kBlock pixels is kBlock / kLanes vectors, so every build computes the same values.
#if defined(__AVX512F__)
constexpr int kLanes = 16;
#elif defined(__AVX2__)
constexpr int kLanes = 8;
#else
constexpr int kLanes = 4;
#endif
static_assert(kBlock % kLanes == 0);

using VF = float __attribute__((vector_size(4 * kLanes)));
using VI = std::int32_t __attribute__((vector_size(4 * kLanes)));
using VU = std::uint32_t __attribute__((vector_size(4 * kLanes)));
using VB = std::uint8_t __attribute__((vector_size(kLanes)));

inline VF Splat(float f)
{
    return VF{} + f;
}

inline VI SplatI(std::int32_t i)
{
    return VI{} + i;
}

// 0, 1, .. kLanes - 1, offset by s: the pixel numbers of a block's vector starting at pixel s.
inline VF Lanes(int s)
{
    // A constant plus s: built lane by lane, GCC assembles the vector from scalars where the
    // loop around it is not unrolled.
    VF r{};
    for (int k = 0; k < kLanes; ++k)
        r[k] = static_cast<float>(k);
    return r + static_cast<float>(s);
}

// The instruction sets' min and max: a if a < b (a > b), else b, so a NaN in a gives b. GCC
// writes a compare and a blend for the same conditional expression.
inline VF Min(VF a, VF b)
{
#if defined(__AVX512F__)
    const __m512 x = reinterpret_cast<__m512>(a);
    return reinterpret_cast<VF>(_mm512_mask_min_ps(x, 0xFFFF, x, reinterpret_cast<__m512>(b)));
#elif defined(__AVX2__)
    return reinterpret_cast<VF>(_mm256_min_ps(reinterpret_cast<__m256>(a), reinterpret_cast<__m256>(b)));
#else
    return a < b ? a : b;
#endif
}

inline VF Max(VF a, VF b)
{
#if defined(__AVX512F__)
    const __m512 x = reinterpret_cast<__m512>(a);
    return reinterpret_cast<VF>(_mm512_mask_max_ps(x, 0xFFFF, x, reinterpret_cast<__m512>(b)));
#elif defined(__AVX2__)
    return reinterpret_cast<VF>(_mm256_max_ps(reinterpret_cast<__m256>(a), reinterpret_cast<__m256>(b)));
#else
    return a > b ? a : b;
#endif
}

// As Clamp01: NaN fails the first comparison and becomes 1.
inline VF Clamp01V(VF t)
{
    return Max(Min(t, Splat(1.0f)), VF{});
}

inline VF AbsV(VF v)
{
    return reinterpret_cast<VF>(reinterpret_cast<VU>(v) & 0x7FFFFFFFu);
}

inline VF Floor(VF v)
{
#if defined(__AVX512F__)
    // The masked forms: GCC 12 warns about the undefined source register of the plain ones.
    const __m512 x = reinterpret_cast<__m512>(v);
    return reinterpret_cast<VF>(_mm512_mask_roundscale_ps(x, 0xFFFF, x, _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC));
#elif defined(__AVX2__)
    return reinterpret_cast<VF>(_mm256_floor_ps(reinterpret_cast<__m256>(v)));
#else
    for (int k = 0; k < kLanes; ++k)
        v[k] = __builtin_floorf(v[k]);
    return v;
#endif
}

// 1 / v to about 23 bits: a reciprocal estimate and one Newton step, much cheaper than a
// division. Zero gives NaN, not infinity: callers treat both as "no answer".
inline VF Reciprocal(VF v)
{
#if defined(__AVX512F__)
    const __m512 x = reinterpret_cast<__m512>(v);
    const VF r = reinterpret_cast<VF>(_mm512_mask_rcp14_ps(x, 0xFFFF, x));
    return r * (2.0f - v * r);
#elif defined(__AVX2__)
    const VF r = reinterpret_cast<VF>(_mm256_rcp_ps(reinterpret_cast<__m256>(v)));
    return r * (2.0f - v * r);
#else
    return 1.0f / v;
#endif
}

// sqrt(v) to 12-14 bits, plenty for a table index (255 steps): v times the reciprocal square
// root estimate. v is taken as at least the least normal float, so that 0, NaN and denormals give
// about 1e-19 (index 0) without a compare: never negative; NaN only for an infinite v.
inline VF SqrtEstimate(VF v)
{
    v = Max(v, Splat(__FLT_MIN__));
#if defined(__AVX512F__)
    const __m512 x = reinterpret_cast<__m512>(v);
    const VF r = reinterpret_cast<VF>(_mm512_mask_rsqrt14_ps(x, 0xFFFF, x));
#elif defined(__AVX2__)
    const VF r = reinterpret_cast<VF>(_mm256_rsqrt_ps(reinterpret_cast<__m256>(v)));
#else
    VF r;
    for (int k = 0; k < kLanes; ++k)
        r[k] = 1.0f / __builtin_sqrtf(v[k]);
#endif
    return v * r;
}

inline VF Sqrt(VF v)
{
#if defined(__AVX512F__)
    const __m512 x = reinterpret_cast<__m512>(v);
    return reinterpret_cast<VF>(_mm512_mask_sqrt_ps(x, 0xFFFF, x));
#elif defined(__AVX2__)
    return reinterpret_cast<VF>(_mm256_sqrt_ps(reinterpret_cast<__m256>(v)));
#else
    for (int k = 0; k < kLanes; ++k)
        v[k] = __builtin_sqrtf(v[k]);
    return v;
#endif
}

// An integer vector from floats already known to lie inside the int range.
inline VI ToInt(VF v)
{
    return __builtin_convertvector(v, VI);
}

inline VF ToFloat(VI v)
{
    return __builtin_convertvector(v, VF);
}

// Lane k of an index vector (never negative) as a general register's value. With AVX2 lanes
// leave two at a time, by 64-bit moves split by a shift: extracting a 32-bit lane takes two
// micro-ops on AMD's cores, and GCC extracts lane by lane.
class LaneIndices {
public:
    explicit LaneIndices(VI index)
    {
#if defined(__AVX2__) && !defined(__AVX512F__)
        const __m256i i = reinterpret_cast<__m256i>(index);
        const __m128i low = _mm256_castsi256_si128(i), high = _mm256_extracti128_si256(i, 1);
        m_pairs[0] = static_cast<std::uint64_t>(_mm_cvtsi128_si64(low));
        m_pairs[1] = static_cast<std::uint64_t>(_mm_extract_epi64(low, 1));
        m_pairs[2] = static_cast<std::uint64_t>(_mm_cvtsi128_si64(high));
        m_pairs[3] = static_cast<std::uint64_t>(_mm_extract_epi64(high, 1));
#else
        m_index = index;
#endif
    }

    std::size_t operator[](int k) const
    {
#if defined(__AVX2__) && !defined(__AVX512F__)
        return k % 2 ? m_pairs[k / 2] >> 32 : static_cast<std::uint32_t>(m_pairs[k / 2]);
#else
        return std::uint32_t(m_index[k]);
#endif
    }

private:
#if defined(__AVX2__) && !defined(__AVX512F__)
    std::uint64_t m_pairs[4];
#else
    VI m_index;
#endif
};

// The values at base[index] of each lane. With AVX-512 words come by the gather instruction,
// which beats assembling a vector from sixteen loads.
template <class T>
inline VU Gather(const T* __restrict base, VI index)
{
#if defined(__AVX512F__)
    if constexpr (sizeof(T) == 4)
        return reinterpret_cast<VU>(
            _mm512_mask_i32gather_epi32(_mm512_setzero_si512(), 0xFFFF, reinterpret_cast<__m512i>(index), base, 4));
    else
#endif
    {
        const LaneIndices at(index);
        VU r{};
        for (int k = 0; k < kLanes; ++k)
            r[k] = static_cast<std::uint32_t>(base[at[k]]);
        return r;
    }
}

// A channel value rounded half up and clamped to 0..255: clamping v + 0.5 to 0..255.5 first
// makes truncation a floor.
inline VU Channel255(VF v)
{
    return reinterpret_cast<VU>(ToInt(Min(Max(v + 0.5f, VF{}), Splat(255.5f))));
}

// (c a + 127) / 255 exactly, as shifts: a channel premultiplied by its alpha.
inline VU Premultiply(VU c, VU a)
{
    const VU t = c * a + 128u;
    return (t + (t >> 8)) >> 8;
}

// Writes one vector's values to pixels s .. s + kLanes - 1 of a block, only those inside
// first .. last - 1.
inline void StoreLanes(VU value, int s, int first, int last, std::uint32_t* __restrict block)
{
    if (s >= first && s + kLanes <= last) {
        __builtin_memcpy(block + s, &value, sizeof value);
        return;
    }
    for (int k = 0; k < kLanes; ++k)
        if (s + k >= first && s + k < last)
            block[s + k] = value[k];
}

inline void StoreLanes(VB value, int s, int first, int last, std::uint8_t* __restrict block)
{
    if (s >= first && s + kLanes <= last) {
        __builtin_memcpy(block + s, &value, sizeof value);
        return;
    }
    for (int k = 0; k < kLanes; ++k)
        if (s + k >= first && s + k < last)
            block[s + k] = value[k];
}

inline void StoreLanes(VU value, int s, int first, int last, std::uint8_t* __restrict block)
{
#if defined(__AVX512F__)
    // The narrowing instruction: GCC 12 converts these vectors lane by lane.
    const __m128i bytes = _mm512_mask_cvtepi32_epi8(_mm_setzero_si128(), 0xFFFF, reinterpret_cast<__m512i>(value));
    VB narrow;
    __builtin_memcpy(&narrow, &bytes, sizeof narrow);
    StoreLanes(narrow, s, first, last, block);
#elif defined(__AVX2__)
    // The values are bytes already: two saturating packs keep them.
    const __m256i words = reinterpret_cast<__m256i>(value);
    const __m128i halves = _mm_packus_epi32(_mm256_castsi256_si128(words), _mm256_extracti128_si256(words, 1));
    const __m128i bytes = _mm_packus_epi16(halves, halves);
    VB narrow;
    __builtin_memcpy(&narrow, &bytes, sizeof narrow);
    StoreLanes(narrow, s, first, last, block);
#else
    StoreLanes(__builtin_convertvector(value, VB), s, first, last, block);
#endif
}

// How a row reads its table: words at indices mostly close together (a smooth ramp), words at
// any indices, or a mask's bytes.
enum class Reads { NearWords, Words, Bytes };

// The window of table entries that NearWords read last, kept by its caller from one vector of a
// block to the next where the indices step steadily (a linear ramp's): the next ones usually lie
// in it, and are then read with no load at all. Only AVX2 keeps one.
struct NearWindow {
#if defined(__AVX2__) && !defined(__AVX512F__)
    __m256i entries = _mm256_setzero_si256();
    __m256i base = _mm256_set1_epi32(-1024); // no index lies at or above it within 8 entries
#endif
};
constexpr bool kKeepsWindow = sizeof(NearWindow) > 1;

// A row's table, ready for whole blocks. With AVX-512 the 256 entries stay in registers and a
// block is looked up with permutes and blends (gathers are slow on many processors); with AVX2
// a smooth ramp's vector reads a window of 8 entries with one permute, or of 16 with two where
// its indices spread further (AVX2's gather is slower than eight loads on the processors
// measured). Each read keeps what it needs.
template <Reads R>
class Lookup {
public:
    explicit Lookup(const std::uint32_t* __restrict table)
    {
#if !defined(__AVX512F__)
        m_table = table;
#if defined(__AVX2__)
        if constexpr (R == Reads::NearWords) {
            // The table with its end entries repeated 8 times past each end, for window reads.
            for (int k = 0; k < 8; ++k) {
                m_padded[k] = table[0];
                m_padded[8 + 256 + k] = table[255];
            }
            __builtin_memcpy(m_padded + 8, table, 256 * sizeof *table);
        }
#endif
#else
        __m512i entries[16];
        for (int k = 0; k < 16; ++k)
            entries[k] = _mm512_loadu_si512(table + 16 * k);
        if constexpr (R == Reads::NearWords) {
            // The table with its end entries repeated 16 times past each end, for window reads.
            _mm512_store_si512(m_padded, _mm512_set1_epi32(static_cast<int>(table[0])));
            for (int k = 0; k < 16; ++k)
                _mm512_store_si512(m_padded + 16 * (k + 1), entries[k]);
            _mm512_store_si512(m_padded + 16 * 17, _mm512_set1_epi32(static_cast<int>(table[255])));
        }
        if constexpr (R != Reads::Bytes)
            for (int k = 0; k < 16; ++k)
                m_entries[k] = entries[k];
        // The entries' bytes, plane by plane (a mask's values are the low ones): each plane's
        // 256 bytes in four registers, for byte permutes.
        for (int plane = 0; plane < (R == Reads::Bytes ? 1 : R == Reads::Words ? 4 : 0); ++plane) {
            const auto bytes = [&](int k) {
                const VU shifted = reinterpret_cast<VU>(entries[k]) >> (8 * plane);
                return _mm512_mask_cvtepi32_epi8(_mm_setzero_si128(), 0xFFFF, reinterpret_cast<__m512i>(shifted));
            };
            for (int quarter = 0; quarter < 4; ++quarter) {
                // Lane numbers written out: the instruction takes them as immediates.
                __m512i four = _mm512_zextsi128_si512(bytes(4 * quarter));
                four = _mm512_inserti32x4(four, bytes(4 * quarter + 1), 1);
                four = _mm512_inserti32x4(four, bytes(4 * quarter + 2), 2);
                m_planes[plane][quarter] = _mm512_inserti32x4(four, bytes(4 * quarter + 3), 3);
            }
        }
#endif
    }

    // The entries at any indices.
    VU Words(VI i) const
    {
        static_assert(R != Reads::Bytes);
#if defined(__AVX512F__)
        return reinterpret_cast<VU>(Find(reinterpret_cast<__m512i>(i)));
#else
        return Gather(m_table, i);
#endif
    }

    // The same for indices that are mostly close together (a smooth ramp): when all lie within
    // 16 entries of the first one, one window of 32 entries read from the table answers them
    // with a single permute.
    VU NearWords(VI i) const
    {
        static_assert(R == Reads::NearWords);
#if defined(__AVX512F__)
        const __m512i d = _mm512_sub_epi32(reinterpret_cast<__m512i>(i), _mm512_set1_epi32(i[0] - 16));
        if (_mm512_cmpge_epu32_mask(d, _mm512_set1_epi32(32)) != 0)
            return Words(i);
        return reinterpret_cast<VU>(Window(i[0], reinterpret_cast<__m512i>(i)));
#elif defined(__AVX2__)
        return NearWords(i, nullptr);
#else
        return Gather(m_table, i);
#endif
    }

#if defined(__AVX2__) && !defined(__AVX512F__)
    // The same, first from the window kept from the vector before where there is one.
    VU NearWords(VI i, NearWindow* kept) const
    {
        static_assert(R == Reads::NearWords);
        // Within the window kept from the vector before: one permute.
        const __m256i v = reinterpret_cast<__m256i>(i);
        if (kept) {
            const __m256i in = _mm256_sub_epi32(v, kept->base);
            if (__builtin_expect(_mm256_testz_si256(in, _mm256_set1_epi32(~7)), 1))
                return reinterpret_cast<VU>(_mm256_permutevar8x32_epi32(kept->entries, in));
        }
        // Within 4 entries below and 3 above the first (a ramp that moves at most 3 entries a
        // vector either way): the window of 8 around it, with the offsets taken inside the vector
        // unit; only the window's address leaves it.
        const __m256i offsets = _mm256_add_epi32(
            _mm256_sub_epi32(v, _mm256_broadcastd_epi32(_mm256_castsi256_si128(v))), _mm256_set1_epi32(4));
        if (__builtin_expect(_mm256_testz_si256(offsets, _mm256_set1_epi32(~7)), 1)) {
            const int from = _mm256_cvtsi256_si32(v) - 4;
            const __m256i entries = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(m_padded + 8 + from));
            if (kept)
                *kept = {entries, _mm256_set1_epi32(from)};
            return reinterpret_cast<VU>(_mm256_permutevar8x32_epi32(entries, offsets));
        }
        // Within 7 entries above the lower of the ends (a gentle ramp, whose indices along a
        // vector rise or fall): the window of 8 from there, kept for the next vector.
        const int least = i[0] < i[kLanes - 1] ? i[0] : i[kLanes - 1];
        const __m256i near = _mm256_sub_epi32(v, _mm256_set1_epi32(least));
        if (__builtin_expect(_mm256_testz_si256(near, _mm256_set1_epi32(~7)), 1)) {
            const __m256i entries = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(m_padded + 8 + least));
            if (kept)
                *kept = {entries, _mm256_set1_epi32(least)};
            return reinterpret_cast<VU>(_mm256_permutevar8x32_epi32(entries, near));
        }
        // Within 8 entries of the first: a window of 16, two 8-entry permutes and a blend.
        const __m256i d = _mm256_sub_epi32(reinterpret_cast<__m256i>(i), _mm256_set1_epi32(i[0] - 8));
        if (__builtin_expect(!_mm256_testz_si256(d, _mm256_set1_epi32(~15)), 0))
            return Words(i);
        const std::uint32_t* around = m_padded + i[0]; // entry i[0] - 8, with the padding's 8
        const __m256i low = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(around));
        const __m256i high = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(around + 8));
        const __m256i upper = _mm256_slli_epi32(d, 28); // bit 3 of the offset as the blend's sign bit
        return reinterpret_cast<VU>(_mm256_blendv_ps(
            _mm256_castsi256_ps(_mm256_permutevar8x32_epi32(low, d)),
            _mm256_castsi256_ps(_mm256_permutevar8x32_epi32(high, d)), _mm256_castsi256_ps(upper)));
    }
#endif

    // A whole block's mask values from its vectors of indices. With AVX-512 the block's 64
    // indices are packed into one register of bytes and looked up together; with AVX2 the words
    // of two vectors are packed into 16 bytes and stored at once (assembled from byte loads in
    // general registers, as GCC writes the lane-by-lane form, they took a tenth longer).
    void StoreBytes(const VI (&i)[kBlock / kLanes], std::uint8_t* __restrict block) const
    {
        static_assert(R == Reads::Bytes);
#if defined(__AVX512F__)
        const __m512i b = Packed(i);
        // The packs left pixel 16 m + 4 L + k at byte 16 L + 4 m + k; this puts them in order.
        const __m512i ordered = _mm512_mask_permutexvar_epi32(
            b, 0xFFFF, _mm512_setr_epi32(0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15), b);
        _mm512_storeu_si512(block, Plane(0, ordered, _mm512_movepi8_mask(ordered)));
#elif defined(__AVX2__)
        for (int k = 0; k < kBlock / kLanes; k += 2) {
            const __m256i a = reinterpret_cast<__m256i>(Gather(m_table, i[k]));
            const __m256i b = reinterpret_cast<__m256i>(Gather(m_table, i[k + 1]));
            // The packs leave a's lanes 0..3, b's 0..3 in the low half, the lanes 4..7 in the high.
            const __m256i w = _mm256_packus_epi32(a, b);
            const __m256i bytes =
                _mm256_permutevar8x32_epi32(_mm256_packus_epi16(w, w), _mm256_setr_epi32(0, 4, 1, 5, 0, 4, 1, 5));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(block + k * kLanes), _mm256_castsi256_si128(bytes));
        }
#else
        for (int k = 0; k < kBlock / kLanes; ++k)
            StoreLanes(Bytes(i[k]), k * kLanes, 0, kBlock, block);
#endif
    }

    // A whole block's words: with AVX-512 its 64 indices packed into bytes, each channel looked
    // up in its plane, and the four channels' bytes interleaved into words.
    void StoreWords(const VI (&i)[kBlock / kLanes], std::uint32_t* __restrict block) const
    {
        static_assert(R == Reads::Words);
#if defined(__AVX512F__)
        // The packs' order (pixel 16 m + 4 L + k at byte 16 L + 4 m + k) is the one the
        // interleaving undoes: its m-th result holds pixels 16 m .. 16 m + 15 in order.
        const __m512i b = Packed(i);
        const __mmask64 upper = _mm512_movepi8_mask(b);
        const __m512i blue = Plane(0, b, upper), green = Plane(1, b, upper);
        const __m512i red = Plane(2, b, upper), alpha = Plane(3, b, upper);
        const __m512i bgLow = _mm512_unpacklo_epi8(blue, green), bgHigh = _mm512_unpackhi_epi8(blue, green);
        const __m512i raLow = _mm512_unpacklo_epi8(red, alpha), raHigh = _mm512_unpackhi_epi8(red, alpha);
        _mm512_storeu_si512(block, _mm512_unpacklo_epi16(bgLow, raLow));
        _mm512_storeu_si512(block + 16, _mm512_unpackhi_epi16(bgLow, raLow));
        _mm512_storeu_si512(block + 32, _mm512_unpacklo_epi16(bgHigh, raHigh));
        _mm512_storeu_si512(block + 48, _mm512_unpackhi_epi16(bgHigh, raHigh));
#else
        for (int k = 0; k < kBlock / kLanes; ++k)
            StoreLanes(Words(i[k]), k * kLanes, 0, kBlock, block);
#endif
    }

#if defined(__AVX512F__)
    // The entries at indices that all lie within 15 of near: one window of 32 entries read from
    // the table, one permute.
    __m512i Window(int near, __m512i i) const
    {
        static_assert(R == Reads::NearWords);
        const std::uint32_t* window = m_padded + near; // entry near - 16, with the padding's 16
        return _mm512_permutex2var_epi32(_mm512_loadu_si512(window), _mm512_sub_epi32(i, _mm512_set1_epi32(near - 16)),
                                         _mm512_loadu_si512(window + 16));
    }

    // The mask values at a block's 64 byte indices, in their order.
    __m512i ByteEntries(__m512i b) const
    {
        static_assert(R == Reads::Bytes);
        return Plane(0, b, _mm512_movepi8_mask(b));
    }
#endif

    // The entries' low bytes (a mask's values).
    VB Bytes(VI i) const
    {
        static_assert(R == Reads::Bytes);
#if defined(__AVX512F__)
        const __m512i b = _mm512_zextsi128_si512(
            _mm512_mask_cvtepi32_epi8(_mm_setzero_si128(), 0xFFFF, reinterpret_cast<__m512i>(i)));
        const __m512i bytes = Plane(0, b, _mm512_movepi8_mask(b));
        VB first; // the low 16 bytes (GCC 12 warns about the cast intrinsic's undefined upper part)
        __builtin_memcpy(&first, &bytes, sizeof first);
        return first;
#else
        return __builtin_convertvector(Gather(m_table, i), VB);
#endif
    }

private:
#if defined(__AVX512F__)
    // A block's four vectors of indices (0..255) as bytes: the saturating packs keep them and
    // interleave the vectors by 128-bit lanes, leaving pixel 16 m + 4 L + k at byte 16 L + 4 m + k.
    static __m512i Packed(const VI (&i)[kBlock / kLanes])
    {
        static_assert(kBlock == 4 * kLanes);
        const auto word = [&](int k) { return reinterpret_cast<__m512i>(i[k]); };
        return _mm512_packus_epi16(_mm512_packus_epi32(word(0), word(1)), _mm512_packus_epi32(word(2), word(3)));
    }

    // One plane's bytes at byte indices b: bits 0-6 pick among 128 entries of a pair of
    // registers, bit 7 (upper) the pair.
    __m512i Plane(int plane, __m512i b, __mmask64 upper) const
    {
        const auto& p = m_planes[plane];
        return _mm512_mask_blend_epi8(upper, _mm512_permutex2var_epi8(p[0], b, p[1]),
                                      _mm512_permutex2var_epi8(p[2], b, p[3]));
    }

    // Entries 0..255 at 16 indices: each pair of registers answers its 32 entries by the low five
    // bits, then bits 5, 6 and 7 choose among the pairs' answers.
    __m512i Find(__m512i i) const
    {
        __m512i pairs[8];
        for (int k = 0; k < 8; ++k)
            pairs[k] = _mm512_permutex2var_epi32(m_entries[2 * k], i, m_entries[2 * k + 1]);
        const __mmask16 bit5 = _mm512_test_epi32_mask(i, _mm512_set1_epi32(32));
        const __mmask16 bit6 = _mm512_test_epi32_mask(i, _mm512_set1_epi32(64));
        const __mmask16 bit7 = _mm512_test_epi32_mask(i, _mm512_set1_epi32(128));
        __m512i quads[4];
        for (int k = 0; k < 4; ++k)
            quads[k] = _mm512_mask_blend_epi32(bit5, pairs[2 * k], pairs[2 * k + 1]);
        const __m512i low = _mm512_mask_blend_epi32(bit6, quads[0], quads[1]);
        const __m512i high = _mm512_mask_blend_epi32(bit6, quads[2], quads[3]);
        return _mm512_mask_blend_epi32(bit7, low, high);
    }
    __m512i m_entries[16];
    __m512i m_planes[4][4];
    alignas(64) std::uint32_t m_padded[16 + 256 + 16];
#else
    const std::uint32_t* __restrict m_table;
#if defined(__AVX2__)
    alignas(32) std::uint32_t m_padded[R == Reads::NearWords ? 8 + 256 + 8 : 1];
#endif
#endif
};

using VU64 = std::uint64_t __attribute__((vector_size(8 * kLanes)));

// Samples index and index + 1 of each lane (32-bit words or floats, as bits): one 64-bit load
// a lane (two gathers of eight with AVX-512), split into two vectors.
inline void GatherPairs(const void* __restrict base, VI index, VU& first, VU& second)
{
#if defined(__AVX512F__)
    const __m512i i = reinterpret_cast<__m512i>(index);
    const __m256i low = _mm512_mask_extracti64x4_epi64(_mm256_setzero_si256(), 0xF, i, 0);
    const __m256i high = _mm512_mask_extracti64x4_epi64(_mm256_setzero_si256(), 0xF, i, 1);
    const __m512i p0 = _mm512_mask_i32gather_epi64(_mm512_setzero_si512(), 0xFF, low, base, 4);
    const __m512i p1 = _mm512_mask_i32gather_epi64(_mm512_setzero_si512(), 0xFF, high, base, 4);
    first = reinterpret_cast<VU>(_mm512_permutex2var_epi32(
        p0, _mm512_setr_epi32(0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30), p1));
    second = reinterpret_cast<VU>(_mm512_permutex2var_epi32(
        p0, _mm512_setr_epi32(1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 23, 25, 27, 29, 31), p1));
#elif defined(__AVX2__)
    const LaneIndices at(index);
    const auto pair = [&](int k) {
        std::int64_t bits;
        __builtin_memcpy(&bits, static_cast<const char*>(base) + 4 * at[k], sizeof bits);
        return bits;
    };
    // Lanes 0, 1, 4, 5 in one register and 2, 3, 6, 7 in the other: one shuffle then takes each
    // register's first (second) words back in lane order, where splitting eight lanes in order
    // took twelve shuffles.
    const __m256i a = _mm256_setr_epi64x(pair(0), pair(1), pair(4), pair(5));
    const __m256i b = _mm256_setr_epi64x(pair(2), pair(3), pair(6), pair(7));
    first = reinterpret_cast<VU>(
        _mm256_shuffle_ps(_mm256_castsi256_ps(a), _mm256_castsi256_ps(b), _MM_SHUFFLE(2, 0, 2, 0)));
    second = reinterpret_cast<VU>(
        _mm256_shuffle_ps(_mm256_castsi256_ps(a), _mm256_castsi256_ps(b), _MM_SHUFFLE(3, 1, 3, 1)));
#else
    VU64 pairs{};
    for (int k = 0; k < kLanes; ++k) {
        std::uint64_t pair;
        __builtin_memcpy(&pair, static_cast<const char*>(base) + 4 * static_cast<std::ptrdiff_t>(index[k]),
                         sizeof pair);
        pairs[k] = pair;
    }
    // Little-endian: the lower word is the first texel.
    first = __builtin_convertvector(pairs, VU);
    second = __builtin_convertvector(pairs >> 32, VU);
#endif
}

// The sums of each lane's two signed 16-bit halves times those of weights (the multiply-add
// instruction where there is one).
inline VI PairSums(VU pairs, VI weights)
{
#if defined(__AVX512BW__)
    return reinterpret_cast<VI>(
        _mm512_madd_epi16(reinterpret_cast<__m512i>(pairs), reinterpret_cast<__m512i>(weights)));
#elif defined(__AVX2__)
    return reinterpret_cast<VI>(
        _mm256_madd_epi16(reinterpret_cast<__m256i>(pairs), reinterpret_cast<__m256i>(weights)));
#else
    const VI p = reinterpret_cast<VI>(pairs);
    return ((p << 16) >> 16) * ((weights << 16) >> 16) + (p >> 16) * (weights >> 16);
#endif
}

} // namespace
