#include "kestotool/tool/FillEditors_p.h"

namespace KestoTool {

FillEditors& FillEditors::Installed()
{
    static constinit FillEditors editors;
    return editors;
}

} // namespace KestoTool
