#include "MainWindow.h"

#include "DocumentFile.h"
#include "ExportOptionsDialog.h"
#include "KindIcon.h"
#include "Palette.h"
#include "PreferencesDialog.h"
#include "SvgMessages.h"

#include <kestotool/exchange/PdfWriter.h>
#include <kestotool/exchange/SvgReader.h>
#include <kestotool/exchange/SvgWriter.h>
#include <kestotool/filltool/FillCommands.h>
#include <kestotool/gdi/FillKinds.h>
#include <kestotool/platform/CCmdTarget.h>
#include <kestotool/qt/QtConvert.h>
#include <kestotool/tool/Module.h>

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageWriter>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSaveFile>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>
#include <atomic>
#include <thread>

namespace KestoDraw {

namespace {

constexpr const char* kFileFilter = QT_TRANSLATE_NOOP("KestoDraw::MainWindow", "kestodraw drawings (*.kdraw)");
// The side of a kind's picture in the type boxes, in pixels.
constexpr int kKindIconSide = 16;
// Exported pictures are at most this wide or high.
constexpr double kExportSide = 2000;
// A drawing unit is a pixel at 96 per inch.
constexpr double kMmPerPixel = 25.4 / 96;
constexpr double kA3LongerSideMm = 420;
// Exports draw each shape's outline in the canvas's outline grey.
constexpr KestoRaster::Rgba kOutline{70, 70, 70, 255};

} // namespace

MainWindow::MainWindow()
    : m_canvas(new Canvas(m_document, m_undo, this)), m_palette(new Palette(this)),
      m_reportError(
          [this](const QString& title, const QString& message) { QMessageBox::warning(this, title, message); })
{
    setCentralWidget(m_canvas);
    BuildMenus();
    BuildToolBars();
    m_hint = new QLabel(this);
    m_hint->setTextFormat(Qt::RichText);
    statusBar()->addWidget(m_hint, 1);
    m_zoomLabel = new QLabel(this);
    statusBar()->addPermanentWidget(m_zoomLabel);
    connect(m_canvas, &Canvas::ZoomChanged, this, &MainWindow::UpdateZoomLabel);
    UpdateZoomLabel();

    connect(m_canvas, &Canvas::ToolAboutToChange, this, [this] { m_contextBar->Clear(); });
    connect(m_canvas, &Canvas::ToolChanged, this, &MainWindow::ShowContextBar);
    connect(m_canvas, &Canvas::HintChanged, this, &MainWindow::UpdateHint);
    connect(m_canvas, &Canvas::SelectionChanged, this, &MainWindow::UpdateKindBox);
    connect(&m_undo, &QUndoStack::cleanChanged, this, &MainWindow::UpdateTitle);
    m_autosave = std::make_unique<Autosave>(m_document);
    connect(&m_undo, &QUndoStack::indexChanged, this, [this] { m_autosave->Changed(m_undo.isClean()); });
    connect(m_palette, &Palette::Clicked, this, [this](int index) {
        if (KestoTool::FillTool* tool = m_canvas->Tool())
            tool->OnFillCellChanged(m_palette->Colour(index).get());
    });
    ShowContextBar();
    UpdateTitle();
}

MainWindow::~MainWindow()
{
    m_contextBar->Clear();
    disconnect(&m_undo, nullptr, this, nullptr);
    // The canvas refers to the document and the undo stack, which go before the child widgets.
    delete m_canvas;
}

void MainWindow::BuildMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&New"), QKeySequence::New, this, [this] {
        if (MaybeSave())
            NewDrawing();
    });
    file->addAction(tr("&Open..."), QKeySequence::Open, this, [this] {
        const QString path = QFileDialog::getOpenFileName(this, tr("Open Drawing"), QString(), tr(kFileFilter));
        if (path.isEmpty())
            return;
        if (MainWindow* showing = Showing(path); showing && showing != this)
            Bring(showing);
        else if (MaybeSave())
            Open(path);
    });
    file->addAction(tr("&Save"), QKeySequence::Save, this, [this] {
        const QString path = m_path.isEmpty()
                                 ? QFileDialog::getSaveFileName(this, tr("Save Drawing"), QString(), tr(kFileFilter))
                                 : m_path;
        if (!path.isEmpty())
            SaveAs(path);
    });
    // Spelled out: the standard Save As key is empty where no desktop defines one.
    file->addAction(tr("Save &As..."), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this, [this] {
        const QString path = QFileDialog::getSaveFileName(this, tr("Save Drawing"), m_path, tr(kFileFilter));
        if (!path.isEmpty())
            SaveAs(path);
    });
    file->addAction(tr("&Import SVG..."), this, [this] {
        const QString path =
            QFileDialog::getOpenFileName(this, tr("Import SVG"), QString(), tr("SVG drawings (*.svg)"));
        if (!path.isEmpty())
            ImportSvg(path);
    });
    file->addAction(tr("&Export PNG..."), QKeySequence(Qt::CTRL | Qt::Key_E), this, [this] {
        const QString path = QFileDialog::getSaveFileName(this, tr("Export PNG"), QString(), tr("PNG images (*.png)"));
        if (!path.isEmpty())
            ExportPng(path);
    });
    file->addAction(tr("Export S&VG..."), this, [this] {
        const QString path =
            QFileDialog::getSaveFileName(this, tr("Export SVG"), QString(), tr("SVG drawings (*.svg)"));
        if (path.isEmpty())
            return;
        ExportOptionsDialog options(false, DefaultExportOptions(false), this);
        if (options.exec() == QDialog::Accepted)
            ExportSvg(path, options.Options());
    });
    file->addAction(tr("Export P&DF..."), this, [this] {
        const QString path =
            QFileDialog::getSaveFileName(this, tr("Export PDF"), QString(), tr("PDF documents (*.pdf)"));
        if (path.isEmpty())
            return;
        ExportOptionsDialog options(true, DefaultExportOptions(true), this);
        if (options.exec() == QDialog::Accepted)
            ExportPdf(path, options.Options());
    });
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undo = m_undo.createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = m_undo.createRedoAction(this, tr("&Redo"));
    redo->setShortcut(QKeySequence::Redo);
    edit->addAction(undo);
    edit->addAction(redo);
    edit->addSeparator();
    edit->addAction(tr("&Delete Shape"), QKeySequence(Qt::CTRL | Qt::Key_Delete), m_canvas, &Canvas::DeleteSelected);
    edit->addAction(tr("Edit &Fill..."), this, [this] { EditFill(false); });
    edit->addAction(tr("Edit &Transparency..."), this, [this] { EditFill(true); });
    edit->addSeparator();
    edit->addAction(tr("&Preferences..."), this, &MainWindow::ShowPreferences);

    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("Zoom &In"), QKeySequence::ZoomIn, this, [this] { m_canvas->ZoomBy(1.25); });
    view->addAction(tr("Zoom &Out"), QKeySequence::ZoomOut, this, [this] { m_canvas->ZoomBy(0.8); });
    view->addAction(tr("&Fit Page"), QKeySequence(Qt::CTRL | Qt::Key_0), m_canvas, &Canvas::FitPage);
}

