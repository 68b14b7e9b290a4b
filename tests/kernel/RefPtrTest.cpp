#include "kestotool/kernel/CRefCount.h"
#include "kestotool/kernel/RefPtr.h"
#include "kestotool/kernel/VerifyReporter.h"

#include <gtest/gtest.h>

namespace {

class Counted : public KestoKernel::CRefCount {
public:
    explicit Counted(int* deaths, int value = 0) : m_deaths(deaths), m_value(value) {}
    ~Counted() override { ++*m_deaths; }
    std::size_t Measure() const override { return sizeof(*this); }

private:
    int* m_deaths;

public:
    int m_value;
};

class Derived : public Counted {
public:
    using Counted::Counted;
};

} // namespace

TEST(RefPtr, LastReleaseDeletesTheObject)
{
    int deaths = 0;
    {
        KestoKernel::RefPtr<Counted> a(new Counted(&deaths));
        EXPECT_EQ(a->GetRefCount(), 1);
        {
            KestoKernel::RefPtr<Counted> b = a;
            EXPECT_EQ(a->GetRefCount(), 2);
        }
        EXPECT_EQ(a->GetRefCount(), 1);
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(RefPtr, CopyingAnObjectDoesNotCopyItsCount)
{
    int deaths = 0;
    auto original = KestoKernel::MakeRef<Counted>(&deaths, 7);
    KestoKernel::RefPtr<Counted> extra = original;
    KestoKernel::RefPtr<Counted> copy(new Counted(*original));
    EXPECT_EQ(copy->GetRefCount(), 1);
    EXPECT_EQ(copy->m_value, 7);
    copy.reset();
    EXPECT_EQ(deaths, 1);
    EXPECT_EQ(original->GetRefCount(), 2);
}

TEST(RefPtr, MoveAndDetachTransferTheReference)
{
    int deaths = 0;
    auto a = KestoKernel::MakeRef<Counted>(&deaths);
    KestoKernel::RefPtr<Counted> b = std::move(a);
    EXPECT_FALSE(a);
    EXPECT_EQ(b->GetRefCount(), 1);
    Counted* raw = b.Detach();
    EXPECT_FALSE(b);
    EXPECT_EQ(raw->GetRefCount(), 1);
    EXPECT_EQ(raw->Release(), 0);
    EXPECT_EQ(deaths, 1);
}

TEST(RefPtr, ReleasingAnUnownedObjectIsReportedNotFreed)
{
    int reports = 0;
    KestoKernel::ScopedVerifyHandler handler([&](const KestoKernel::VerifyReport&) { ++reports; });
    int deaths = 0;
    Counted stackObject(&deaths);
    EXPECT_EQ(stackObject.Release(), 0);
    EXPECT_EQ(reports, 1);
    EXPECT_EQ(deaths, 0);
}
