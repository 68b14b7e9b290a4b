#pragma once

#include "kestotool/kernel/CRefCount.h"
#include "kestotool/platform/Export.h"

namespace KestoTool {

// How the host presents itself to the library (large or small icons). The host derives its
// own class and installs it with Set; until then a default answers false to both questions.
class KESTO_API AppAttributes : public KestoKernel::CRefCount {
public:
    std::size_t Measure() const override { return sizeof(*this); }
    virtual bool IsLargeIcons() const { return false; }
    virtual bool IsSmallIcons() const { return false; }

    // The installed attributes; a default instance is made when none is installed. The
    // holder keeps its own reference, so the answer stays valid until the next Set.
    static AppAttributes* Get();
    // Installs p (taking a reference) and releases the previous instance; null empties the
    // holder, after which Get makes a fresh default.
    static void Set(AppAttributes* p);
};

} // namespace KestoTool