void MainWindow::BuildToolBars()
{
    QToolBar* tools = addToolBar(tr("Tools"));
    tools->setObjectName("tools");
    m_modes = new QActionGroup(this);
    const struct {
        QString name;
        Canvas::Mode mode;
        QKeySequence key;
    } modes[] = {{tr("Select"), Canvas::Mode::Select, Qt::Key_V},
                 {tr("Rectangle"), Canvas::Mode::Rectangle, Qt::Key_R},
                 {tr("Ellipse"), Canvas::Mode::Ellipse, Qt::Key_E},
                 {tr("Path"), Canvas::Mode::Path, Qt::Key_P}};
    for (const auto& m : modes) {
        QAction* action = tools->addAction(m.name, this, [this, mode = m.mode] { m_canvas->SetMode(mode); });
        action->setCheckable(true);
        action->setShortcut(m.key);
        action->setChecked(m.mode == Canvas::Mode::Select);
        action->setData(static_cast<int>(m.mode));
        m_modes->addAction(action);
    }
    tools->addSeparator();
    auto* editing = new QActionGroup(this);
    QAction* fill = tools->addAction(tr("Fill"), this, [this] { m_canvas->SetEditTransparency(false); });
    QAction* transparency = tools->addAction(tr("Transparency"), this, [this] { m_canvas->SetEditTransparency(true); });
    for (QAction* a : {fill, transparency}) {
        a->setCheckable(true);
        editing->addAction(a);
    }
    fill->setChecked(true);
    m_editsTransparency = transparency;
    fill->setToolTip(tr("The fill tools edit the selection's fill"));
    transparency->setToolTip(tr("The fill tools edit the selection's transparency"));

    addToolBarBreak();
    m_context = addToolBar(tr("Fill Tool"));
    m_context->setObjectName("context");
    m_contextBar = std::make_unique<KestoToolQt::QtCommandBar>(*m_context);
    m_contextBar->SetFocusHome(m_canvas); // the keys go back to the handles after a box's edit
    m_contextBar->SetItemIcons([this](int id, std::intptr_t type) {
        const int typeBox = KestoTool::FillCommands::HostId(KestoTool::FillCmdEditType);
        return id == typeBox
                   ? KindIcon(static_cast<int>(type), m_canvas->EditsTransparency(), kKindIconSide, devicePixelRatioF())
                   : QIcon();
    });
    m_kindBar = addToolBar(tr("Kind"));
    m_kindBar->setObjectName("kind");
    m_kindBox = new QComboBox(m_kindBar);
    m_kindBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_kindBar->addWidget(m_kindBox);
    connect(m_kindBox, &QComboBox::activated, this, [this](int index) {
        m_canvas->SetKind(m_kindBox->itemData(index).toInt());
        m_canvas->setFocus(Qt::OtherFocusReason);
        UpdateKindBox();
    });

    // One height for the context row whatever the selection puts on it (nothing, a tool's
    // controls, the kind box), so that the canvas below never moves: the tallest control a tool
    // shows (a combo box, an icon with its caption) and the toolbar's margins.
    QToolButton probe;
    probe.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    probe.setIconSize(m_context->iconSize());
    probe.setText(tr("Edit Transparency"));
    probe.setIcon(QIcon(QPixmap(m_context->iconSize())));
    const int margins = 2 * (m_context->style()->pixelMetric(QStyle::PM_ToolBarItemMargin, nullptr, m_context) +
                             m_context->style()->pixelMetric(QStyle::PM_ToolBarFrameWidth, nullptr, m_context)) +
                        m_context->contentsMargins().top() + m_context->contentsMargins().bottom();
    const int row = std::max(QComboBox().sizeHint().height(), probe.sizeHint().height()) + margins;
    m_context->setFixedHeight(row);
    m_kindBar->setFixedHeight(row);

    QToolBar* palette = new QToolBar(tr("Palette"), this);
    palette->setObjectName("palette");
    palette->setMovable(false);
    palette->addWidget(m_palette);
    addToolBar(Qt::BottomToolBarArea, palette);
}

