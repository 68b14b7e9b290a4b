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
#include "kestotool/platform/WindowTypes.h"
#include "kestotool/tool/FillEditors_p.h"
#include "kestotool/tool/IDocumentEx.h"
#include "kestotool/tool/IToolHelper.h"

#include <memory>

namespace KestoTool {

using namespace KestoGDI;

namespace {

EditorShowNow& ShowNow()
{
    static EditorShowNow show;
    return show;
}

// For as long as an editor runs, what its preview shows goes to the host's show-now callback;
// at the end the host hears that the editor closed.
class ShowingOnPage {
public:
    explicit ShowingOnPage(KestoUI::FillPreview& preview)
    {
        if (ShowNow())
            preview.SetOnShown([](const CFill* fill) {
                if (ShowNow())
                    ShowNow()(fill);
            });
    }
    ~ShowingOnPage()
    {
        if (ShowNow())
            ShowNow()(nullptr);
    }
    ShowingOnPage(const ShowingOnPage&) = delete;
    ShowingOnPage& operator=(const ShowingOnPage&) = delete;
};

// Runs an editor with the helper's setting and hands over its fill after OK.
RefPtr<CFill> Run(ExpandingFillPreviewDlg&& dialog, bool helperSetting)
{
    dialog.SetHelperSetting(helperSetting);
    const ShowingOnPage showing(dialog.GetPreview());
    return dialog.DoModal() == KestoPlatform::IDOK ? dialog.TakeFill() : nullptr;
}

RefPtr<CFill> PickSolid(IDocumentEx* document, const CFillSolid* solid, KestoPlatform::CWnd* parent)
{
    std::unique_ptr<CColour> chosen(
        document->GetToolHelper()->ColourPicker(solid ? &solid->GetColour() : nullptr, parent));
    if (!chosen)
        return nullptr;
    auto result = KestoKernel::MakeRef<CFillSolid>(*chosen, true);
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
    KestoPlatform::CWnd* parent;
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
        const ShowingOnPage showing(dialog.GetPreview());
        result = dialog.DoModal() == KestoPlatform::IDOK ? dialog.GetTrans() : nullptr;
    }
    void Gradient(const CFillGradient& fill) override
    {
        result =
            Run(CGradientTranspDlg(m_args.document, &fill, m_args.objectRect, m_args.parent), m_args.helperSetting);
    }
    void ThreeOrFourColour(const CFillGradient& fill) override
    {
        result = Run(CThreeAndFourColourTranspDlg(m_args.document, &fill, m_args.objectRect, m_args.parent),
                     m_args.helperSetting);
    }
};

} // namespace

RefPtr<CFill> EditFill(IDocumentEx* document, const CFill* fill, const CRect& objectRect, KestoPlatform::CWnd* parent,
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
                               KestoPlatform::CWnd* parent)
{
    const bool setting = document ? document->GetToolHelper()->GetDialogSetting() : false;
    if (!transparency)
        return nullptr;
    TransparencyEditorChoice choice(EditorArguments{document, objectRect, parent, setting});
    transparency->Accept(choice);
    return std::move(choice.result);
}

RefPtr<CFill> EditTransparency(IDocumentEx* document, const CFill* transparency, const CRect& objectRect,
                               KestoPlatform::CWnd* parent)
{
    CString unused;
    return EditTransparency(document, transparency, unused, objectRect, parent);
}

namespace {

// The tools' Edit commands open the editors through the editors table.
[[gnu::constructor]] void InstallFillEditors()
{
    FillEditors& editors = FillEditors::Installed();
    editors.editFill = &EditFill;
    editors.editTransparency = static_cast<FillEditors::EditTransparency>(&EditTransparency);
}

} // namespace

void SetEditorShowNow(EditorShowNow show)
{
    ShowNow() = std::move(show);
}

} // namespace KestoTool
