#include "support/UserInput.h"

#include "kestotool/platform/HeadlessBackend.h"

namespace KestoTest {

namespace {

using Platform::Headless;

class HeadlessInput final : public UserInput {
public:
    std::string Name() const override { return "Headless"; }
    void Install() override { Platform::SetBackend(nullptr); }
    void Uninstall() override
    {
        Headless().SetModalScript(nullptr);
        Headless().SetColourScript(nullptr);
    }
    void SetModalScript(std::function<void(Platform::CDialog&)> script) override { Headless().SetModalScript(std::move(script)); }
    void Type(const Platform::CString& text) override { Headless().Type(text); }
    void EnterText(const Platform::CString& text) override { Headless().EnterText(text); }
    void PressKey(unsigned key) override { Headless().PressKey(key); }
    void MoveFocus(Platform::CWnd* window) override { Headless().MoveFocus(window); }
    void DragSlider(Platform::CSliderCtrl& slider, int pos) override { Headless().DragSlider(slider, pos); }
    void ClickSpin(Platform::CSpinButtonCtrl& spin, bool up) override { Headless().ClickSpin(spin, up); }
    void ClickButton(Platform::CWnd& dialog, int id) override { Headless().ClickButton(dialog, id); }
    void AdvanceClock(int milliseconds) override { Headless().AdvanceClock(milliseconds); }
    void DragMouse(Platform::CWnd& window, Platform::CPoint from, Platform::CPoint to, unsigned flags) override
    {
        Headless().DragMouse(window, from, to, flags);
    }
    void SelectItem(Platform::CComboBox& combo, int index) override
    {
        combo.SetCurSel(index);
        combo.NotifyParent(Platform::CBN_SELCHANGE);
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
