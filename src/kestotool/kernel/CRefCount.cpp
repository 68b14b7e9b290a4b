#include "kestotool/kernel/CRefCount.h"

#include "kestotool/kernel/VerifyReporter.h"

namespace KestoKernel {

int CRefCount::Release() const
{
    if (m_refs <= 0) {
        VerifyFailed("KestoKernel", "CRefCount", __LINE__, "release only an object you hold a reference to");
        return 0;
    }
    const int left = --m_refs;
    if (left == 0)
        delete this;
    return left;
}

} // namespace KestoKernel
