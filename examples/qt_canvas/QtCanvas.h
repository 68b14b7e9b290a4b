// A Qt canvas that edits the fills of a few rectangles with the library's tools: its site is all
// a host writes; the tool session makes the tools and the toolbar, the gesture makes each drag
// one undo step.
#pragma once

#include <kestotool/filltool/ToolSession.h>
#include <kestotool/qt/QtCommandBar.h>
#include <kestotool/tool/NullToolSite.h>

#include <QString>
#include <QUndoStack>
#include <QWidget>

#include <functional>
#include <vector>

class QToolBar;

class QtCanvas : public QWidget, public KestoTool::NullToolSite {
public:
    struct Shape {
        KestoPlatform::CRect box; // document units
        KestoKernel::RefPtr<const KestoGDI::CFill> fill;
    };

    // The context toolbar shows the tool's controls; hint is told each new hint line.
    QtCanvas(QToolBar& contextBar, std::function<void(const QString&)> hint);

    static constexpr double kScale = 0.2; // widget pixels per document unit
    QUndoStack& Undo() { return m_undo; }
    const std::vector<Shape>& Shapes() const { return m_shapes; }
    KestoTool::ToolSession& Session() { return m_session; }
    KestoToolQt::QtCommandBar& ContextBar() { return m_contextBar; }
    void Select(int index);

    // The site: what the tools ask of the canvas.
    unsigned long GetToolColour() override { return 0xD77800; }
    void ClientToPaper(KestoPlatform::SIZE* size) override;
    KestoPlatform::CRect GetObjectBBox() override;
    KestoPlatform::CRect GetTransformedObjectBBox() override { return GetObjectBBox(); }
    bool IsCreate() override { return m_session.Gesture().IsCreate(); }
    bool IsInDrag() override { return m_session.Gesture().InDrag(); }
    KestoPlatform::CString GetCurrentSelectionDescription() override { return L"Rectangle: "; }
    void AddContextItem(int hostCommand) override;
    void UpdateFill(const KestoGDI::CFill* fill, const wchar_t* undoName) override;
    void UpdateTransparency(const KestoGDI::CFill* fill, const wchar_t* undoName, bool) override;
    void SetFillType(const KestoPlatform::CRuntimeClass* kind) override { m_session.ChangeKind(kind); }
    void SetTransparencyType(const KestoPlatform::CRuntimeClass* kind) override { m_session.ChangeKind(kind); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    KestoPlatform::CPoint ToDocument(QPointF widget) const;
    static unsigned Flags(Qt::KeyboardModifiers modifiers);
    // Records the selection's fill changing from before to after as one undo step.
    void PushStep(const QString& name, KestoKernel::RefPtr<const KestoGDI::CFill> before,
                  KestoKernel::RefPtr<const KestoGDI::CFill> after);
    void ShowHint();

    std::vector<Shape> m_shapes;
    int m_selected = -1;
    QUndoStack m_undo;
    KestoToolQt::QtCommandBar m_contextBar;
    std::function<void(const QString&)> m_hint;
    KestoTool::ToolSession m_session{*this};
};
