#include "kestotool/tool/AppAttributes.h"

#include <gtest/gtest.h>

using KestoTool::AppAttributes;

namespace {

class LargeIcons : public AppAttributes {
public:
    explicit LargeIcons(int* deaths) : m_deaths(deaths) {}
    ~LargeIcons() override { ++*m_deaths; }
    bool IsLargeIcons() const override { return true; }

private:
    int* m_deaths;
};

} // namespace

TEST(AppAttributes, DefaultAnswersNoToBothIconQuestions)
{
    AppAttributes::Set(nullptr);
    AppAttributes* a = AppAttributes::Get();
    ASSERT_NE(a, nullptr);
    EXPECT_FALSE(a->IsLargeIcons());
    EXPECT_FALSE(a->IsSmallIcons());
    EXPECT_EQ(AppAttributes::Get(), a);
}

TEST(AppAttributes, SetReplacesAndReleasesThePreviousInstance)
{
    int deaths = 0;
    auto* host = new LargeIcons(&deaths);
    AppAttributes::Set(host);
    EXPECT_EQ(AppAttributes::Get(), host);
    EXPECT_TRUE(AppAttributes::Get()->IsLargeIcons());
    EXPECT_EQ(host->GetRefCount(), 1);

    AppAttributes::Set(nullptr);
    EXPECT_EQ(deaths, 1);
    EXPECT_FALSE(AppAttributes::Get()->IsLargeIcons());
}
