#include "support/TestDocument.h"

#include "kestotool/platform/CXTPControlPopupColor.h"

namespace KestoTest {

CColour* TestToolHelper::NextAnswer(const CColour* current)
{
    pickerCurrents.push_back(current ? current->Clone() : nullptr);
    if (pickerAnswers.empty())
        return nullptr;
    std::unique_ptr<CColour> answer = std::move(pickerAnswers.front());
    pickerAnswers.pop_front();
    return answer.release();
}

int TestToolHelper::CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc)
{
    if (!cc)
        return 0;
    cc->pControl = std::make_unique<KestoPlatform::CXTPControlPopupColor>(cc->nID);
    ++colourControlsCreated;
    return 1;
}

bool TestToolHelper::ColourPicker(const CColour* current, CColour*& result, KestoPlatform::CWnd*)
{
    result = NextAnswer(current);
    return result != nullptr;
}

CColour* TestToolHelper::ColourPicker(const CColour* current, KestoPlatform::CWnd*)
{
    return NextAnswer(current);
}

CColour* TestToolHelper::AskUserForNewColour(const CColour* current, KestoPlatform::CPoint, KestoPlatform::CWnd*)
{
    return NextAnswer(current);
}

bool TestToolHelper::IsFillTypeAvailable(KestoGDI::CFill* sample)
{
    return sample && !unavailableFillTypes.count(sample->GetFillType());
}

bool TestToolHelper::IsTransparencyTypeAvailable(KestoGDI::CFill* sample)
{
    return sample && !unavailableTransparencyTypes.count(sample->GetFillType());
}

} // namespace KestoTest
