#include "kestotool/dialogs/EditorEntryPoints.h"

#include "kestotool/dialogs/GradientFillDlg.h"
#include "kestotool/dialogs/GradientTranspDlg.h"
#include "kestotool/dialogs/PlasmaFillDlg.h"
#include "kestotool/dialogs/SolidTransparencyDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourFillDlg.h"
#include "kestotool/dialogs/ThreeAndFourColourTranspDlg.h"
#include "kestotool/dialogs/VectorFillDlgBase.h"
#include "kestotool/gdi/CFillBitmap.h"
#include "kestotool/gdi/CFillConical.h"
#include "kestotool/gdi/CFillDiscreteMesh.h"
#include "kestotool/gdi/CFillEllipse.h"
#include "kestotool/gdi/CFillFourColour.h"
#include "kestotool/gdi/CFillLinear.h"
#include "kestotool/gdi/CFillNone.h"
#include "kestotool/gdi/CFillRadial.h"
#include "kestotool/gdi/CFillSolid.h"
#include "kestotool/gdi/CFillSquare.h"
#include "kestotool/gdi/CFillThreeColour.h"
#include "kestotool/gdi/CTransparencyFlat.h"
#include "kestotool/gdi/FillKinds.h"
#include "kestotool/platform/CXTPControlComboBox.h"
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/tool/IDocumentEx.h"
#include "kestotool/tool/IToolHelper.h"

#include <memory>

namespace KestoTool {

using namespace KestoGDI;

namespace {

// Runs an editor with the helper's setting and hands over its fill after OK.
RefPtr<CFill> Run(ExpandingFillPreviewDlg&& dialog, bool helperSetting)
{
    dialog.SetHelperSetting(helperSetting);
    return dialog.DoModal() == Platform::IDOK ? dialog.TakeFill() : nullptr;
}

RefPtr<CFill> PickSolid(IDocumentEx* document, const CFillSolid* solid, Platform::CWnd* parent)
{
    std::unique_ptr<CColour> chosen(
        document->GetToolHelper()->ColourPicker(solid ? &solid->GetColour() : nullptr, parent));
    if (!chosen)
        return nullptr;
    auto result = Kernel::MakeRef<CFillSolid>(*chosen, true);
    if (solid) {
        result->SetBlendMode(solid->GetBlendMode());
        result->SetOverprint(solid->GetOverprint());
    }
    return result;
}

// What an editor is opened with.
struct EditorArguments {
    IDocumentEx* document;
    const CRect& objectRect;
    Platform::CWnd* parent;
    bool helperSetting;
};

// The editor family of each fill kind, shared by fills and transparencies: the line gradients
// go to a gradient editor, three- and four-colour fills to their editor, plasma to the plasma
// fill dialog (there is no plasma transparency dialog: it serves both), bitmap and
// discrete-mesh fills to none. What differs for fills and transparencies is left to the two
// choices below.
class EditorChoice : public ConstFillVisitor {
public:
    RefPtr<CFill> result;

    using ConstFillVisitor::Visit;
    void Visit(const CFillLinear& fill) final { Gradient(fill); }
    void Visit(const CFillRadial& fill) final { Gradient(fill); }
    void Visit(const CFillEllipse& fill) final { Gradient(fill); }
    void Visit(const CFillConical& fill) final { Gradient(fill); }
    void Visit(const CFillSquare& fill) final { Gradient(fill); }
    void Visit(const CFillThreeColour& fill) final { ThreeOrFourColour(fill); }
    void Visit(const CFillFourColour& fill) final { ThreeOrFourColour(fill); }
    void Visit(const CFillFractal& fill) final
    {
        result = Run(CPlasmaFillDlg(m_args.document, &fill, m_args.objectRect, m_args.parent), m_args.helperSetting);
    }
    void Visit(const CFillBitmap&) final {}
    void Visit(const CFillDiscreteMesh&) final {}

protected:
    explicit EditorChoice(const EditorArguments& args) : m_args(args) {}
    virtual void Gradient(const CFillGradient& fill) = 0;
    virtual void ThreeOrFourColour(const CFillGradient& fill) = 0;

    const EditorArguments m_args;
};

// EditFill: none and solid fills go to the colour chooser, vector fills to their editor.
class FillEditorChoice final : public EditorChoice {
public:
    FillEditorChoice(const EditorArguments& args, const Kesto2D::K2DLtGeneral& objectTransform)
        : EditorChoice(args), m_objectTransform(objectTransform)
    {
    }

    using EditorChoice::Visit;
    void Visit(const CFillNone&) override { result = PickSolid(m_args.document, nullptr, m_args.parent); }
    void Visit(const CFillSolid& fill) override { result = PickSolid(m_args.document, &fill, m_args.parent); }
    void Visit(const CFillVector& fill) override
    {
        result = Run(CVectorFillDlgBase(m_args.document, &fill, m_args.objectRect, m_args.parent, IDD_VECTOR_FILL,
                                        m_objectTransform),
                     m_args.helperSetting);
    }

private:
    void Gradient(const CFillGradient& fill) override
    {
        result = Run(CGradientFillDlg(m_args.document, &fill, m_args.objectRect, m_args.parent), m_args.helperSetting);
    }
    void ThreeOrFourColour(const CFillGradient& fill) override
    {
        result = Run(CThreeAndFourColourFillDlg(m_args.document, &fill, m_args.objectRect, m_args.parent),
                     m_args.helperSetting);
    }

