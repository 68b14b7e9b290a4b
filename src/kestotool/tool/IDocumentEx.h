#pragma once

#include "kestotool/platform/Export.h"

namespace KestoTool {

class IToolHelper;

// The host document, as the library sees it: the way to the host's services.
class KESTO_API IDocumentEx {
public:
    virtual ~IDocumentEx() = default;
    // Not owned by the caller.
    virtual IToolHelper* GetToolHelper() = 0;
};

} // namespace KestoTool
