#pragma once

#include "kestotool/platform/Export.h"

#include <cstdint>

#include <map>

namespace KestoTool {

// Moves the library's own command numbers into the band of command IDs the host grants it.
//
// A client allocates a range under a key: the address of one static wide string constant that
// it passes every time. Keys are compared by address, never by text, so two strings with equal
// text are two keys. Every mapping is relative to the map's base, not to the range's start:
// numbers map the same for every key, and a range only bounds the numbers its key may use.
class KESTO_API ToolIdMap {
public:
    ToolIdMap() = default;
    ToolIdMap(const ToolIdMap&) = default;
    ToolIdMap& operator=(const ToolIdMap&) = default;
    virtual ~ToolIdMap() = default;

    // The process-wide map, made on first use.
    static ToolIdMap& GetInstance();

    // Sets the host's grant [base, limit); ranges already handed out stay.
    void Init(int base, int limit);
    // First command ID of the key's range (the existing one if the key has a range already,
    // whatever count it asks for); -1 before Init or when count IDs no longer fit.
    int AllocateRange(const wchar_t* key, int count);
    // The host command ID of library number id: 0 for 0, -1 for an unknown key or an id past
    // the key's count.
    int MapIDToApp(const wchar_t* key, int id) const;
    // The library number of host command ID appId: 0 for 0, -1 for an unknown key or an ID
    // outside [base, base + count).
    int MapIDToLibrary(const wchar_t* key, int appId) const;
    bool RangeAllocated(const wchar_t* key) const;

private:
    struct Range {
        int start;
        int count;
    };

    const Range* Find(const wchar_t* key) const;

    std::map<const wchar_t*, Range, std::less<>> m_ranges;
    std::int64_t m_next = 0; // wide: ranges may fill a grant as large as the int range
    int m_base = -1;
    int m_limit = -1;
};

// The host's first call: grants the library the command IDs [base, limit).
KESTO_API void Init(int base, int limit);

} // namespace KestoTool
