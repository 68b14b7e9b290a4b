// kestodraw as the desktop runs it: a window a drawing, one kestodraw a user, and the user's
// language.
#include "DocumentFile.h"
#include "Instance.h"
#include "JsonRead.h"
#include "KestoDrawWindow.h"
#include "MainWindow.h"
#include "Palette.h"
#include "ScriptPlayer.h"
#include "SvgMessages.h"
#include "Translations.h"

#include "kestotool/platform/WindowTypes.h"
#include "kestotool/qt/QtBackend.h"
#include "kestotool/resources/ResourceIds.h"
#include "kestotool/tool/Module.h"
#include "support/ReferenceImage.h"
#include "support/UserInput.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QMenuBar>
#include <QTranslator>

#include <algorithm>

using KestoDrawTesting::KestoDrawWindow;
using KestoDrawTesting::kSample;

namespace {

// Drawings named at the start each get a window of their own; a drawing a window already shows,
// by any name, brings that window forward instead of opening again.
TEST_F(KestoDrawWindow, EachDrawingOpensInItsOwnWindowAndOneAlreadyOpenIsBroughtForward)
{
    const QString other = folder.filePath("other.kdraw"), alias = folder.filePath("alias.kdraw");
    ASSERT_TRUE(QFile::copy(kSample, other));
    ASSERT_TRUE(QFile::link(other, alias));
    const QList<KestoDraw::MainWindow*> shown = KestoDraw::MainWindow::OpenEach({kSample, other, alias});
    ASSERT_EQ(shown.size(), 3);
    EXPECT_EQ(shown[0], window.get()); // the fixture's window shows the sample already
    ASSERT_NE(shown[1], window.get());
    EXPECT_EQ(shown[1]->Path(), other);
    EXPECT_EQ(shown[2], shown[1]);
    EXPECT_TRUE(shown[1]->testAttribute(Qt::WA_DeleteOnClose));
    EXPECT_EQ(KestoDraw::MainWindow::Showing(folder.filePath("missing.kdraw")), nullptr);

    // A window that shows nothing yet takes the first drawing; the next gets a window of its own.
    const QString third = folder.filePath("third.kdraw");
    ASSERT_TRUE(QFile::copy(kSample, third));
    KestoDraw::MainWindow empty;
    shown[1]->close(); // deleted once the events run
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QList<KestoDraw::MainWindow*> next = KestoDraw::MainWindow::OpenEach({third, other}, &empty);
    ASSERT_EQ(next.size(), 2);
    EXPECT_EQ(next[0], &empty);
    EXPECT_EQ(empty.Path(), third);
    EXPECT_NE(next[1], window.get());
    EXPECT_EQ(KestoDraw::MainWindow::Showing(alias), next[1]);
    delete next[1];
}

// A later start hands its drawings to the kestodraw that runs, which opens each in a window of
// its own or brings forward the window that shows it already; with none running it hands nothing.
TEST_F(KestoDrawWindow, ALaterStartHandsItsDrawingsToTheKestodrawThatRuns)
{
    const QString name = QStringLiteral("kestodraw-test-%1").arg(QCoreApplication::applicationPid());
    EXPECT_FALSE(KestoDraw::Instance::Forward({kSample}, name));
    const KestoDraw::Instance running(name);
    ASSERT_TRUE(running.Listening());
    const QString other = folder.filePath("other.kdraw");
    ASSERT_TRUE(QFile::copy(kSample, other));
    ASSERT_TRUE(KestoDraw::Instance::Forward({other, kSample}, name));
    for (int i = 0; i < 200 && !KestoDraw::MainWindow::Showing(other); ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    KestoDraw::MainWindow* opened = KestoDraw::MainWindow::Showing(other);
    ASSERT_NE(opened, nullptr);
    EXPECT_NE(opened, window.get());
    EXPECT_EQ(KestoDraw::MainWindow::Showing(kSample), window.get());
    delete opened;
}

// With a German locale the program speaks German, Qt's own buttons and the library's hints and
// commands too, the hints keeping their |key| marks; a locale without translations gives English.
TEST_F(KestoDrawWindow, AGermanLocaleGivesGermanTextsAndAnotherEnglish)
{
    ASSERT_TRUE(KestoDraw::InstallTranslations(QLocale(QLocale::German, QLocale::Germany)));
    {
        KestoDraw::MainWindow german;
        EXPECT_EQ(german.menuBar()->actions().first()->text(), "&Datei");
        const auto* palette = german.findChild<KestoDraw::Palette*>();
        ASSERT_NE(palette, nullptr);
        EXPECT_EQ(palette->Name(2), "Rot");
        EXPECT_EQ(palette->Name(palette->Count() - 1), "100 % transparent");
        // The SVG reader's every message has a German pattern; the file's own words go in once.
        QTranslator texts;
        ASSERT_TRUE(texts.load(QLocale(QLocale::German), "kestodraw", "_", ":/translations"));
        for (const std::string_view pattern : KestoTool::SvgReader::Patterns())
            EXPECT_FALSE(texts.translate("KestoTool::SvgReader", std::string(pattern).c_str()).isEmpty()) << pattern;
        EXPECT_EQ(KestoDraw::SvgMessageText(KestoTool::SvgReader::Read("<svg").error).left(38),
                  "die Datei ist kein wohlgeformtes XML (");
        const auto patterns = KestoTool::SvgReader::Patterns();
        const auto transform = std::find(patterns.begin(), patterns.end(), "transform \"%1\"");
        ASSERT_NE(transform, patterns.end());
        EXPECT_EQ(KestoDraw::SvgMessageText({*transform, {"%2"}}), "transform „%2“");
        // Why a drawing cannot be opened ends a German message.
        QString why;
        EXPECT_FALSE(KestoDraw::DocumentFile::Open(folder.filePath("missing.kdraw"), &why));
        EXPECT_EQ(why, "die Datei gibt es nicht");
        try {
            KestoDraw::DocumentFile::Read(R"({"format": "kestodraw", "version": 1, "page": [10, 10]})");
            ADD_FAILURE() << "a drawing without shapes was read";
        } catch (const KestoDraw::FormatError& error) {
            EXPECT_EQ(error.Message(), "„shapes“ fehlt");
        }
        EXPECT_EQ(QApplication::translate("KestoDraw::Canvas", "|Drag| to draw a rectangle."),
                  "|Ziehen|, um ein Rechteck zu zeichnen.");
        EXPECT_EQ(QApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
        // The library's, from its German resource module (the |key| marks kept).
        EXPECT_EQ(KestoTool::Module::Get().LoadString(123).Str(), L"Füllung drehen");
        EXPECT_EQ(KestoTool::Module::Get().LoadString(102).Str(), L"|Ziehen|, um die Füllung zu verschieben.");
        const KestoPlatform::DialogTemplate* editor =
            KestoTool::Module::Get().LoadDialogTemplate(KestoTool::IDD_GRADIENT_FILL);
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->caption, L"Verlaufsfüllung");
        // The undo step of a changed kind is named by the library, in German too.
        Step("click 550 525");
        const QList<QComboBox*> boxes = window->findChildren<QComboBox*>();
        EXPECT_TRUE(std::any_of(boxes.begin(), boxes.end(), [&](const QComboBox* box) {
            return box->isVisibleTo(window.get()) && box->findText("Dreifarbig") >= 0;
        })) << "the tool's type box names the kinds in German";
        Step("kind 5");
        EXPECT_EQ(window->Undo().text(window->Undo().count() - 1), "Füllungsart");
    }
    EXPECT_FALSE(KestoDraw::InstallTranslations(QLocale(QLocale::English, QLocale::UnitedStates)));
    KestoDraw::MainWindow english;
    EXPECT_EQ(english.menuBar()->actions().first()->text(), "&File");
    EXPECT_EQ(KestoTool::Module::Get().LoadString(123).Str(), L"Rotate Fill");
}

// The window with a linear fill selected, and the gradient editor on it, in English and in
// German, as the references show them: at one device pixel per pixel, and at two in the ctest
// entry that starts the process with QT_SCALE_FACTOR=2 (the "@2x" references: the 192-dpi
// icons, the canvas at the device's resolution).
TEST_F(KestoDrawWindow, TheWindowAndTheGradientEditorLookAsTheirReferencesInEnglishAndGerman)
{
    const QString ratio = window->devicePixelRatioF() >= 2 ? QStringLiteral("@2x") : QString();
    for (const QLocale& locale :
         {QLocale(QLocale::English, QLocale::UnitedStates), QLocale(QLocale::German, QLocale::Germany)}) {
        const QString name = QStringLiteral("kestodraw-") + locale.name().left(2) + ratio;
        KestoDraw::InstallTranslations(locale);
        KestoDraw::MainWindow shown; // its menus and bars in the language
        shown.GetCanvas().SetWaitForPage(true);
        shown.SetErrorReporter([this](const QString&, const QString& message) { errors << message; });
        shown.resize(1100, 760);
        shown.show();
        ASSERT_TRUE(shown.Open(kSample));
        QApplication::processEvents();
        KestoDraw::ScriptPlayer play(shown, QDir(folder.path()));
        ASSERT_TRUE(play.PlayStep("click 550 525")) << play.Error().toStdString();
        KestoTest::ExpectMatchesReference(shown.grab().toImage(), QStringLiteral(KESTO_REFERENCE_DIR),
                                          QStringLiteral(KESTO_DIFFERENCE_DIR), name + "-window");
        QImage editor;
        KestoTest::UserInput& input = KestoTest::QtUserInput();
        input.SetModalScript([&](KestoPlatform::CDialog& dialog) {
            editor = KestoToolQt::QtBackend::WidgetOf(dialog)->grab().toImage();
            input.ClickButton(dialog, KestoPlatform::IDCANCEL);
        });
        shown.EditFill(false);
        ASSERT_FALSE(editor.isNull());
        KestoTest::ExpectMatchesReference(editor, QStringLiteral(KESTO_REFERENCE_DIR),
                                          QStringLiteral(KESTO_DIFFERENCE_DIR), name + "-gradient-editor");
    }
    KestoDraw::InstallTranslations(QLocale(QLocale::English, QLocale::UnitedStates));
}

} // namespace
