// kestodraw: a small drawing program whose fill and transparency tools come from KestoTool.
//
//   kestodraw [DRAWING...]                   opens each drawing in a window of its own (the
//                                            sample without one), in the kestodraw of the
//                                            user's that runs already if there is one
//   kestodraw [DRAWING] [--recover] --script FILE --out DIR
//                                            plays the input script on the window, writing a
//                                            screenshot after each step into DIR, and exits
#include "FileRead.h"
#include "Instance.h"
#include "MainWindow.h"
#include "ScriptPlayer.h"
#include "Translations.h"

#include <kestotool/qt/QtBackend.h>
#include <kestotool/tool/ToolIdMap.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QMessageBox>

#include <cstdio>

// A script is a person's input, one step a line: a few megabytes is more than anyone types.
constexpr qint64 kMaxScriptBytes = qint64(16) << 20;

namespace {

// The sample drawing: beside the program in a build tree, in its data folder once installed.
QString SampleDrawing()
{
    const QDir folder(QApplication::applicationDirPath());
    const QString beside = folder.filePath("sample.kdraw");
    return QFile::exists(beside) ? beside : QDir::cleanPath(folder.filePath(KESTODRAW_DATA_FROM_BIN "/sample.kdraw"));
}

// Offers the copy an earlier run left when it stopped without closing (a crash, a power loss),
// and takes it up in window when asked to or told to; the copies declined are removed.
bool OfferRecovery(KestoDraw::MainWindow& window, bool told, bool ask)
{
    const QStringList kept = KestoDraw::Autosave::Orphans();
    if (kept.isEmpty())
        return false;
    const bool take = told || (ask && QMessageBox::question(&window, QObject::tr("Recover Drawing"),
                                                            QObject::tr("kestodraw stopped without closing last "
                                                                        "time. Open the drawing as it was a minute or "
                                                                        "less before?")) == QMessageBox::Yes);
    if (!take && ask)
        for (const QString& copy : kept)
            QFile::remove(copy);
    return take && window.Recover(kept.first());
}

// Plays the script on one window on the drawing, writing screenshots into the folder out.
int PlayScript(const QString& drawing, bool recover, const QString& scriptPath, const QString& out)
{
    KestoDraw::MainWindow window;
    window.resize(1100, 760);
    window.GetCanvas().SetWaitForPage(true); // its screenshots show the page whole
    window.SetErrorReporter([](const QString& title, const QString& message) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(message));
    });
    window.show();
    if (!OfferRecovery(window, recover, false) && !window.Open(drawing))
        return 1;
    QString why;
    const std::optional<QByteArray> lines = KestoDraw::ReadRegularFile(scriptPath, kMaxScriptBytes, &why);
    if (!lines) {
        std::fprintf(stderr, "kestodraw: cannot read the script %s: %s\n", qPrintable(scriptPath), qPrintable(why));
        return 1;
    }
    QDir dir(out);
    dir.mkpath(".");
    KestoDraw::ScriptPlayer player(window, dir);
    QApplication::processEvents();
    int status = 0;
    if (!player.Play(QString::fromUtf8(*lines).split('\n'))) {
        std::fprintf(stderr, "kestodraw: %s\n", qPrintable(player.Error()));
        status = 1;
    }
    std::printf("kestodraw: %d screenshots in %s\n", player.Shots(), qPrintable(dir.absolutePath()));
    window.GetCanvas().setFocus();
    return status;
}

// Opens each drawing in a window of its own (the sample without any, unless the first window
// took up a recovered copy), unless a kestodraw runs already; runs until the last window closes.
int ShowDrawings(const QStringList& drawings, bool recover)
{
    // A kestodraw of the user's that runs already opens them (or brings its window forward).
    if (KestoDraw::Instance::Forward(drawings))
        return 0;
    const KestoDraw::Instance instance;
    KestoDraw::MainWindow* first = KestoDraw::MainWindow::Shown();
    const bool recovered = OfferRecovery(*first, recover, true);
    const QStringList paths = !drawings.isEmpty() ? drawings : recovered ? QStringList() : QStringList{SampleDrawing()};
    KestoDraw::MainWindow::OpenEach(paths, recovered ? nullptr : first);
    const int status = QApplication::exec();
    // Windows still open when the loop ends (the session ending) go before the back end does.
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (qobject_cast<KestoDraw::MainWindow*>(widget))
            delete widget;
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("kestodraw");
    QCommandLineParser options;
    options.setApplicationDescription("A drawing program whose fill and transparency tools come from KestoTool.");
    options.addHelpOption();
    options.addPositionalArgument(
        "drawings", "The drawings to open, each in a window (the sample drawing without one).", "[drawing...]");
    const QCommandLineOption script("script", "Play the input script FILE on the window, then quit.", "FILE");
    const QCommandLineOption out("out", "Write the script's screenshots into DIR.", "DIR", ".");
    const QCommandLineOption recover("recover", "Take up the drawing that kestodraw kept when it last stopped without "
                                                "closing, without asking.");
    options.addOption(script);
    options.addOption(out);
    options.addOption(recover);
    options.process(app);
    KestoDraw::InstallTranslations(QLocale());

    KestoToolQt::QtBackend backend;
    KestoPlatform::SetBackend(&backend);
    KestoTool::Init(40000, 40200);
    const QStringList drawings = options.positionalArguments();
    const int status = options.isSet(script)
                           ? PlayScript(drawings.isEmpty() ? SampleDrawing() : drawings[0], options.isSet(recover),
                                        options.value(script), options.value(out))
                           : ShowDrawings(drawings, options.isSet(recover));
    KestoPlatform::SetBackend(nullptr);
    return status;
}
