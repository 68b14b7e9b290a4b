#pragma once

namespace KestoTool {

class IToolHelper;

// The host document, as the library sees it: the way to the host's services.
class IDocumentEx {
public:
    virtual ~IDocumentEx() = default;
    // Not owned by the caller.
    virtual IToolHelper* GetToolHelper() = 0;
};

} // namespace KestoTool
