#include "kestotool/platform/CCmdTarget.h"
#include "kestotool/platform/CCmdUI.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace KestoPlatform;

namespace {

class Base : public CCmdTarget {
public:
    std::vector<std::string> calls;

protected:
    void OnOne() { calls.push_back("base one"); }
    void OnTwo() { calls.push_back("base two"); }
    void OnUpdateOne(CCmdUI* ui)
    {
        ui->Enable(true);
        ui->SetCheck(1);
    }
    void OnPicked(NMXTPCONTROL* n, long* result)
    {
        calls.push_back("picked " + std::to_string(n ? n->hdr.code : -1));
        if (result)
            *result = 7;
    }
    const AFX_MSGMAP* GetMessageMap() const override
    {
        static const AFX_MSGMAP_ENTRY entries[] = {
            MessageMap::Command<&Base::OnOne>(1),
            MessageMap::Command<&Base::OnTwo>(2),
            MessageMap::Update<&Base::OnUpdateOne>(1),
            MessageMap::Notify<&Base::OnPicked>(2, 100),
        };
        static const AFX_MSGMAP map{CCmdTarget::GetThisMessageMap(), entries};
        return &map;
    }
};

class Derived : public Base {
protected:
    void OnOneAgain() { calls.push_back("derived one"); }
    void OnRange(int id) { calls.push_back("range " + std::to_string(id)); }
    const AFX_MSGMAP* GetMessageMap() const override
    {
        static const AFX_MSGMAP_ENTRY entries[] = {
            MessageMap::Command<&Derived::OnOneAgain>(1),
            MessageMap::CommandRange<&Derived::OnRange>(10, 12),
        };
        static const AFX_MSGMAP map{Base::GetMessageMap(), entries};
        return &map;
    }
};

} // namespace

TEST(CCmdTarget, DerivedRowsWinAndTheChainReachesTheBase)
{
    Derived d;
    EXPECT_TRUE(d.OnCmdMsg(1, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(d.OnCmdMsg(2, CN_COMMAND, nullptr, nullptr));
    EXPECT_TRUE(d.OnCmdMsg(11, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(d.OnCmdMsg(13, CN_COMMAND, nullptr, nullptr));
    EXPECT_FALSE(d.OnCmdMsg(-1, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(d.calls, (std::vector<std::string>{"derived one", "base two", "range 11"}));
}

TEST(CCmdTarget, UpdateRequestsReachTheControlBehindTheCommand)
{
    Derived d;
    CXTPControlButton button(1);
    button.SetEnabled(false);
    CCmdUI ui(1, &button);
    EXPECT_TRUE(ui.DoUpdate(&d));
    EXPECT_TRUE(button.GetEnabled());
    EXPECT_TRUE(button.GetChecked());
    CCmdUI unhandled(2);
    EXPECT_FALSE(unhandled.DoUpdate(&d));
    EXPECT_FALSE(unhandled.IsEnabled());
}

TEST(CCmdTarget, NotificationsRouteByTheirCode)
{
    Derived d;
    NMXTPCONTROL n;
    n.hdr.code = 65536;
    long result = 0;
    AFX_NOTIFY notify{&result, &n};
    EXPECT_FALSE(d.OnCmdMsg(2, CN_NOTIFY(0), &notify, nullptr));
    EXPECT_TRUE(d.OnCmdMsg(2, CN_NOTIFY(100), &notify, nullptr));
    EXPECT_EQ(result, 7);
    EXPECT_EQ(d.calls, std::vector<std::string>{"picked 65536"});
}

TEST(CCmdTarget, HandlerInfoOnlyAsksWhetherAHandlerExists)
{
    Derived d;
    AFX_CMDHANDLERINFO info;
    EXPECT_TRUE(d.OnCmdMsg(1, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &d);
    EXPECT_TRUE(d.calls.empty());
    EXPECT_FALSE(d.OnCmdMsg(5, CN_COMMAND, nullptr, &info));
}
