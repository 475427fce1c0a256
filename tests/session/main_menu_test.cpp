#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace zeltrona::session {
namespace {

using testing::choose;
using testing::control;
using testing::OpenPlay;

/// Interface names of the entries of a menu; a menu in it as "name(...)", separators left out.
std::string shapeOf(const QList<QAction*>& entries) {
    std::string shape;
    for (const QAction* entry : entries) {
        if (!entry->isSeparator()) {
            shape += (shape.empty() ? "" : " ") + entry->objectName().toStdString();
            shape += entry->menu() != nullptr ? "(" + shapeOf(entry->menu()->actions()) + ")" : "";
        }
    }
    return shape;
}

TEST(MainMenu, HasItsEntriesInTheirOrder) {
    OpenPlay play;
    EXPECT_EQ(
        shapeOf(play.window().menuBar()->actions()),
        "mnuFile(mnuFileNew mnuFileOpen "
        "mnuFileExport(mnuFileExportPictures mnuFileExportWeb) "
        "mnuFilePrint(mnuFilePrintBig mnuFilePrintSmall) "
        "mnuFilePrinPreview(mnuFilePrinPreviewSmallPictures mnuFilePrinPreviewBigPictures) mnuFileExit) "
        "mnuEdit(mnuEditCopy mnuEditTitle) "
        "mnuView(mnuViewToolBox mnuViewFullScreenAnimation) "
        "mnuHelp(mnuHelpHelpTopic mnuHelpZtemail mnuHelpZtHome mnuHelpAbout)");
}

TEST(MainMenu, PopUpHasCopyAndHelp) {
    OpenPlay play;
    EXPECT_EQ(shapeOf(control<QMenu>(play.window(), QStringLiteral("mnuPopUp")).actions()),
              "mnuPopUpCopy mnuPopUpHelp");
}

TEST(MainMenu, EveryEntryHasAKeyOfItsOwn) {
    OpenPlay play;
    const auto entries = play.window().findChildren<QAction*>();
    for (const QAction* entry : entries) {
        if (entry->objectName().startsWith(QLatin1String("mnu"))
            && entry->objectName() != QLatin1String("mnuPopUp")) {
            EXPECT_TRUE(entry->text().contains(QLatin1Char('&'))) << qPrintable(entry->objectName());
        }
    }
}

TEST(MainMenu, StaysEnglishInSerbian) {
    OpenPlay play(testing::threeFramePlay(), 1);
    EXPECT_EQ(testing::menuEntry(play.window(), QStringLiteral("mnuFileNew")).text(), QStringLiteral("&New"));
}

TEST(MainMenu, ToolBoxIsClosedByItsBoxAndShownByTheEntry) {
    OpenPlay play;
    auto& tools = control<QWidget>(play.window(), QStringLiteral("pToolbox"));
    EXPECT_TRUE(tools.isVisible());
    testing::click(play.window(), QStringLiteral("cmdToolBox1Close"));
    EXPECT_FALSE(tools.isVisible());
    choose(play.window(), QStringLiteral("mnuViewToolBox"));
    EXPECT_TRUE(tools.isVisible());
    choose(play.window(), QStringLiteral("mnuViewToolBox"));
    EXPECT_TRUE(tools.isVisible());
}

TEST(MainMenu, NewAndOpenBothLeaveForTheSelection) {
    OpenPlay play;
    const QSignalSpy left(&play.window(), &frmMain::leftForSelection);
    choose(play.window(), QStringLiteral("mnuFileNew"));
    EXPECT_EQ(left.count(), 1);
    choose(play.window(), QStringLiteral("mnuFileOpen"));
    EXPECT_EQ(left.count(), 2);
}

TEST(MainMenu, ExitUnloadsTheWindowAndSavesNothing) {
    OpenPlay play;
    const auto window = play.pointer();
    choose(play.window(), QStringLiteral("mnuFileExit"));
    testing::settle();
    EXPECT_TRUE(window.isNull());
    EXPECT_EQ(play.bytes(), testing::threeFramePlay());
}

} // namespace
} // namespace zeltrona::session