void MainWindow::ShowContextBar()
{
    m_contextBar->Clear();
    if (m_canvas->Tool())
        m_contextBar->Show(*m_canvas->ContextBars(), m_canvas->Session());
    UpdateKindBox();
    UpdateHint();
}

void MainWindow::UpdateZoomLabel()
{
    // A drawing unit is a pixel at 96 per inch, so a zoom of one pixel a unit is 100%.
    const double percent = m_canvas->Zoom() * 100;
    m_zoomLabel->setText(tr("%1%").arg(QLocale().toString(percent, 'f', percent < 10 ? 1 : 0)));
}

void MainWindow::UpdateKindBox()
{
    // The tool's own type box offers the kinds while a tool runs; otherwise this one does.
    const bool shown = m_canvas->Selected() >= 0 && !m_canvas->Tool();
    m_kindBar->setVisible(shown);
    if (!shown)
        return;
    const bool transparency = m_canvas->EditsTransparency();
    const Shape& shape = m_document.shapes[m_canvas->Selected()];
    const int current =
        transparency ? (shape.transparency ? shape.transparency->GetFillType() : 0) : shape.fill->GetFillType();
    m_kindBox->clear();
    for (const KestoGDI::FillKind& kind : KestoGDI::FillKinds::All()) {
        if ((transparency && !kind.transparencyClass) || !Paintable(kind.type, transparency))
            continue;
        m_kindBox->addItem(KindIcon(kind.type, transparency, kKindIconSide, devicePixelRatioF()),
                           KestoToolQt::ToQString(KestoTool::Module::Get().LoadDialogText(
                               transparency ? kind.transparencyName : kind.fillName)),
                           static_cast<int>(kind.type));
        if (kind.type == current)
            m_kindBox->setCurrentIndex(m_kindBox->count() - 1);
    }
    KestoToolQt::FitListToItems(*m_kindBox);
}

