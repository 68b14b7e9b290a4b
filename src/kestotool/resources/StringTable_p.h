#pragma once

namespace KestoTool {

// The library's own text for a string id (hint lines, tooltips, undo names), or null for an
// id it does not have. Code asks Module::LoadString, which prefers a localised module's text.
const wchar_t* FindBuiltInString(int id);

} // namespace KestoTool
