// The same rectangle in a Qt host: the linear tool's context toolbar on a QToolBar through the
// Qt back end (KestoTool::Qt), and one of its buttons clicked as a user would.
#include "RectangleSite.h"

#include <kestotool/filltool/FillCommands.h>
#include <kestotool/qt/QtCommandBar.h>
#include <kestotool/tool/ToolIdMap.h>

#include <QApplication>
#include <QToolBar>
#include <QToolButton>

#include <cstdio>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    KestoTool::Init(20000, 20100);
    RectangleSite site;
    const auto tool = site.SelectWithLinearFill();
    if (!tool)
        return 1;
    QToolBar toolbar;
    KestoToolQt::QtCommandBar shown(toolbar);
    shown.Show(site.bars, *tool);

    std::printf("Qt context toolbar: %d widgets for %d controls\n", int(toolbar.actions().size()),
                site.bars.GetCount());

    // A click on "Rotate Left" turns the fill a quarter turn: the tool commits a new fill.
    const int rotateLeft = KestoTool::FillCommands::HostId(KestoTool::FillCmdRotateLeft);
    auto* rotate = qobject_cast<QToolButton*>(shown.WidgetOf(rotateLeft));
    const KestoGDI::CFill* before = site.fill.get();
    if (rotate)
        rotate->click();
    const bool rotated = rotate && site.fill.get() != before;
    shown.Clear();
    if (!rotated) {
        std::fprintf(stderr, "InstalledQtHost: the Rotate Left button did not commit a new fill\n");
        return 1;
    }
    std::printf("Rotate Left clicked: a new fill committed\n");
    return 0;
}
