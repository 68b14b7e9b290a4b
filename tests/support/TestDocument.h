#pragma once

#include "kestotool/tool/IDocumentEx.h"
#include "kestotool/tool/IToolHelper.h"

#include <deque>
#include <memory>
#include <set>
#include <vector>

namespace KestoTest {

using KestoGDI::CColour;

// A tool helper with scripted colour pickers (each call takes the next answer; none left, or
// a null answer, is a cancel) and type filters.
class TestToolHelper : public KestoTool::IToolHelper {
public:
    std::deque<std::unique_ptr<CColour>> pickerAnswers;
    // The colour each picker call was opened with (null entries for none).
    std::vector<std::unique_ptr<CColour>> pickerCurrents;
    std::set<int> unavailableFillTypes;
    std::set<int> unavailableTransparencyTypes;
    bool dialogSetting = true;
    bool lockRatioAvailable = true;
    int colourControlsCreated = 0;

    void Answer(const CColour& colour) { pickerAnswers.push_back(colour.Clone()); }
    void Cancel() { pickerAnswers.push_back(nullptr); }

    int CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) override;
    bool ColourPicker(const CColour* current, CColour*& result, KestoPlatform::CWnd* owner) override;
    CColour* ColourPicker(const CColour* current, KestoPlatform::CWnd* owner) override;
    CColour* AskUserForNewColour(const CColour* current, KestoPlatform::CPoint where,
                                 KestoPlatform::CWnd* owner) override;
    bool IsFillTypeAvailable(KestoGDI::CFill* sample) override;
    bool IsTransparencyTypeAvailable(KestoGDI::CFill* sample) override;
    bool GetDialogSetting() override { return dialogSetting; }
    bool IsLockRatioAvailable() override { return lockRatioAvailable; }

private:
    CColour* NextAnswer(const CColour* current);
};

class TestDocument : public KestoTool::IDocumentEx {
public:
    TestToolHelper helper;
    KestoTool::IToolHelper* GetToolHelper() override { return &helper; }
};

} // namespace KestoTest
