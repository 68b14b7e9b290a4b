#include "support/UserInput.h"

#include "kestotool/platform/HeadlessBackend.h"

namespace KestoTest {

namespace {

using KestoPlatform::Headless;

class HeadlessInput final : public UserInput {
public:
    std::string Name() const override { return "Headless"; }
    void Install() override { KestoPlatform::SetBackend(nullptr); }
    void Uninstall() override
    {
        Headless().SetModalScript(nullptr);
        Headless().SetColourScript(nullptr);
    }
    void SetModalScript(std::function<void(KestoPlatform::CDialog&)> script) override
    {
        Headless().SetModalScript(std::move(script));
    }
    void Type(const KestoPlatform::CString& text) override { Headless().Type(text); }
    void EnterText(const KestoPlatform::CString& text) override { Headless().EnterText(text); }
    void PressKey(unsigned key) override { Headless().PressKey(key); }
    void MoveFocus(KestoPlatform::CWnd* window) override { Headless().MoveFocus(window); }
    void DragSlider(KestoPlatform::CSliderCtrl& slider, int pos) override { Headless().DragSlider(slider, pos); }
    void ClickSpin(KestoPlatform::CSpinButtonCtrl& spin, bool up) override { Headless().ClickSpin(spin, up); }
    void ClickButton(KestoPlatform::CWnd& dialog, int id) override { Headless().ClickButton(dialog, id); }
    void AdvanceClock(int milliseconds) override { Headless().AdvanceClock(milliseconds); }
    void DragMouse(KestoPlatform::CWnd& window, KestoPlatform::CPoint from, KestoPlatform::CPoint to,
                   unsigned flags) override
    {
        Headless().DragMouse(window, from, to, flags);
    }
    void SelectItem(KestoPlatform::CComboBox& combo, int index) override
    {
        combo.SetCurSel(index);
        combo.NotifyParent(KestoPlatform::CBN_SELCHANGE);
    }
    void SetColourScript(ColourScript script) override { Headless().SetColourScript(std::move(script)); }
};

} // namespace

std::vector<UserInput*> UserInputs()
{
    static HeadlessInput headless;
    std::vector<UserInput*> inputs{&headless};
#ifdef KESTO_TEST_QT
    inputs.push_back(&QtUserInput());
#endif
    return inputs;
}

} // namespace KestoTest
