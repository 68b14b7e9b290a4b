#include "tool/FillCommandTable.h"

namespace KestoTool {

std::span<const FillCommandRow> FillCommandTable()
{
    // The colour commands share the edit-fill image; lock ratio and reset handles share the
    // maximum-fit image. Commands 0 (context) and 2 (type combo) have no row.
    static constexpr FillCommandRow rows[] = {
        {1, L"Edit Fill.png", 116},
        {3, L"Edit Fill.png", 119},
        {4, L"Edit Fill.png", 120},
        {5, L"Edit Fill.png", 118},
        {6, L"Rotate Anticlockwise.png", 122},
        {7, L"Rotate Clockwise.png", 121},
        {8, L"Edit Transparency.png", 130},
        {10, nullptr, 125},
        {9, nullptr, 128},
        {12, nullptr, 126},
        {11, nullptr, 129},
        {14, nullptr, 124},
        {13, nullptr, 127},
        {15, L"Maximum Fit To Shape.png", 132},
        {17, L"Maximum Fit To Shape.png", 135},
        {16, L"Fit To Shape.png", 134},
        {18, L"Fit To Shape.png", 133},
        {19, L"Maximum Fit To Shape.png", 136},
        {20, L"Scale Mode.png", 25493},
        {21, L"Space Mode.png", 25494},
    };
    return rows;
}

const FillCommandRow* FindFillCommand(int number)
{
    for (const FillCommandRow& row : FillCommandTable()) {
        if (row.number == number && row.promptId != 0)
            return &row;
    }
    return nullptr;
}

} // namespace KestoTool
