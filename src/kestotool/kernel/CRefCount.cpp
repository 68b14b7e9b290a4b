#include "kestotool/kernel/CRefCount.h"

#include "kestotool/kernel/VerifyReporter.h"

namespace KestoKernel {

namespace {

// The numbers this file reports its broken preconditions with.
constexpr int kReportReleaseUnheld = 10;

} // namespace

int CRefCount::Release() const
{
    if (m_refs <= 0) {
        VerifyFailed("KestoKernel", "CRefCount", kReportReleaseUnheld,
                     "release only an object you hold a reference to");
        return 0;
    }
    const int left = --m_refs;
    if (left == 0)
        delete this;
    return left;
}

} // namespace KestoKernel