    const Kesto2D::K2DLtGeneral& m_objectTransform;
};

// EditTransparency: no and flat transparencies go to the solid transparency dialog; there is no
// vector transparency.
class TransparencyEditorChoice final : public EditorChoice {
public:
    explicit TransparencyEditorChoice(const EditorArguments& args) : EditorChoice(args) {}

    using EditorChoice::Visit;
    void Visit(const CFillNone&) override { Flat(nullptr); }
    void Visit(const CFillSolid& fill) override
    {
        // A plain solid fill is no transparency: only a flat transparency opens the dialog.
        if (const auto* flat = dynamic_cast<const CTransparencyFlat*>(&fill))
            Flat(flat);
    }
    void Visit(const CFillVector&) override {}

private:
    void Flat(const CTransparencyFlat* flat)
    {
        // This dialog is made without the parent window and without the helper's setting.
        CSolidTransparencyDlg dialog(flat, nullptr);
        result = dialog.DoModal() == Platform::IDOK ? dialog.GetTrans() : nullptr;
    }
    void Gradient(const CFillGradient& fill) override
    {
        result = Run(CGradientTranspDlg(m_args.document, &fill, m_args.objectRect, m_args.parent), m_args.helperSetting);
    }
    void ThreeOrFourColour(const CFillGradient& fill) override
    {
        result = Run(CThreeAndFourColourTranspDlg(m_args.document, &fill, m_args.objectRect, m_args.parent),
                     m_args.helperSetting);
    }
};

using Available = bool (IToolHelper::*)(CFill*);
using KindClass = const Platform::CRuntimeClass* FillKind::*;

void PopulateTypeCombo(IToolHelper* helper, Platform::CXTPControl* control, KindClass kindClass, Available available,
                       bool setDropDownCount)
{
    auto* combo = dynamic_cast<Platform::CXTPControlComboBox*>(control);
    if (!combo)
        return;
    const bool empty = combo->GetCount() == 0;
    int kinds = 0;
    for (const FillKind& kind : FillKinds::All()) {
        if (!(kind.*kindClass))
            continue;
        ++kinds;
        const RefPtr<CFill> sample = empty ? CFill::CreateFromClass(kind.*kindClass) : nullptr;
        if (sample && (helper->*available)(sample.get())) {
            const int index = combo->AddString(sample->GetTypeAsString());
            combo->SetItemData(index, sample->GetFillType());
        }
    }
    if (setDropDownCount)
        combo->SetDropDownItemCount(kinds);
}

void SelectType(Platform::CXTPControl* control, const CFill* fill)
{
    auto* combo = dynamic_cast<Platform::CXTPControlComboBox*>(control);
    if (!combo || !fill)
        return;
    for (int i = 0; i < combo->GetCount(); ++i) {
        if (combo->GetItemData(i) == fill->GetFillType()) {
            combo->SetCurSel(i);
            return;
        }
    }
    combo->SetCurSel(-1);
}

} // namespace

RefPtr<CFill> EditFill(IDocumentEx* document, const CFill* fill, const CRect& objectRect, Platform::CWnd* parent,
                       const Kesto2D::K2DLtGeneral& objectTransform)
{
    const EditorArguments args{document, objectRect, parent, document->GetToolHelper()->GetDialogSetting()};
    if (!fill)
        return nullptr;
    FillEditorChoice choice(args, objectTransform);
    fill->Accept(choice);
    return std::move(choice.result);
}

RefPtr<CFill> EditTransparency(IDocumentEx* document, const CFill* transparency, CString&, const CRect& objectRect,
                               Platform::CWnd* parent)
{
    const bool setting = document ? document->GetToolHelper()->GetDialogSetting() : false;
    if (!transparency)
        return nullptr;
    TransparencyEditorChoice choice(EditorArguments{document, objectRect, parent, setting});
    transparency->Accept(choice);
    return std::move(choice.result);
}

RefPtr<CFill> EditTransparency(IDocumentEx* document, const CFill* transparency, const CRect& objectRect,
                               Platform::CWnd* parent)
{
    CString unused;
    return EditTransparency(document, transparency, unused, objectRect, parent);
}

void PopulateFillTypeCombo(IToolHelper* helper, Platform::CXTPControl* control)
{
    PopulateTypeCombo(helper, control, &FillKind::fillClass, &IToolHelper::IsFillTypeAvailable, true);
}

void PopulateTransTypeCombo(IToolHelper* helper, Platform::CXTPControl* control)
{
    PopulateTypeCombo(helper, control, &FillKind::transparencyClass, &IToolHelper::IsTransparencyTypeAvailable, false);
}

void SetCurrentFillComboIndex(Platform::CXTPControl* control, const CFill* fill)
{
    SelectType(control, fill);
}

void SetCurrentTransComboIndex(Platform::CXTPControl* control, const CFill* fill)
{
    SelectType(control, fill);
}

} // namespace KestoTool
