#include "kestotool/tool/ToolIdMap.h"

#include "kestotool/kernel/VerifyReporter.h"

#include <cstdint>
#include <limits>

namespace KestoTool {
namespace {

// The reports name this file and these lines; hosts and their logs rely on them.
constexpr int kLineNotInitialised = 29;
constexpr int kLineRangeFull = 43;
constexpr int kLineUnknownKeyToLibrary = 70;
constexpr int kLineUnknownKeyToApp = 97;

void Report(int line)
{
    const char* hint =
        line == kLineNotInitialised ? "call KestoTool::Init with the command IDs granted to the library first"
        : line == kLineRangeFull    ? "the count is negative or no longer fits: grant KestoTool::Init a larger band"
                                    : "map IDs only under a key that has allocated its range";
    KestoKernel::VerifyFailed("KestoUiGdi", "ToolIdMap.cpp", line, hint);
}

} // namespace

ToolIdMap& ToolIdMap::GetInstance()
{
    static ToolIdMap instance;
    return instance;
}

void ToolIdMap::Init(int base, int limit)
{
    m_base = base;
    m_limit = limit;
}

const ToolIdMap::Range* ToolIdMap::Find(const wchar_t* key) const
{
    const auto it = m_ranges.find(key);
    return it == m_ranges.end() ? nullptr : &it->second;
}

int ToolIdMap::AllocateRange(const wchar_t* key, int count)
{
    if (m_base == -1) {
        Report(kLineNotInitialised);
        return -1;
    }
    if (const Range* existing = Find(key))
        return existing->start;
    // Wide arithmetic: a grant near the ends of the int range must not wrap, and a negative
    // count must not move later ranges below the base.
    const std::int64_t room = static_cast<std::int64_t>(m_limit) - m_next - m_base;
    if (count < 0 || room < count) {
        Report(kLineRangeFull);
        return -1;
    }
    const int start = static_cast<int>(static_cast<std::int64_t>(m_base) + m_next);
    m_ranges.emplace(key, Range{start, count});
    m_next += count;
    return start;
}

int ToolIdMap::MapIDToApp(const wchar_t* key, int id) const
{
    if (id == 0)
        return 0;
    const Range* range = Find(key);
    if (!range) {
        Report(kLineUnknownKeyToApp);
        return -1;
    }
    if (id >= range->count)
        return -1;
    // Computed wide: a negative id far below the base has no int answer.
    const std::int64_t app = static_cast<std::int64_t>(m_base) + id;
    return app >= std::numeric_limits<int>::min() ? static_cast<int>(app) : -1;
}

int ToolIdMap::MapIDToLibrary(const wchar_t* key, int appId) const
{
    if (appId == 0)
        return 0;
    const Range* range = Find(key);
    if (!range) {
        Report(kLineUnknownKeyToLibrary);
        return -1;
    }
    const std::int64_t d = static_cast<std::int64_t>(appId) - m_base;
    if (d < 0 || d >= range->count)
        return -1;
    return static_cast<int>(d);
}

bool ToolIdMap::RangeAllocated(const wchar_t* key) const
{
    return Find(key) != nullptr;
}

void Init(int base, int limit)
{
    ToolIdMap::GetInstance().Init(base, limit);
}

} // namespace KestoTool
