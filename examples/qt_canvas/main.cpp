// Your first Qt host: a window of rectangles whose fills are edited with the library's tools, the
// tool's context toolbar above and its hint line below (docs/embedding.md walks through it).
#include "QtCanvas.h"

#include <kestotool/qt/QtBackend.h>
#include <kestotool/tool/ToolIdMap.h>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QRegularExpression>
#include <QStatusBar>
#include <QToolBar>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    KestoToolQt::QtBackend backend; // the library's dialogs as Qt dialogs
    KestoPlatform::SetBackend(&backend);
    KestoTool::Init(20000, 21000);  // the command IDs the library may use
    int status = 0;
    {
        QMainWindow window;
        auto* contextBar = window.addToolBar(QStringLiteral("Fill"));
        auto* hint = new QLabel;
        window.statusBar()->addWidget(hint);
        // Words between bars are keys and mouse words: shown in bold.
        auto* canvas = new QtCanvas(*contextBar, [hint](QString line) {
            hint->setText(line.replace(QRegularExpression(QStringLiteral("\\|([^|]*)\\|")), QStringLiteral("<b>\\1</b>")));
        });
        window.setCentralWidget(canvas);
        auto* edit = window.addToolBar(QStringLiteral("Edit"));
        edit->addAction(canvas->Undo().createUndoAction(&window));
        edit->addAction(canvas->Undo().createRedoAction(&window));
        canvas->Select(0);
        window.show();
        status = QApplication::exec();
    }
    KestoPlatform::SetBackend(nullptr);
    return status;
}
