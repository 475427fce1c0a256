// A random walk through the main window by its own events: whatever a hand does, the window stands, every
// write succeeds and the play on the disk shows what the window shows.
#include "document/frame_store.h"
#include "session/file_names.h"
#include "tests/session/open_play.h"
#include "tests/session/window_harness.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>
#include <random>

namespace zeltrona::session {
namespace {

using testing::click;
using testing::control;

constexpr int kSteps = 600;

class Walk {
public:
    explicit Walk(unsigned seed) : m_random(seed) {
        m_answers.expectAnything([this](QWidget& dialog) { answer(dialog); });
    }

    void step() {
        switch (below(12)) {
        case 0:
            click(m_play.window(), QStringLiteral("Picture1_%1").arg(below(11)));
            break;
        case 1:
            click(m_play.window(), QStringLiteral("CheckCurve"));
            break;
        case 2:
            clickOneOf({"cmdSeqNoUp", "cmdSeqNoDown", "seqSave", "seqNew", "seqDel", "seqNotes"});
            break;
        case 3:
            clickOneOf({"cmdAnimFirst", "cmdAnimPrev", "cmdAnimPlay", "cmdAnimPause", "cmdAnimStop",
                        "cmdAnimNext", "cmdAnimLast", "cmdAnimUp", "cmdAnimDown", "animCheckLoop"});
            break;
        case 4:
            QTest::keyClick(&m_play.pic(), Qt::Key_Escape);
            break;
        case 5:
            clickOneOf({"cmdCurveShowHide", "cmdToolBox1Close"});
            testing::choose(m_play.window(), QStringLiteral("mnuViewToolBox"));
            break;
        case 6:
            QTest::qWait(5);
            break;
        default:
            usePointer();
        }
        closePopUps();
    }

    testing::OpenPlay& play() { return m_play; }

private:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_random); }
    QPointF place() { return {static_cast<qreal>(below(400)) - 18, static_cast<qreal>(below(370)) - 18}; }

    void clickOneOf(std::initializer_list<const char*> names) {
        const auto chosen = below(static_cast<int>(names.size()));
        click(m_play.window(), QString::fromLatin1(*(names.begin() + chosen)));
    }

    void usePointer() {
        const Qt::KeyboardModifiers choices[] = {{}, {}, {}, Qt::ShiftModifier, Qt::AltModifier};
        const Qt::KeyboardModifiers held = choices[below(5)];
        const auto button = below(4) == 0 ? Qt::RightButton : Qt::LeftButton;
        testing::moveTo(m_play.pic(), place());
        QPointF where = place();
        testing::pressAt(m_play.pic(), where, button, held);
        closePopUps();
        for (int moves = below(5); moves > 0; --moves) {
            where = place();
            testing::moveTo(m_play.pic(), where, button, held);
        }
        testing::releaseAt(m_play.pic(), where, button, held);
        if (control<QWidget>(m_play.window(), QStringLiteral("pBodyTool_0")).isVisible()) {
            click(m_play.window(), QStringLiteral("pBodyTool_%1").arg(1 + below(4)));
        }
    }

    static void closePopUps() {
        while (QWidget* popUp = QApplication::activePopupWidget()) {
            popUp->close();
        }
    }

    void answer(QWidget& dialog) {
        auto* text = dialog.findChild<QLineEdit*>(QStringLiteral("Text1"));
        if (text != nullptr && below(2) == 0) {
            text->setText(QStringLiteral("T%1").arg(below(100)));
            click(dialog, QStringLiteral("Command1"));
        } else if (below(3) == 0) {
            dialog.close();
        } else {
            dynamic_cast<QDialog&>(dialog).accept();
        }
    }

    std::mt19937 m_random;
    testing::OpenPlay m_play{testing::playWithBodies()};
    testing::DialogAnswerer m_answers;
};

/// The counter, the file and the session tell of the same frame.
void expectInStep(testing::OpenPlay& play) {
    const document::PlayFile file(toPath(play.path()));
    const int count = document::countFrames(file);
    std::string counter = play.txtSeq();
    std::erase(counter, ' ');
    EXPECT_EQ(counter, std::to_string(play.session().currFrame) + "of" + std::to_string(count));
    EXPECT_TRUE(document::frameExists(file, play.session().currFrame));
    EXPECT_EQ(play.status().find("not saved"), std::string::npos) << play.status();
}

class WindowWalk : public ::testing::TestWithParam<unsigned> {};

TEST_P(WindowWalk, LeavesAPlayThatShowsWhatTheWindowShows) {
    Walk walk(GetParam());
    testing::OpenPlay& play = walk.play();
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + ", step " + std::to_string(step));
        walk.step();
        expectInStep(play);
    }
    // Esc ends a line that may be under construction, Stop brings the board to frame 1 as it is stored.
    QTest::keyClick(&play.pic(), Qt::Key_Escape);
    play.session().showCurves = 0;
    click(play.window(), QStringLiteral("cmdAnimStop"));
    const std::string path = toPath(play.path());
    EXPECT_EQ(QDir(play.folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList(QStringLiteral("play.zpf")))
        << "nothing is left beside the play";
    EXPECT_EQ(play.board(), testing::expectedBoard(path, 1));
}

INSTANTIATE_TEST_SUITE_P(Seeds, WindowWalk, ::testing::Values(1U, 2U, 3U));

} // namespace
} // namespace zeltrona::session
