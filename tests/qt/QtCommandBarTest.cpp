#include "kestotool/qt/QtCommandBar.h"

#include "kestotool/qt/QtConvert.h"

#include "kestotool/filltool/FillCommands.h"
#include "kestotool/filltool/FillToolFactory.h"
#include "kestotool/gdi/CMonoColour.h"
#include "kestotool/gdi/CTransparencyLinear.h"
#include "kestotool/gdi/ColourIntPairs.h"
#include "kestotool/tool/ToolIdMap.h"
#include "support/TestDocument.h"
#include "support/TestToolSite.h"
#include "support/UserInput.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

#include <utility>

using namespace KestoTool;

namespace {

int LevelOf(const KestoGDI::CFill& fill, int stop)
{
    const auto& gradient = dynamic_cast<const KestoGDI::CFillGradient&>(fill);
    return dynamic_cast<const KestoGDI::CMonoColour&>(gradient.GetColourIntPairs().GetAt(stop)->GetColour()).GetLevel();
}

} // namespace

// A linear transparency tool's context bar on a real toolbar: what the user sees and what each
// widget does.
TEST(QtCommandBar, ShowsTheToolsBarAndRoutesClicksEditsAndChoicesToTheTool)
{
    KestoTest::QtUserInput().Install();
    KestoTool::Init(30000, 30100);
    const int base = ToolIdMap::GetInstance().AllocateRange(FillToolKey, FillCommands::Count());
    ASSERT_NE(base, -1);
    KestoTest::TestDocument document;
    KestoTest::TestToolSite site;
    KestoPlatform::CXTPCommandBars bars;
    site.document = &document;
    site.bars = &bars;
    site.objectBox = KestoPlatform::CRect(0, 0, 1000, 1000);
    KestoGDI::CTransparencyLinear fill;
    fill.SetDefaultControls(site.objectBox);
    const std::unique_ptr<FillTool> tool = FillToolFactory::Create(&fill, &site);
    site.tool = tool.get();
    tool->InitContextButtons(&bars);

    QToolBar toolbar;
    KestoToolQt::QtCommandBar bar(toolbar);
    bar.Show(bars, *tool);
    // A widget per control, a separator for the host's own item (id 0).
    ASSERT_EQ(toolbar.actions().size(), bars.GetCount());
    for (int i = 0; i < bars.GetCount(); ++i)
        EXPECT_EQ(bar.WidgetOf(bars.GetAt(i)->GetID()) == nullptr, bars.GetAt(i)->GetID() == 0) << i;
    auto* rotate = qobject_cast<QToolButton*>(bar.WidgetOf(base + FillCmdRotateLeft));
    ASSERT_NE(rotate, nullptr);
    EXPECT_FALSE(rotate->icon().isNull());
    // Sharp on screens of more device pixels per pixel: the 144-dpi picture (24 pixels) at 1.5,
    // the 192-dpi one (32) at 2, not the 96-dpi one (16, which Qt does not blow up).
    for (const auto& [ratio, side] : {std::pair{1.0, 16}, {1.5, 24}, {2.0, 32}})
        EXPECT_EQ(rotate->icon().pixmap(QSize(16, 16), ratio).size(), QSize(side, side)) << ratio;
    const QStringList prompt =
        KestoToolQt::ToQString(bars.FindControl(base + FillCmdRotateLeft)->GetPrompt()).split('\n');
    ASSERT_GE(prompt.size(), 2);
    EXPECT_EQ(rotate->toolTip(), prompt[1]);
    EXPECT_EQ(rotate->statusTip(), prompt[0]);

    // The start level box shows the start stop's level as a percentage, and takes a new one.
    auto* startLevel = qobject_cast<QDoubleSpinBox*>(bar.WidgetOf(base + FillCmdOpacityStartHandle));
    ASSERT_NE(startLevel, nullptr);
    EXPECT_EQ(startLevel->value(), std::round(LevelOf(fill, 0) * 100.0 / 255.0));
    startLevel->setValue(40);
    emit startLevel->editingFinished();
    ASSERT_FALSE(site.commits.empty());
    EXPECT_EQ(LevelOf(*site.commits.back().fill, 0), 102); // 40 percent of 255, rounded

    const std::size_t before = site.commits.size();
    QTest::mouseClick(rotate, Qt::LeftButton);
    EXPECT_EQ(site.commits.size(), before + 1);

    auto* type = qobject_cast<QComboBox*>(bar.WidgetOf(base + FillCmdEditType));
    ASSERT_NE(type, nullptr);
    ASSERT_GT(type->count(), 1);
    const int other = type->currentIndex() == 0 ? 1 : 0;
    type->setCurrentIndex(other);
    emit type->activated(other);
    EXPECT_EQ(site.typeRequests.size(), 1u);

    bar.Clear();
    EXPECT_TRUE(toolbar.actions().isEmpty());
    KestoTest::QtUserInput().Uninstall();
}
