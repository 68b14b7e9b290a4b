// kestodraw: a small drawing program whose fill and transparency tools come from KestoTool.
//
//   kestodraw [DRAWING]                      opens the drawing (the sample without one)
//   kestodraw [DRAWING] [--recover] --script FILE --out DIR
//                                            plays the input script on the window, writing a
//                                            screenshot after each step into DIR, and exits
#include "FileRead.h"
#include "MainWindow.h"
#include "ScriptPlayer.h"

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

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("kestodraw");
    QCommandLineParser options;
    options.setApplicationDescription("A drawing program whose fill and transparency tools come from KestoTool.");
    options.addHelpOption();
    options.addPositionalArgument("drawing", "The drawing to open (the sample drawing without one).");
    const QCommandLineOption script("script", "Play the input script FILE on the window, then quit.", "FILE");
    const QCommandLineOption out("out", "Write the script's screenshots into DIR.", "DIR", ".");
    const QCommandLineOption recover("recover", "Take up the drawing that kestodraw kept when it last stopped without "
                                                "closing, without asking.");
    options.addOption(script);
    options.addOption(out);
    options.addOption(recover);
    options.process(app);

    KestoToolQt::QtBackend backend;
    KestoPlatform::SetBackend(&backend);
    KestoTool::Init(40000, 40200);
    int status = 0;
    {
        KestoDraw::MainWindow window;
        window.resize(1100, 760);
        const QStringList drawings = options.positionalArguments();
        const QString drawing = drawings.isEmpty() ? QApplication::applicationDirPath() + "/sample.kdraw" : drawings[0];
        if (options.isSet(script)) {
            window.GetCanvas().SetWaitForPage(true); // its screenshots show the page whole
            window.SetErrorReporter([](const QString& title, const QString& message) {
                std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(message));
            });
        }
        window.show();
        // A copy an earlier run left when it stopped without closing (a crash, a power loss).
        bool recovered = false;
        if (const QStringList kept = KestoDraw::Autosave::Orphans(); !kept.isEmpty()) {
            const bool take =
                options.isSet(recover) ||
                (!options.isSet(script) &&
                 QMessageBox::question(&window, QObject::tr("Recover Drawing"),
                                       QObject::tr("kestodraw stopped without closing last time. Open the drawing "
                                                   "as it was a minute or less before?")) == QMessageBox::Yes);
            recovered = take && window.Recover(kept.first());
            if (!take && !options.isSet(script))
                for (const QString& copy : kept)
                    QFile::remove(copy);
        }
        if (!recovered && !window.Open(drawing) && options.isSet(script))
            status = 1;
        if (status == 0 && options.isSet(script)) {
            QString why;
            const std::optional<QByteArray> lines =
                KestoDraw::ReadRegularFile(options.value(script), kMaxScriptBytes, &why);
            if (!lines) {
                std::fprintf(stderr, "kestodraw: cannot read the script %s: %s\n", qPrintable(options.value(script)),
                             qPrintable(why));
                status = 1;
            } else {
                QDir dir(options.value(out));
                dir.mkpath(".");
                KestoDraw::ScriptPlayer player(window, dir);
                QApplication::processEvents();
                if (!player.Play(QString::fromUtf8(*lines).split('\n'))) {
                    std::fprintf(stderr, "kestodraw: %s\n", qPrintable(player.Error()));
                    status = 1;
                }
                std::printf("kestodraw: %d screenshots in %s\n", player.Shots(), qPrintable(dir.absolutePath()));
            }
            window.GetCanvas().setFocus();
        } else if (status == 0) {
            status = QApplication::exec();
        }
    }
    KestoPlatform::SetBackend(nullptr);
    return status;
}
