#pragma once

namespace KestoTool {

// A tool that an editor dialog builds for its preview: the tool itself in every operation, only
// destroyed as an object of the library that made it (the dialog owns and replaces it).
template <class Tool>
class FillToolWrapper final : public Tool {
public:
    using Tool::Tool;
    ~FillToolWrapper() override = default;
};

} // namespace KestoTool
