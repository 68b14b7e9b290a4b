#pragma once

#include "Autosave.h"
#include "Canvas.h"
#include "Document.h"

#include <kestotool/qt/QtCommandBar.h>

#include <QMainWindow>
#include <QUndoStack>

#include <functional>
#include <memory>

class QAction;
class QActionGroup;
class QComboBox;
class QLabel;
class QToolBar;

namespace KestoDraw {

class Palette;

// kestodraw's window: the canvas, the shape tools, the context toolbar of the running fill tool
// (or a type box when the selection's fill has no tool), the palette, the status bar's hint
// line, the menus, undo and files.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    using ErrorReporter = std::function<void(const QString& title, const QString& message)>;

    MainWindow();
    ~MainWindow() override;

    Canvas& GetCanvas() { return *m_canvas; }
    Palette& GetPalette() { return *m_palette; }
    QUndoStack& Undo() { return m_undo; }
    const Document& GetDocument() const { return m_document; }
    QToolBar& ContextToolBar() { return *m_context; }
    KestoToolQt::QtCommandBar& ContextBar() { return *m_contextBar; }
    QComboBox& KindBox() { return *m_kindBox; }
    QLabel& HintLabel() { return *m_hint; }
    const QString& Path() const { return m_path; }
    Autosave& GetAutosave() { return *m_autosave; }

    // Reports errors to the user; by default in a message box.
    void SetErrorReporter(ErrorReporter reporter) { m_reportError = std::move(reporter); }

    // Opens a drawing in place of the current one; on failure reports why and keeps the current.
    bool Open(const QString& path);
    // The window of this process that shows the drawing at path (the same file, however it is
    // named), or none.
    static MainWindow* Showing(const QString& path);
    // A new window, shown, that deletes itself when closed.
    static MainWindow* Shown();
    // Shows the window in front of the others and gives it the keyboard.
    static void Bring(MainWindow* window);
    // Opens each drawing in a window of its own, the first that opens in empty (a window that
    // shows nothing yet) when given; a drawing that a window already shows brings that window
    // to the front instead. New windows are Shown()'s. Answers the windows that
    // show the drawings that opened.
    static QList<MainWindow*> OpenEach(const QStringList& paths, MainWindow* empty = nullptr);
    bool SaveAs(const QString& path);
    // Paints the page on a worker, showing progress when it takes long; false when it could
    // not be written (reported) or was cancelled or another export is under way (not reported).
    bool ExportPng(const QString& path);
    // The size and resolution of an SVG or PDF export: the page's longer side (PDF; SVG keeps
    // the drawing's units, a pixel each) and the resolution of the pictures that stand for the
    // kinds the format has no paint for.
    struct ExportOptions {
        double longerSideMm = 0;
        double dpi = 0;
    };
    // SVG: pictures as sharp as the PNG export's; PDF: the drawing at a pixel a unit but no
    // larger than A3, pictures at 300 dpi.
    ExportOptions DefaultExportOptions(bool pdf) const;
    // The drawing as SVG: native gradients where SVG has the kind, the renderer's pictures
    // elsewhere; as ExportPng, on a worker.
    bool ExportSvg(const QString& path) { return ExportSvg(path, DefaultExportOptions(false)); }
    bool ExportSvg(const QString& path, const ExportOptions& options);
    // The drawing as PDF: shadings and patch meshes where PDF has the kind, pictures elsewhere.
    bool ExportPdf(const QString& path) { return ExportPdf(path, DefaultExportOptions(true)); }
    bool ExportPdf(const QString& path, const ExportOptions& options);
    // A new, untitled drawing of what an SVG file holds (SvgReader); what it could not read is
    // listed once. On failure reports why and keeps the current drawing.
    bool ImportSvg(const QString& path);
    void NewDrawing();
    // Takes up a copy that an autosave left (a crash's): the drawing, untitled and unsaved; the
    // copy is removed once this window's own autosave holds it.
    bool Recover(const QString& copy);
    // Opens the library's editor for the selection's fill or transparency.
    void EditFill(bool transparency);

    // "a |key| word" as rich text with the key words in bold.
    static QString HintToRichText(const QString& hint);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    // Runs work(drawing copy, going) on a worker while the window stays live, with a progress
    // dialog once it takes half a second (Cancel makes going answer false); answers work's
    // answer, or false while another export is under way.
    template <class Work>
    bool Exporting(const QString& path, Work work);
    void ReportExportError(const QString& title, const QString& path, const QString& reason);
    // Writes the bytes whole or not at all; reports why not.
    bool WriteWhole(const QString& title, const QString& path, const std::string& bytes);
    void BuildMenus();
    void BuildToolBars();
    void ShowContextBar();
    void UpdateHint();
    void UpdateTitle();
    void UpdateKindBox();
    void UpdateZoomLabel();
    bool MaybeSave();
    void ShowPreferences();

    Document m_document;
    QUndoStack m_undo;
    Canvas* m_canvas = nullptr;
    bool m_exporting = false;
    Palette* m_palette = nullptr;
    QToolBar* m_context = nullptr;
    std::unique_ptr<KestoToolQt::QtCommandBar> m_contextBar;
    QToolBar* m_kindBar = nullptr;
    QComboBox* m_kindBox = nullptr;
    QLabel* m_hint = nullptr;
    QLabel* m_zoomLabel = nullptr;
    QActionGroup* m_modes = nullptr;
    QAction* m_editsTransparency = nullptr;
    QString m_path;
    ErrorReporter m_reportError;
    std::unique_ptr<Autosave> m_autosave;
};

} // namespace KestoDraw
