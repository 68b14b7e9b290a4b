#include "kestotool/platform/CObject.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class Shape : public KestoPlatform::CObject {
    KESTO_DECLARE_DYNAMIC(Shape)
public:
    virtual int Corners() const = 0;
};

class Square : public Shape {
    KESTO_DECLARE_DYNCREATE(Square)
public:
    int Corners() const override { return 4; }
};

KESTO_IMPLEMENT_DYNAMIC(Shape, KestoPlatform::CObject)
KESTO_IMPLEMENT_DYNCREATE(Square, Shape)

} // namespace

TEST(CRuntimeClass, CreatesObjectsOfTheRecordedClass)
{
    std::unique_ptr<KestoPlatform::CObject> object(Square::GetThisClass()->CreateObject());
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->GetRuntimeClass(), Square::GetThisClass());
    EXPECT_EQ(dynamic_cast<Shape&>(*object).Corners(), 4);
    EXPECT_STREQ(Square::GetThisClass()->m_lpszClassName, "Square");
}

TEST(CRuntimeClass, AbstractClassesHaveARecordButNoFactory)
{
    EXPECT_EQ(Shape::GetThisClass()->CreateObject(), nullptr);
    EXPECT_EQ(Shape::GetThisClass()->m_pBaseClass, KestoPlatform::CObject::GetThisClass());
}

TEST(CRuntimeClass, DerivationFollowsTheBaseChain)
{
    EXPECT_TRUE(Square::GetThisClass()->IsDerivedFrom(Shape::GetThisClass()));
    EXPECT_TRUE(Square::GetThisClass()->IsDerivedFrom(KestoPlatform::CObject::GetThisClass()));
    EXPECT_FALSE(Shape::GetThisClass()->IsDerivedFrom(Square::GetThisClass()));
    Square s;
    EXPECT_TRUE(s.IsKindOf(Shape::GetThisClass()));
}
