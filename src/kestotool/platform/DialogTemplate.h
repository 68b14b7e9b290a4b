#pragma once

#include "kestotool/platform/CRect.h"

#include <string>
#include <vector>

namespace KestoPlatform {

// One control of a dialog template. The class names the framework knows are "Edit", "Slider",
// "Spin", "ComboBox", "Button", "CheckBox" and "Static"; any other (a custom control) makes a plain window
// for the dialog's own object to take over.
struct DialogItemTemplate {
    std::string className;
    int id = 0;
    CRect rect;
    std::wstring text;
};

// A dialog's layout as its resources describe it.
struct DialogTemplate {
    int id = 0;
    std::wstring caption;
    CRect rect;
    std::vector<DialogItemTemplate> items;
};

} // namespace KestoPlatform
