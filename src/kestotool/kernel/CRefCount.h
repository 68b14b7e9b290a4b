#pragma once

#include "kestotool/platform/Export.h"

#include <atomic>
#include <cstddef>

namespace KestoKernel {

// An intrusive reference count. An object starts with a count of zero; the first RefPtr (or
// AddRef) takes it to one, and the Release that takes it back to zero deletes the object.
// Copying an object gives the copy a fresh count of zero: counts belong to objects, not values.
// The count is mutable so that constant objects can be shared too, and atomic so that threads
// may share them (a host paints on a worker while its GUI thread edits).
class KESTO_API CRefCount {
public:
    virtual ~CRefCount() = default;

    int AddRef() const { return m_refs.fetch_add(1, std::memory_order_relaxed) + 1; }
    // Answers the count left; the object is gone when that is zero.
    int Release() const;
    int GetRefCount() const { return m_refs.load(std::memory_order_relaxed); }

    // Bytes this object holds, itself included, for memory accounting by caches.
    virtual std::size_t Measure() const = 0;

protected:
    CRefCount() = default;
    CRefCount(const CRefCount&) : m_refs(0) {}
    CRefCount& operator=(const CRefCount&) { return *this; }

private:
    mutable std::atomic<int> m_refs = 0;
};

} // namespace KestoKernel