QString MainWindow::HintToRichText(const QString& hint)
{
    QString html = hint.toHtmlEscaped();
    static const QRegularExpression keyWord(QStringLiteral("\\|([^|]*)\\|"));
    return html.replace(keyWord, QStringLiteral("<b>\\1</b>"));
}

void MainWindow::UpdateHint()
{
    // What the toolbars show follows the canvas, whoever changed it.
    for (QAction* mode : m_modes->actions())
        mode->setChecked(mode->data().toInt() == static_cast<int>(m_canvas->GetMode()));
    m_editsTransparency->setChecked(m_canvas->EditsTransparency());
    if (!m_canvas->EditsTransparency())
        m_editsTransparency->actionGroup()->actions().front()->setChecked(true);
    m_hint->setText(HintToRichText(m_canvas->HintLine()));
}

void MainWindow::UpdateTitle()
{
    const QString name = m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).fileName();
    setWindowTitle(QStringLiteral("%1[*] — kestodraw").arg(name));
    setWindowModified(!m_undo.isClean());
}

bool MainWindow::Open(const QString& path)
{
    QString error;
    std::optional<Document> opened = DocumentFile::Open(path, &error);
    if (!opened) {
        m_reportError(tr("Open Drawing"), tr("%1 could not be opened: %2").arg(QFileInfo(path).fileName(), error));
        return false;
    }
    m_document = std::move(*opened);
    m_path = path;
    m_undo.clear();
    m_canvas->DocumentReplaced();
    m_canvas->FitPage();
    UpdateTitle();
    return true;
}

MainWindow* MainWindow::Showing(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    if (file.isEmpty())
        return nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<MainWindow*>(widget);
            window && !window->m_path.isEmpty() && QFileInfo(window->m_path).canonicalFilePath() == file)
            return window;
    return nullptr;
}

void MainWindow::Bring(MainWindow* window)
{
    window->show();
    window->raise();
    window->activateWindow();
}

MainWindow* MainWindow::Shown()
{
    auto* window = new MainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->resize(1100, 760);
    window->show();
    return window;
}

QList<MainWindow*> MainWindow::OpenEach(const QStringList& paths, MainWindow* empty)
{
    QList<MainWindow*> windows;
    for (const QString& path : paths) {
        if (MainWindow* showing = Showing(path)) {
            Bring(showing);
            windows << showing;
            continue;
        }
        MainWindow* window = empty ? empty : Shown();
        if (window->Open(path)) {
            windows << window;
            empty = window == empty ? nullptr : empty;
        } else if (window != empty) {
            window->close();
        }
    }
    return windows;
}

bool MainWindow::Recover(const QString& copy)
{
    QString error;
    std::optional<Document> recovered = DocumentFile::Open(copy, &error);
    if (!recovered) {
        m_reportError(tr("Recover Drawing"),
                      tr("The drawing kept when kestodraw stopped could not be read: %1").arg(error));
        return false;
    }
    m_document = std::move(*recovered);
    m_path.clear();
    m_undo.clear();
    m_undo.resetClean(); // unsaved: it has no file of its own yet
    m_canvas->DocumentReplaced();
    m_canvas->FitPage();
    UpdateTitle();
    m_autosave->Changed(false);
    if (m_autosave->WriteNow())
        QFile::remove(copy);
    return true;
}

bool MainWindow::SaveAs(const QString& path)
{
    QString error;
    if (!DocumentFile::Save(m_document, path, &error)) {
        m_reportError(tr("Save Drawing"), tr("%1 could not be saved: %2").arg(QFileInfo(path).fileName(), error));
        return false;
    }
    m_path = path;
    m_undo.setClean();
    UpdateTitle();
    return true;
}

