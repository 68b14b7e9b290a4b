#pragma once

namespace KestoGDI {

// How a fill's paint combines with what lies beneath it.
enum class BlendMode {
    Normal,
    Multiply,
    Screen,
    Overlay,
    Darken,
    Lighten,
    Difference,
};

} // namespace KestoGDI
