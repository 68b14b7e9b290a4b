#pragma once

#include <span>

namespace KestoTool {

// One row of the fill tools' command table: a command number, its icon in the image archive
// (or none) and the string id of its prompt.
struct FillCommandRow {
    int number;
    const wchar_t* icon;
    int promptId;
};

// The rows in their stored order.
std::span<const FillCommandRow> FillCommandTable();
// The first row for the number that has a prompt; null for none.
const FillCommandRow* FindFillCommand(int number);

} // namespace KestoTool
