#include "kestotool/qt/QtBackend.h"

#include "kestotool/dialogs/SolidTransparencyDlg.h"
#include "support/UserInput.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace {

// Counts its timer and kills it from the handler after the third.
class TickingWindow : public KestoPlatform::CWnd {
public:
    int ticks = 0;
    void OnTimer(int id) override
    {
        if (++ticks == 3)
            KillTimer(id);
    }
};

} // namespace

TEST(QtBackend, WallClockTimersFireFromTheEventLoopAndStopWhenKilledInTheirHandler)
{
    KestoTest::QtUserInput().Install(); // the application
    KestoToolQt::QtBackend backend;     // on the wall clock
    KestoPlatform::WindowBackend* previous = KestoPlatform::SetBackend(&backend);
    TickingWindow window;
    window.Create(nullptr, 1, KestoPlatform::CRect(0, 0, 10, 10));
    window.SetTimer(7, 1);
    const QDeadlineTimer deadline(5000);
    while (window.ticks < 3 && !deadline.hasExpired())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    EXPECT_EQ(window.ticks, 3);
    const QDeadlineTimer quiet(30);
    while (!quiet.hasExpired())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    EXPECT_EQ(window.ticks, 3);
    window.DestroyWindow();
    KestoPlatform::SetBackend(previous);
    KestoTest::QtUserInput().Uninstall();
}

TEST(QtBackend, TheProgramsFocusMovesTheWidgetsFocus)
{
    KestoTest::UserInput& input = KestoTest::QtUserInput();
    input.Install();
    KestoTool::CSolidTransparencyDlg dialog(nullptr, nullptr);
    input.SetModalScript([](KestoPlatform::CDialog& d) {
        auto& dlg = static_cast<KestoTool::CSolidTransparencyDlg&>(d);
        dlg.GetEdit().SetFocus();
        EXPECT_EQ(QApplication::focusWidget(), KestoToolQt::QtBackend::WidgetOf(dlg.GetEdit()));
        dlg.GetSlider().SetFocus();
        EXPECT_EQ(QApplication::focusWidget(), KestoToolQt::QtBackend::WidgetOf(dlg.GetSlider()));
        // The edit box's widget stayed the one the template made when the dialog took it over.
        EXPECT_NE(qobject_cast<QLineEdit*>(KestoToolQt::QtBackend::WidgetOf(dlg.GetEdit())), nullptr);
    });
    dialog.DoModal();
    input.Uninstall();
}

TEST(QtBackend, EscapeCancelsThroughTheDialogsOwnCancel)
{
    KestoTest::UserInput& input = KestoTest::QtUserInput();
    input.Install();
    KestoTool::CSolidTransparencyDlg dialog(nullptr, nullptr);
    input.SetModalScript([](KestoPlatform::CDialog& d) {
        QTest::keyClick(KestoToolQt::QtBackend::WidgetOf(d), Qt::Key_Escape);
        EXPECT_TRUE(d.IsEnded()); // ended by OnCancel, not left for the run to cancel
    });
    EXPECT_EQ(dialog.DoModal(), KestoPlatform::IDCANCEL);
    input.Uninstall();
}
