#pragma once

#include "kestotool/platform/CSize.h"
#include "kestotool/platform/Export.h"

#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

namespace KestoPlatform {

// A command image: 0xAARRGGBB pixels with straight alpha, rows top to bottom.
struct XTPImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> argb;
};

enum class XTPImageState {
    Normal,
    Disabled,
    Hot,
    Checked,
};

// The images of a command bar's commands, kept per command ID, icon size and state.
class KESTO_API CXTPImageManager {
public:
    // The icon side that suits a screen: 16 pixels at 96 dots per inch, in proportion above
    // (20 at 120, 24 at 144, 32 at 192); never below 16.
    static CSize GetPreferredIconSizeforDPI(int dpi);

    // Registers one image for each of the count command IDs at the given size and state.
    void SetIcons(const XTPImage& image, const int* ids, int count, CSize size, XTPImageState state);
    // The image of a command at a size and state; null when none was registered.
    const XTPImage* GetImage(int id, CSize size, XTPImageState state = XTPImageState::Normal) const;
    int GetImageCount() const { return static_cast<int>(m_images.size()); }

private:
    using Key = std::tuple<int, int, int, XTPImageState>;
    std::map<Key, std::shared_ptr<const XTPImage>> m_images;
};

} // namespace KestoPlatform
