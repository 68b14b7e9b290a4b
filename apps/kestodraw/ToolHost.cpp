#include "ToolHost.h"

#include "KindIcon.h"
#include "ShapesEdit.h"

#include <kestotool/dialogs/EditorEntryPoints.h>
#include <kestotool/filltool/FillCommands.h>
#include <kestotool/filltool/FillToolFactory.h>
#include <kestotool/filltool/ToolSession.h>
#include <kestotool/gdi/CFillLinear.h>
#include <kestotool/gdi/CRGBColour.h>
#include <kestotool/gdi/CTransparency.h>
#include <kestotool/gdi/CTransparencyLinear.h>
#include <kestotool/geometry/CoordinateRange.h>
#include <kestotool/geometry/Rounding.h>
#include <kestotool/platform/CXTPControlPopupColor.h>
#include <kestotool/qt/QtConvert.h>
#include <kestotool/tool/SiteGeometry.h>

#include <QColorDialog>
#include <QImage>
#include <QUndoStack>
#include <QWidget>

#include <algorithm>
#include <utility>

// The pictures live in this static library; the program keeps them only when asked for by name.
static void LoadOwnImages()
{
    Q_INIT_RESOURCE(icons);
}

namespace KestoDraw {

using KestoGDI::CFill;
using KestoKernel::RefPtr;
using KestoPlatform::CPoint;

namespace {

RefPtr<const CFill>& FieldOf(Shape& shape, bool transparency)
{
    return transparency ? shape.transparency : shape.fill;
}

// The fill a drag on a shape whose fill has no tool starts from: a linear fill from the shape's
// colour to white, or a linear transparency from opaque to clear.
RefPtr<CFill> StarterFill(const CFill* current, bool transparency, const KestoPlatform::CRect& box)
{
    return KestoTool::ToolSession::Convert(current,
                                           transparency ? KestoGDI::CTransparencyLinear::GetThisClass()
                                                        : KestoGDI::CFillLinear::GetThisClass(),
                                           box);
}

// The library's command table gives Lock Ratio and Reset Handles the same picture as Max Fit;
// kestodraw shows each its own, from its resources (icons/<dpi>/<name>.png).
void RegisterOwnImages(KestoPlatform::CXTPImageManager& images)
{
    LoadOwnImages();
    const struct {
        int command;
        const char* name;
    } own[] = {{KestoTool::FillCmdLockRatio, "Lock Ratio"}, {KestoTool::FillCmdResetHandles, "Reset Handles"}};
    for (const auto& [command, name] : own) {
        const int id = KestoTool::FillCommands::HostId(command);
        for (const int dpi : {96, 120, 144, 192}) {
            const QImage png = QImage(QStringLiteral(":/icons/%1/%2.png").arg(dpi).arg(QLatin1String(name)))
                                   .convertToFormat(QImage::Format_ARGB32);
            if (id == -1 || png.isNull())
                continue;
            KestoPlatform::XTPImage image{png.width(), png.height(), {}};
            for (int y = 0; y < png.height(); ++y) {
                const auto* row = reinterpret_cast<const std::uint32_t*>(png.constScanLine(y));
                image.argb.insert(image.argb.end(), row, row + png.width());
            }
            images.SetIcons(image, &id, 1, KestoPlatform::CXTPImageManager::GetPreferredIconSizeforDPI(dpi),
                            KestoPlatform::XTPImageState::Normal);
        }
    }
}

} // namespace

ToolHost::ToolHost(Document& document, QUndoStack& undo, QWidget& view)
    : m_document(document), m_undo(undo), m_view(view), m_session(*this)
{
    // Every window's bars share one image manager, as the toolkit's: the library registers its
    // pictures once a process, in the bars of the first window that shows its tool.
    static KestoPlatform::CXTPImageManager images;
    m_session.Bars().SetImageManager(&images);
    // A new tool is made from the event loop, never inside one of the tool's own calls.
    m_session.SetPost([this](std::function<void()> rebuild) {
        QMetaObject::invokeMethod(this, std::move(rebuild), Qt::QueuedConnection);
    });
    m_session.SetToolAboutToChange([this] {
        emit ToolAboutToChange();
        m_live = nullptr;
    });
    m_session.SetToolChanged([this] {
        if (Tool() && !std::exchange(m_ownImages, true))
            RegisterOwnImages(*m_session.Bars().GetImageManager());
        emit ToolChanged();
        emit HintChanged();
        emit Changed();
    });
    // A copy: the tool goes on reshaping its own fill, and the painter keeps paints by fill.
    m_session.Gesture().SetShowNow([this](const CFill& working) {
        m_live = working.Clone();
        emit Changed();
    });
    // An open editor's fill shows on the page too, until the editor closes.
    KestoTool::SetEditorShowNow([this](const CFill* editing) {
        m_live = editing ? editing->Clone() : nullptr;
        emit Changed();
    });
}

ToolHost::~ToolHost()
{
    KestoTool::SetEditorShowNow(nullptr);
}

void ToolHost::SetEditTransparency(bool transparency)
{
    if (m_editTransparency == transparency)
        return;
    m_editTransparency = transparency;
    StartTool();
}

void ToolHost::Select(int index)
{
    if (index < -1 || index >= static_cast<int>(m_document.shapes.size()))
        index = -1;
    if (index == m_selected)
        return;
    m_selected = index;
    StartTool();
    emit SelectionChanged();
}

Shape* ToolHost::SelectedShape()
{
    return m_selected >= 0 ? &m_document.shapes[m_selected] : nullptr;
}

RefPtr<const CFill> ToolHost::EditedFill() const
{
    if (m_selected < 0)
        return {};
    const Shape& shape = m_document.shapes[m_selected];
    return m_editTransparency ? shape.transparency : shape.fill;
}

void ToolHost::SetPreferences(int grid, int angleStep)
{
    m_grid = std::max(0, grid);
    m_angleStep = std::max(0, angleStep);
    emit Changed();
}

void ToolHost::DocumentReplaced()
{
    m_selected = -1;
    StartTool();
    emit SelectionChanged();
}

void ToolHost::ApplyShapes(const std::vector<Shape>& shapes, int selected)
{
    m_document.shapes = shapes;
    if (selected < -1 || selected >= static_cast<int>(shapes.size()))
        selected = -1;
    if (selected != m_selected) {
        m_selected = selected;
        emit SelectionChanged();
    }
    SyncTool();
    emit Changed();
}

void ToolHost::AddShape(Shape shape, const QString& stepName)
{
    std::vector<Shape> before = m_document.shapes;
    const int selectedBefore = m_selected;
    m_document.shapes.push_back(std::move(shape));
    Select(static_cast<int>(m_document.shapes.size()) - 1);
    PushStep(stepName, std::move(before), selectedBefore);
}

void ToolHost::DeleteSelected()
{
    if (m_selected < 0)
        return;
    std::vector<Shape> before = m_document.shapes;
    const int selectedBefore = m_selected;
    m_document.shapes.erase(m_document.shapes.begin() + m_selected);
    m_selected = -1;
    PushStep(tr("Delete Shape"), std::move(before), selectedBefore);
    StartTool();
    emit SelectionChanged();
}

void ToolHost::PushStep(const QString& name, std::vector<Shape> before, std::optional<int> selectedBefore)
{
    m_undo.push(
        new ShapesEdit(name, {std::move(before), selectedBefore.value_or(m_selected)}, {m_document.shapes, m_selected},
                       [this](const std::vector<Shape>& shapes, int selected) { ApplyShapes(shapes, selected); }));
}

void ToolHost::SetKind(int fillType)
{
    const KestoPlatform::CRuntimeClass* c = m_editTransparency
                                                ? KestoGDI::CTransparency::GetRuntimeClassFromType(fillType)
                                                : CFill::GetRuntimeClassFromType(fillType);
    if (c)
        m_editTransparency ? SetTransparencyType(c) : SetFillType(c);
}

void ToolHost::FlushPendingRebuild()
{
    m_session.Flush();
}

void ToolHost::StartTool()
{
    m_session.Start(EditedFill().get());
    m_session.Flush();
}

void ToolHost::SyncTool()
{
    m_session.Follow(EditedFill().get());
    emit HintChanged();
}

QString ToolHost::DefaultStepName() const
{
    return m_editTransparency ? tr("Edit Transparency") : tr("Edit Fill");
}

void ToolHost::Commit(const CFill* fill, const wchar_t* undoName, bool transparency)
{
    Shape* shape = SelectedShape();
    if (!shape || !fill)
        return;
    if (m_previewing) {
        m_live = fill->Clone();
        return;
    }
    if (m_session.Gesture().Absorb(undoName)) {
        // A commit while the mouse moves shows at once; the gesture's end makes the step.
        FieldOf(*shape, transparency) = RefPtr<const CFill>(fill);
        SyncTool();
        emit Changed();
        return;
    }
    RecordCommit(fill, undoName, transparency);
}

void ToolHost::RecordCommit(const CFill* fill, const wchar_t* undoName, bool transparency)
{
    Shape* shape = SelectedShape();
    if (!shape || !fill)
        return;
    // A commit that changes nothing (a box's value taken again as its edit ends) is no step:
    // an Undo of it would seem to do nothing.
    if (const RefPtr<const CFill>& current = FieldOf(*shape, transparency); current && current->IsEqual(*fill))
        return;
    std::vector<Shape> before = m_document.shapes;
    FieldOf(*shape, transparency) = RefPtr<const CFill>(fill);
    PushStep(undoName ? QString::fromWCharArray(undoName) : DefaultStepName(), std::move(before));
}

bool ToolHost::StartGesture(CPoint at, unsigned flags, bool create)
{
    std::vector<Shape> before = m_document.shapes;
    if (!Tool()) {
        Shape* shape = SelectedShape();
        if (!shape || !create)
            return false;
        FieldOf(*shape, m_editTransparency) = StarterFill(EditedFill().get(), m_editTransparency, shape->box);
        StartTool();
        if (!Tool()) {
            m_document.shapes = std::move(before);
            return false;
        }
    }
    m_before = std::move(before);
    m_session.Press(at, flags, create);
    return true;
}

void ToolHost::EndGesture(CPoint at, unsigned flags)
{
    const std::optional<KestoTool::ToolGesture::Step> step = m_session.Release(at, flags);
    m_live = nullptr;
    Shape* shape = SelectedShape();
    if (!shape || !step) {
        if (!m_before.empty())
            m_document.shapes = std::move(m_before); // nothing changed: no step
        m_before.clear();
        SyncTool();
        return;
    }
    FieldOf(*shape, m_editTransparency) = step->after;
    PushStep(step->undoName.empty() ? DefaultStepName() : QString::fromStdWString(step->undoName), std::move(m_before));
    m_before.clear();
    emit HintChanged();
}

void ToolHost::Nudge(int dx, int dy)
{
    if (!Tool())
        return;
    Kesto2D::K2DArrayPoint handles;
    Tool()->GetHandles(&handles);
    if (handles.GetSize() == 0)
        return;
    const int node = std::clamp(Tool()->GetCurrentNode(), 0, handles.GetSize() - 1);
    const CPoint from = handles.GetAt(node);
    CPoint to = Kesto2D::OffsetPoint(from, dx, dy);
    StartGesture(from, 0, false);
    m_session.Move(to, 0);
    EndGesture(to, 0);
    Tool()->SetCurrentNode(node);
}

void ToolHost::CycleHandle(int step)
{
    if (!Tool())
        return;
    Kesto2D::K2DArrayPoint handles;
    Tool()->GetHandles(&handles);
    const int count = handles.GetSize();
    if (count == 0)
        return;
    const int current = std::max(Tool()->GetCurrentNode(), step > 0 ? -1 : 0);
    Tool()->SetCurrentNode(((current + step) % count + count) % count);
    emit HintChanged();
    emit Changed();
}

// --- IToolSite and IToolHelper ---

void ToolHost::ClientToPaper(KestoPlatform::SIZE* size)
{
    size->cx = Kesto2D::RoundHalfAwayFromZero(size->cx / m_zoom);
    size->cy = Kesto2D::RoundHalfAwayFromZero(size->cy / m_zoom);
}

KestoPlatform::CRect ToolHost::GetObjectBBox()
{
    return m_selected >= 0 ? m_document.shapes[m_selected].box : KestoPlatform::CRect();
}

void ToolHost::ConstrainAngle(CPoint origin, CPoint& point, bool)
{
    point = KestoTool::SiteGeometry::ConstrainToAngleStep(origin, point, m_angleStep);
}

void ToolHost::Snap(const CPoint& in, CPoint& out)
{
    out = KestoTool::SiteGeometry::SnapToGrid(in, m_grid);
}

KestoPlatform::CString ToolHost::GetCurrentSelectionDescription()
{
    return m_selected >= 0 ? KestoPlatform::CString(m_document.shapes[m_selected].Description().toStdWString().c_str())
                           : KestoPlatform::CString();
}

void ToolHost::AddContextItem(int hostCommand)
{
    m_session.Bars().CreateControl(
        hostCommand, true,
        [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { return Tool()->OnCreateControl(cc); },
        [this](KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc) { Tool()->OnAfterCreateControl(cc); });
}

void ToolHost::UpdateFill(const CFill* fill, const wchar_t* undoName)
{
    Commit(fill, undoName, false);
}

void ToolHost::UpdateTransparency(const CFill* fill, const wchar_t* undoName, bool)
{
    Commit(fill, undoName, true);
}

void ToolHost::SetFillType(const KestoPlatform::CRuntimeClass* fillClass)
{
    // A step of its own, the fill of that kind made over the shape with its colours.
    if (SelectedShape())
        m_session.ChangeKind(fillClass);
}

void ToolHost::SetTransparencyType(const KestoPlatform::CRuntimeClass* transparencyClass)
{
    SetFillType(transparencyClass);
}

bool ToolHost::PreviewDrop(CPoint at, const KestoGDI::CColour& colour)
{
    if (!Tool() || m_session.Gesture().InDrag())
        return false;
    const RefPtr<const CFill> shown = m_live;
    m_live = nullptr;
    // The tool's own fill is left as it was (a commit hands out a copy); its current node is put
    // back too, as the drop that is only shown may have moved it.
    const int current = Tool()->GetCurrentNode();
    m_previewing = true;
    const bool dropped = Tool()->OnFillCellDrop(at, &colour);
    m_previewing = false;
    Tool()->SetCurrentNode(current);
    if (!dropped)
        m_live = nullptr;
    if (m_live != shown)
        emit Changed();
    return dropped;
}

void ToolHost::EndPreview()
{
    if (!m_live || m_session.Gesture().InDrag())
        return;
    m_live = nullptr;
    emit Changed();
}

bool ToolHost::IsFillTypeAvailable(CFill* fill)
{
    return fill && Paintable(fill->GetFillType(), fill->IsTransparency());
}

int ToolHost::CreateColourControl(KestoPlatform::XTP_COMMANDBARS_CREATECONTROL* cc)
{
    if (!cc)
        return 0;
    cc->pControl = std::make_unique<KestoPlatform::CXTPControlPopupColor>(cc->nID);
    return 1;
}

KestoGDI::CColour* ToolHost::ColourPicker(const KestoGDI::CColour* current, KestoPlatform::CWnd*)
{
    const QColor start = current ? KestoToolQt::ToQColor(current->GetRGB(), current->GetAlpha()) : QColor(Qt::black);
    const QColor chosen = QColorDialog::getColor(start, &m_view, tr("Colour"), QColorDialog::ShowAlphaChannel);
    if (!chosen.isValid())
        return nullptr;
    return new KestoGDI::CRGBColour(KestoPlatform::RGB(chosen.red(), chosen.green(), chosen.blue()), nullptr, 0,
                                    static_cast<short>(chosen.alpha()));
}

bool ToolHost::ColourPicker(const KestoGDI::CColour* current, KestoGDI::CColour*& result, KestoPlatform::CWnd* owner)
{
    result = ColourPicker(current, owner);
    return result != nullptr;
}

KestoGDI::CColour* ToolHost::AskUserForNewColour(const KestoGDI::CColour* current, CPoint, KestoPlatform::CWnd* owner)
{
    return ColourPicker(current, owner);
}

} // namespace KestoDraw
