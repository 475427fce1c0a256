#include "tests/animation/full_screen_bench.h"

#include <QPainter>
#include <QSignalSpy>
#include <QTest>

namespace zeltrona::animation {
namespace {

using test::FullScreenBench;
using test::OwnerOnRecord;
using testing::DialogAnswerer;
using Clicks = std::vector<std::string>;

TEST(FullScreen, CoversTheScreenOfTheMainWindowAndIsKnownAsOpen) {
    FullScreenBench bench;
    EXPECT_TRUE(bench.isOpen());
    EXPECT_EQ(bench.window->geometry(), QApplication::primaryScreen()->geometry());
    EXPECT_TRUE(bench.window->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_FALSE(bench.window->isModal());
    EXPECT_TRUE(bench.session.fullScreenOpen);
    EXPECT_EQ(bench.window->objectName(), "frmMainFullScreen");
}

TEST(FullScreen, OpeningSetsTheSpeedOfThePlayerToSeven) {
    FullScreenBench bench;
    EXPECT_EQ(bench.speed(), "7");
    EXPECT_EQ(bench.owner.speed, "7");
    EXPECT_TRUE(bench.owner.clicks.empty()) << "nothing is clicked by opening";
}

TEST(FullScreen, EachButtonClicksTheSameOneOfTheMainWindow) {
    FullScreenBench bench;
    for (const char* name : {"cmdAnimFirst", "cmdAnimPrev", "cmdAnimPlay", "cmdAnimPause", "cmdAnimStop",
                             "cmdAnimNext", "cmdAnimLast", "animCheckLoop"}) {
        bench.click(name);
    }
    EXPECT_EQ(bench.owner.clicks, (Clicks{"first", "prev", "play", "pause", "stop", "next", "last", "loop"}));
}

TEST(FullScreen, EveryControlHasATipAndAPlainName) {
    FullScreenBench bench;
    for (const char* name :
         {"cmdAnimFirst", "cmdAnimPrev", "cmdAnimPlay", "cmdAnimPause", "cmdAnimStop", "cmdAnimNext",
          "cmdAnimLast", "cmdAnimUp", "cmdAnimDown", "animCheckLoop", "txtAnimSpeed", "animlblFrameCurr"}) {
        EXPECT_FALSE(bench.control(name).toolTip().isEmpty()) << name;
        EXPECT_FALSE(bench.control(name).accessibleName().isEmpty()) << name;
    }
}

TEST(FullScreen, TheFocusGoesThroughTheBarInReadingOrder) {
    FullScreenBench bench;
    QWidget* at = &bench.control("cmdAnimFirst");
    for (const char* name : {"cmdAnimPrev", "cmdAnimPlay", "cmdAnimPause", "cmdAnimStop", "cmdAnimNext",
                             "cmdAnimLast", "cmdAnimDown", "txtAnimSpeed", "cmdAnimUp", "animCheckLoop"}) {
        do {
            at = at->nextInFocusChain();
        } while (at->focusPolicy() == Qt::NoFocus);
        EXPECT_EQ(at->objectName(), name);
    }
}

TEST(FullScreen, UpAndDownMoveBothBoxes) {
    FullScreenBench bench;
    bench.click("cmdAnimUp");
    EXPECT_EQ(bench.speed(), "8");
    EXPECT_EQ(bench.owner.speed, "8");
    bench.click("cmdAnimDown");
    bench.click("cmdAnimDown");
    EXPECT_EQ(bench.speed(), "6");
    EXPECT_EQ(bench.owner.speed, "6");
}

TEST(FullScreen, UpAtNineLeavesNineInBothBoxes) {
    FullScreenBench bench;
    bench.control<QLineEdit>("txtAnimSpeed").setText("9");
    bench.click("cmdAnimUp");
    EXPECT_EQ(bench.speed(), "9");
    EXPECT_EQ(bench.owner.speed, "9");
}

TEST(FullScreen, UpAtNineBringsAMainWindowThatStoodElsewhereToNine) {
    FullScreenBench bench;
    bench.control<QLineEdit>("txtAnimSpeed").setText("9");
    bench.owner.speed = "2";
    bench.click("cmdAnimUp");
    EXPECT_EQ(bench.speed(), "9");
    EXPECT_EQ(bench.owner.speed, "9");
}

TEST(FullScreen, DownAtOneEndsAtThreeInBothBoxes) {
    FullScreenBench bench;
    bench.control<QLineEdit>("txtAnimSpeed").setText("1");
    ASSERT_EQ(bench.owner.speed, "1");
    bench.click("cmdAnimDown");
    EXPECT_EQ(bench.speed(), "3");
    EXPECT_EQ(bench.owner.speed, "3");
}

TEST(FullScreen, TypingNoSpeedBecomesThree) {
    FullScreenBench bench;
    for (const char* typed : {"0", "10", "x", "9.4", ""}) {
        bench.control<QLineEdit>("txtAnimSpeed").setText("5");
        bench.control<QLineEdit>("txtAnimSpeed").setText(QLatin1String(typed));
        EXPECT_EQ(bench.speed(), "3") << typed;
        EXPECT_EQ(bench.owner.speed, "3") << typed;
    }
}

TEST(FullScreen, ADigitTypedIntoTheBoxReplacesTheOld) {
    FullScreenBench bench;
    bench.click("cmdAnimDown");
    QLineEdit& box = bench.control<QLineEdit>("txtAnimSpeed");
    box.setFocus();
    testing::settle();
    QTest::keyClick(&box, Qt::Key_5);
    EXPECT_EQ(bench.speed(), "5");
    EXPECT_EQ(bench.owner.speed, "5");
}

TEST(FullScreen, EscClosesAtOnceFromTheFormAndFromEachControlOfTheBar) {
    for (const char* name :
         {"frmMainFullScreen", "cmdAnimFirst", "cmdAnimPrev", "cmdAnimPlay", "cmdAnimPause", "cmdAnimStop",
          "cmdAnimNext", "cmdAnimLast", "animCheckLoop", "cmdAnimUp", "cmdAnimDown", "pToolAnim"}) {
        FullScreenBench bench;
        DialogAnswerer nothingAsked;
        QWidget* target =
            QLatin1String(name) == bench.window->objectName() ? bench.window.data() : &bench.control(name);
        target->setFocus();
        QTest::keyClick(target, Qt::Key_Escape);
        EXPECT_FALSE(bench.isOpen()) << name;
        EXPECT_FALSE(bench.session.fullScreenOpen) << name;
        EXPECT_EQ(bench.owner.clicks, Clicks{"stop"}) << name;
    }
}

TEST(FullScreen, EscInTheSpeedBoxLeavesTheWindowOpen) {
    FullScreenBench bench;
    bench.control("txtAnimSpeed").setFocus();
    QTest::keyClick(&bench.control("txtAnimSpeed"), Qt::Key_Escape);
    EXPECT_TRUE(bench.isOpen());
}

TEST(FullScreen, OtherKeysMeanNothing) {
    FullScreenBench bench;
    for (const Qt::Key key : {Qt::Key_P, Qt::Key_F5, Qt::Key_Return, Qt::Key_Left, Qt::Key_Home}) {
        QTest::keyClick(bench.window.data(), key);
    }
    EXPECT_TRUE(bench.isOpen());
    EXPECT_TRUE(bench.owner.clicks.empty());
}

TEST(FullScreen, AClickOnTheGroundAsksForTheExit) {
    FullScreenBench bench;
    {
        DialogAnswerer answers;
        answers.expectMessage(QStringLiteral("Exit?"), QStringLiteral("No"));
        QTest::mouseClick(bench.window.data(), Qt::LeftButton, {}, {5, 5});
        EXPECT_EQ(answers.answered(), 1);
    }
    EXPECT_TRUE(bench.isOpen());
    EXPECT_TRUE(bench.owner.clicks.empty());
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Exit?"), QStringLiteral("Yes"));
    QTest::mouseClick(bench.window.data(), Qt::LeftButton, {}, {5, 5});
    EXPECT_FALSE(bench.isOpen());
    EXPECT_EQ(bench.owner.clicks, Clicks{"stop"});
}

TEST(FullScreen, AClickOnTheBarItselfAsksForTheExit) {
    FullScreenBench bench;
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Exit?"), QStringLiteral("Yes"));
    QTest::mouseClick(&bench.control("pToolAnim"), Qt::LeftButton, {}, {1, 1});
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_FALSE(bench.isOpen());
}

TEST(FullScreen, AClickOnPictureOrCounterAsksNothing) {
    FullScreenBench bench;
    DialogAnswerer nothingAsked;
    bench.click("pic");
    bench.click("animlblFrameCurr");
    testing::settle();
    EXPECT_EQ(nothingAsked.answered(), 0);
    EXPECT_TRUE(bench.isOpen());
}

TEST(FullScreen, ClosedWhileTheQuestionIsOpenItJustGoes) {
    FullScreenBench bench;
    DialogAnswerer answers;
    answers.expect([&bench](QWidget&) { bench.window->close(); });
    QTest::mouseClick(bench.window.data(), Qt::LeftButton, {}, {5, 5});
    testing::settle();
    EXPECT_EQ(bench.window, nullptr);
    EXPECT_EQ(bench.owner.clicks, Clicks{"stop"});
}

TEST(FullScreen, TheCounterFollows) {
    FullScreenBench bench;
    bench.window->updateFrameCurr(QStringLiteral("2/5"));
    EXPECT_EQ(bench.control<QLabel>("animlblFrameCurr").text(), "2/5");
}

TEST(FullScreen, PlayIsMarkedWhileTicksCome) {
    FullScreenBench bench;
    EXPECT_FALSE(bench.control<TransportButton>("cmdAnimPlay").isRunning());
    bench.window->showRunning(true);
    EXPECT_TRUE(bench.control<TransportButton>("cmdAnimPlay").isRunning());
}

TEST(FullScreen, TheLoopBoxShowsTheLoopThatIsSet) {
    OwnerOnRecord owner;
    document::Session session;
    session.animLoop = true;
    const QPointer<frmMainFullScreen> window = new frmMainFullScreen(owner, session);
    window->openOn(*QApplication::primaryScreen());
    EXPECT_TRUE(testing::control<QCheckBox>(*window, QStringLiteral("animCheckLoop")).isChecked());
    EXPECT_TRUE(owner.clicks.empty());
    delete window;
}

TEST(FullScreen, ClosingStopsOnceAndDeletesTheWindow) {
    FullScreenBench bench;
    bench.window->close();
    EXPECT_EQ(bench.owner.clicks, Clicks{"stop"});
    testing::settle();
    EXPECT_EQ(bench.window, nullptr);
    EXPECT_EQ(bench.owner.clicks.size(), 1U);
}

// The offscreen screen is 800 x 800 unless the test's environment says otherwise.
TEST(FullScreen, ThePictureStandsWhereTheLayoutSays) {
    FullScreenBench bench;
    const QSize size = bench.window->size();
    const QWidget& bar = bench.control("pToolAnim");
    EXPECT_EQ(bar.y(), bench.window->toolTop());
    EXPECT_EQ(bar.x(), (size.width() - bar.width()) / 2);
    const QWidget& pic = bench.control("pic");
    EXPECT_EQ(pic.width(), qRound(363 * bench.window->picScale()));
    EXPECT_EQ(pic.y(), (bar.y() - pic.height()) / 2);
    EXPECT_LT(bench.window->hintTop(), size.height());
}

TEST(FullScreen, ResizingLaysOutAfreshAndCopiesThePicture) {
    FullScreenBench bench;
    bench.window->resize(1280, 800);
    EXPECT_EQ(bench.window->picScale(), 1.4);
    EXPECT_EQ(bench.control("pic").size(), QSize(508, 465));
    EXPECT_EQ(bench.control<BoardPicture>("pic").picture().size(), QSize(508, 465));
    bench.window->resize(800, 600);
    EXPECT_EQ(bench.window->picScale(), 1.0);
    EXPECT_EQ(bench.control("pic").size(), QSize(363, 332));
}

TEST(FullScreen, WhereNoPictureFitsItSaysSoAndCloses) {
    DialogAnswerer answers;
    answers.expectMessage(QStringLiteral("Can't create render surface."));
    FullScreenBench bench(QSize(363, 33200));
    testing::settle();
    EXPECT_FALSE(bench.isOpen());
    EXPECT_FALSE(bench.session.fullScreenOpen);
    EXPECT_EQ(bench.owner.clicks, Clicks{"stop"});
    EXPECT_EQ(bench.owner.speed, "3") << "the speed is not reached";
}

TEST(FullScreen, AtScaleOneThePictureIsCopiedPixelByPixel) {
    FullScreenBench bench;
    bench.window->resize(800, 600);
    for (int x = 0; x < 363; ++x) {
        bench.owner.board.setPixelColor(x, 100, QColor(x % 256, 255 - x % 256, 40));
    }
    bench.window->updatePic();
    EXPECT_EQ(bench.control<BoardPicture>("pic").picture(), bench.owner.board);
}

TEST(FullScreen, EnlargedThePictureIsSampledSmoothly) {
    FullScreenBench bench;
    bench.window->resize(1280, 800);
    QPainter(&bench.owner.board).fillRect(0, 0, 181, 332, Qt::black);
    QPainter(&bench.owner.board).fillRect(181, 0, 182, 332, Qt::white);
    bench.window->updatePic();
    const QImage& picture = bench.control<BoardPicture>("pic").picture();
    int between = 0;
    for (int x = 0; x < picture.width(); ++x) {
        const int grey = picture.pixelColor(x, 200).red();
        between += grey > 0 && grey < 255 ? 1 : 0;
    }
    EXPECT_GT(between, 0);
    EXPECT_LE(between, 4) << "an edge stays an edge";
    EXPECT_EQ(picture.pixelColor(10, 200), QColor(Qt::black));
    EXPECT_EQ(picture.pixelColor(500, 200), QColor(Qt::white));
}

// The board paints each tick in place; a picture that is shared would make it copy itself first.
TEST(FullScreen, TheBoardsPictureStaysUnshared) {
    FullScreenBench bench;
    bench.window->updatePic();
    EXPECT_TRUE(bench.owner.board.isDetached());
}

TEST(FullScreen, TheGroundIsNearBlackAndTheTextsAreWhite) {
    FullScreenBench bench;
    const QImage shot = bench.window->grab().toImage();
    EXPECT_EQ(shot.pixelColor(2, 2), QColor(0x10, 0x12, 0x14));
    int white = 0;
    for (int y = bench.window->hintTop(); y < shot.height(); ++y) {
        for (int x = 10; x < 200; ++x) {
            white += shot.pixelColor(x, y) == QColor(Qt::white) ? 1 : 0;
        }
    }
    EXPECT_GT(white, 50) << "the hint";
}

} // namespace
} // namespace zeltrona::animation
