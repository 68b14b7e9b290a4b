#pragma once

// The fixture of kestodraw's window tests: the main window offscreen on the sample drawing, its
// errors collected, a script player writing into a temporary folder.
#include "MainWindow.h"
#include "ScriptPlayer.h"

#include "kestotool/tool/ToolIdMap.h"
#include "support/UserInput.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace KestoDrawTesting {

inline const QString kSample = QStringLiteral(KESTODRAW_SAMPLE);

class KestoDrawWindow : public testing::Test {
protected:
    void SetUp() override
    {
        QStandardPaths::setTestModeEnabled(true); // autosaves go to a test folder, not the user's
        KestoTest::QtUserInput().Install();
        KestoTool::Init(40000, 40200);
        window = std::make_unique<KestoDraw::MainWindow>();
        window->GetCanvas().SetWaitForPage(true); // each grab shows the page whole
        window->SetErrorReporter([this](const QString&, const QString& message) { errors << message; });
        window->resize(1100, 760);
        window->show();
        ASSERT_TRUE(window->Open(kSample)) << errors.join('\n').toStdString();
        QApplication::processEvents();
        player = std::make_unique<KestoDraw::ScriptPlayer>(*window, QDir(folder.path()));
    }
    void TearDown() override
    {
        player.reset();
        window.reset();
        KestoTest::QtUserInput().Uninstall();
    }
    void Step(const QString& line) { ASSERT_TRUE(player->PlayStep(line)) << player->Error().toStdString(); }

    QTemporaryDir folder;
    QStringList errors;
    std::unique_ptr<KestoDraw::MainWindow> window;
    std::unique_ptr<KestoDraw::ScriptPlayer> player;
};

} // namespace KestoDrawTesting