template <class Work>
bool MainWindow::Exporting(const QString& path, Work work)
{
    if (m_exporting)
        return false;
    const QScopedValueRollback exporting(m_exporting, true);
    // A copy of the drawing is written on a worker while the window stays live; the progress
    // shows once it has taken half a second, and Cancel stops it at the next shape.
    QProgressDialog progress(MainWindow::tr("Exporting %1...").arg(QFileInfo(path).fileName()),
                             MainWindow::tr("Cancel"), 0, 1000, this);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(500);
    std::atomic<double> done = 0;
    std::atomic<bool> cancelled = false;
    connect(&progress, &QProgressDialog::canceled, this, [&] { cancelled = true; });
    QTimer tick;
    connect(&tick, &QTimer::timeout, this, [&] { progress.setValue(static_cast<int>(done * 999)); });
    tick.start(50);
    QEventLoop finished;
    bool made = false;
    std::thread worker([&, document = m_document] {
        made = work(document, [&](double share) {
            done = share;
            return !cancelled;
        });
        QMetaObject::invokeMethod(&finished, &QEventLoop::quit, Qt::QueuedConnection);
    });
    finished.exec();
    worker.join();
    return made;
}

void MainWindow::ReportExportError(const QString& title, const QString& path, const QString& reason)
{
    m_reportError(title, tr("%1 could not be written: %2").arg(QFileInfo(path).fileName(), reason));
}

bool MainWindow::ExportPng(const QString& path)
{
    const double scale = std::min(1.0, kExportSide / std::max(m_document.width, m_document.height));
    QImage page;
    if (!Exporting(path, [&](const Document& document, const DrawingPainter::Going& going) {
            page = DrawingPainter().PaintPage(document, scale, going);
            return !page.isNull();
        }))
        return false;
    // Written whole or not at all, and with the reason when it fails.
    QSaveFile file(path);
    QImageWriter writer(&file, "PNG");
    if (file.open(QIODevice::WriteOnly) && writer.write(page) && file.commit())
        return true;
    ReportExportError(tr("Export PNG"), path,
                      file.error() != QFileDevice::NoError ? file.errorString() : writer.errorString());
    return false;
}

MainWindow::ExportOptions MainWindow::DefaultExportOptions(bool pdf) const
{
    const double longer = std::max(m_document.width, m_document.height);
    if (pdf)
        return {std::min(longer * kMmPerPixel, kA3LongerSideMm), 300};
    return {longer * kMmPerPixel, 96 * std::min(1.0, kExportSide / longer)};
}

bool MainWindow::WriteWhole(const QString& title, const QString& path, const std::string& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) &&
        file.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size()) &&
        file.commit())
        return true;
    ReportExportError(title, path, file.errorString());
    return false;
}

namespace {

// Hands the drawing's shapes to an SVG or PDF writer in painting order, each with its outline in
// the canvas's grey; false once going says the export was cancelled.
template <class Writer>
bool AddShapes(const Document& document, const DrawingPainter::Going& going, Writer& writer)
{
    for (std::size_t i = 0; i < document.shapes.size(); ++i) {
        if (!going(static_cast<double>(i) / static_cast<double>(document.shapes.size())))
            return false;
        const Shape& shape = document.shapes[i];
        writer.AddShape(KestoToolQt::ToRasterPath(shape.Outline()), *shape.fill, shape.transparency.get(), kOutline);
    }
    return true;
}

} // namespace

bool MainWindow::ExportSvg(const QString& path, const ExportOptions& options)
{
    std::string svg;
    if (!Exporting(path, [&](const Document& document, const DrawingPainter::Going& going) {
            KestoTool::SvgWriter writer(document.width, document.height);
            writer.SetRasterScale(options.dpi / 96); // the drawing's units are pixels at 96 per inch
            writer.SetPageColour(KestoRaster::Rgba{255, 255, 255, 255}); // as the PNG export's page
            if (!AddShapes(document, going, writer))
                return false;
            svg = writer.Document();
            return true;
        }))
        return false;
    return WriteWhole(tr("Export SVG"), path, svg);
}

bool MainWindow::ExportPdf(const QString& path, const ExportOptions& options)
{
    std::string pdf;
    bool failed = false; // the PDF library could not finish the document
    if (!Exporting(path, [&](const Document& document, const DrawingPainter::Going& going) {
            const double points = options.longerSideMm / 25.4 * 72 / std::max(document.width, document.height);
            KestoTool::PdfWriter writer(document.width, document.height, points, options.dpi);
            writer.SetPageColour(KestoRaster::Rgba{255, 255, 255, 255});
            if (!AddShapes(document, going, writer))
                return false;
            pdf = writer.Document();
            failed = pdf.empty();
            return !failed;
        })) {
        if (failed)
            ReportExportError(tr("Export PDF"), path, tr("the PDF library could not make the document"));
        return false;
    }
    return WriteWhole(tr("Export PDF"), path, pdf);
}

