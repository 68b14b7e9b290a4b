#pragma once

#include "kestotool/platform/CComboBox.h"
#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/CSliderCtrl.h"
#include "kestotool/platform/CSpinButtonCtrl.h"
#include "kestotool/platform/ColourRef.h"

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace KestoTest {

// What a user does to the library's dialogs, played on one window back end: the same dialog
// test runs on every back end the build has. Keys and clicks go where the user's would (the
// focused window, the button under the pointer); time moves only when told.
class UserInput {
public:
    virtual ~UserInput() = default;
    virtual std::string Name() const = 0;

    // Makes this back end the one that windows are created on; Uninstall puts back the headless
    // one and forgets the modal script.
    virtual void Install() = 0;
    virtual void Uninstall() = 0;

    // The script that the next modal runs play once their dialog is showing; a dialog the
    // script leaves open is cancelled.
    virtual void SetModalScript(std::function<void(KestoPlatform::CDialog&)> script) = 0;
    // Keystrokes into the focused window.
    virtual void Type(const KestoPlatform::CString& text) = 0;
    // A whole new text into the focused edit box at once, as an input method commits it.
    virtual void EnterText(const KestoPlatform::CString& text) = 0;
    virtual void PressKey(unsigned key) = 0;
    virtual void MoveFocus(KestoPlatform::CWnd* window) = 0;
    // Drags the slider's thumb to pos and lets go.
    virtual void DragSlider(KestoPlatform::CSliderCtrl& slider, int pos) = 0;
    virtual void ClickSpin(KestoPlatform::CSpinButtonCtrl& spin, bool up) = 0;
    // Clicks the button with that id in the dialog.
    virtual void ClickButton(KestoPlatform::CWnd& dialog, int id) = 0;
    virtual void AdvanceClock(int milliseconds) = 0;
    // Presses the left button at from in the window (client dialog units), drags through to
    // and lets go there, holding the MK_ keys in flags.
    virtual void DragMouse(KestoPlatform::CWnd& window, KestoPlatform::CPoint from, KestoPlatform::CPoint to,
                           unsigned flags = 0) = 0;
    // Picks an item of the drop-down list.
    virtual void SelectItem(KestoPlatform::CComboBox& combo, int index) = 0;
    // What the user picks in the colour chooser from now on (nothing cancels); null for no
    // script.
    using ColourScript = std::function<std::optional<KestoPlatform::COLORREF>(KestoPlatform::COLORREF initial)>;
    virtual void SetColourScript(ColourScript script) = 0;
};

// Every back end of this build: headless always, Qt when the build has it.
std::vector<UserInput*> UserInputs();
#ifdef KESTO_TEST_QT
// Qt widgets on the platform QT_QPA_PLATFORM names (offscreen when it names none).
UserInput& QtUserInput();
#endif

// In test names and messages: the back end's name.
inline void PrintTo(UserInput* input, std::ostream* os)
{
    *os << input->Name();
}

struct UserInputName {
    template <class Info>
    std::string operator()(const Info& info) const
    {
        return info.param->Name();
    }
};

} // namespace KestoTest
