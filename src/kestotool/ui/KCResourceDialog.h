#pragma once

#include "kestotool/platform/CDialog.h"
#include "kestotool/platform/Export.h"

namespace KestoUI {

// A dialog whose template comes from the resource modules by id (the library's localised
// module first). A template no module has leaves the dialog unable to run: DoModal answers -1.
class KESTO_API KCResourceDialog : public KestoPlatform::CDialog {
public:
    KCResourceDialog(int templateId, KestoPlatform::CWnd* parent);
    int GetTemplateId() const { return m_templateId; }

private:
    int m_templateId;
};

} // namespace KestoUI