bool MainWindow::ImportSvg(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    const KestoTool::SvgReader::Limits limits{.shapes = DocumentFile::MaxShapes,
                                              .pathSegments = DocumentFile::MaxOutlineSegments};
    QFile file(path);
    QString error;
    std::optional<KestoTool::SvgReader::Drawing> drawing;
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
    } else if (file.size() > static_cast<qint64>(limits.bytes)) {
        error = tr("it is %1 MB; SVG files up to %2 MB are read").arg(file.size() >> 20).arg(limits.bytes >> 20);
    } else {
        const QByteArray bytes = file.readAll();
        KestoTool::SvgReader::Result read = KestoTool::SvgReader::Read(
            std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())), limits);
        error = SvgMessageText(read.error);
        drawing = std::move(read.drawing);
    }
    if (!drawing) {
        m_reportError(tr("Import SVG"), tr("%1 could not be imported: %2").arg(name, error));
        return false;
    }
    Document imported;
    imported.width = static_cast<int>(std::lround(drawing->width));
    imported.height = static_cast<int>(std::lround(drawing->height));
    for (KestoTool::SvgReader::Shape& read : drawing->shapes) {
        Shape shape;
        shape.kind = Shape::Kind::Curves;
        shape.curves = std::move(read.outline);
        const QRectF bounds = shape.Outline().controlPointRect();
        shape.box = KestoPlatform::CRect(
            static_cast<int>(std::floor(bounds.left())), static_cast<int>(std::floor(bounds.top())),
            static_cast<int>(std::ceil(bounds.right())), static_cast<int>(std::ceil(bounds.bottom())));
        shape.fill = std::move(read.fill);
        shape.transparency = std::move(read.transparency);
        imported.shapes.push_back(std::move(shape));
    }
    QStringList skipped;
    for (const KestoTool::SvgReader::Message& what : drawing->skipped)
        skipped << SvgMessageText(what);
    if (drawing->page && !(*drawing->page == KestoRaster::Rgba{255, 255, 255, 255}))
        skipped << tr("the page's colour");
    m_document = std::move(imported);
    m_path.clear();
    m_undo.clear();
    m_undo.resetClean();
    m_canvas->DocumentReplaced();
    m_canvas->FitPage();
    UpdateTitle();
    if (!skipped.empty()) {
        m_reportError(
            tr("Import SVG"),
            tr("%1 holds what kestodraw does not draw, left out: %2.").arg(name, skipped.join(QStringLiteral(", "))));
    }
    return true;
}

void MainWindow::NewDrawing()
{
    m_document = Document();
    m_path.clear();
    m_undo.clear();
    m_canvas->DocumentReplaced();
    m_canvas->FitPage();
    UpdateTitle();
}

void MainWindow::EditFill(bool transparency)
{
    m_canvas->SetEditTransparency(transparency);
    const int command =
        KestoTool::FillCommands::HostId(transparency ? KestoTool::FillCmdTransEdit : KestoTool::FillCmdEdit);
    if (m_canvas->Tool() && command != -1)
        m_canvas->Session().OnCmdMsg(command, KestoPlatform::CN_COMMAND, nullptr, nullptr);
}

void MainWindow::ShowPreferences()
{
    PreferencesDialog dialog(m_canvas->Grid(), m_canvas->AngleStep(), this);
    if (dialog.exec() == QDialog::Accepted)
        m_canvas->SetPreferences(dialog.Grid(), dialog.AngleStep());
}

bool MainWindow::MaybeSave()
{
    if (m_undo.isClean())
        return true;
    const auto answer = QMessageBox::question(this, tr("kestodraw"), tr("Save the changes to the drawing?"),
                                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel)
        return false;
    if (answer == QMessageBox::Discard)
        return true;
    const QString path =
        m_path.isEmpty() ? QFileDialog::getSaveFileName(this, tr("Save Drawing"), QString(), tr(kFileFilter)) : m_path;
    return !path.isEmpty() && SaveAs(path);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (MaybeSave())
        event->accept();
    else
        event->ignore();
}

} // namespace KestoDraw
