#include "kestotool/kernel/CRefCount.h"

#include "kestotool/kernel/VerifyReporter.h"

namespace KestoKernel {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportReleaseUnheld = 10;

} // namespace

int CRefCount::Release() const
{
    if (m_refs.load(std::memory_order_relaxed) <= 0) {
        VerifyFailed("KestoKernel", "CRefCount", kReportReleaseUnheld,
                     "release only an object you hold a reference to");
        return 0;
    }
    // Whatever this thread did to the object happens before the delete on another's release.
    const int left = m_refs.fetch_sub(1, std::memory_order_acq_rel) - 1;
    if (left == 0)
        delete this;
    return left;
}

} // namespace KestoKernel
