#include "dialogs/frmConfig1.h"
#include "tests/dialogs/dialog_fixture.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QSignalSpy>
#include <QTest>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

class CourtWindow : public tests::DialogTest {
protected:
    void open() { form = std::make_unique<frmConfig1>(play.file, session); }
    QImage preview() { return control<QLabel>(*form, "Picture1").pixmap().toImage(); }
    void press(const char* name) { control<QAbstractButton>(*form, QLatin1String(name)).click(); }
    bool next() {
        QSignalSpy spy(form.get(), &frmConfig1::nextStep);
        click(*form, "Command5");
        return spy.count() == 1;
    }
    std::string courtAfter(std::initializer_list<const char*> steps) {
        open();
        for (const char* step : steps) {
            press(step);
        }
        EXPECT_TRUE(next());
        return play.file.readWhole("Config", "court");
    }

    std::unique_ptr<frmConfig1> form;
};

TEST_F(CourtWindow, UserWhoChangesNothingGetsCourtOneOnParquetWithBlackLines) {
    open();
    EXPECT_FALSE(session.newFileFlag);
    EXPECT_TRUE(next());
    EXPECT_TRUE(session.newFileFlag);
    EXPECT_TRUE(play.holds(
        "[Config]\ncourt=1\ncourtColor=16777215\ncourtTexture=1\nuseTexture=0\ntxtTitle=\ntxtHead=\n"));
}

TEST_F(CourtWindow, ReturnMeansNextAndPressesAFocusedButton) {
    open();
    QSignalSpy spy(form.get(), &frmConfig1::nextStep);
    auto& step = control<QAbstractButton>(*form, "cmdc3");
    step.setFocus();
    QTest::keyClick(&step, Qt::Key_Return);
    EXPECT_EQ(spy.count(), 0);
    auto& option = control<QAbstractButton>(*form, "optBG_1");
    option.setFocus();
    QTest::keyClick(&option, Qt::Key_Return);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(play.file.readWhole("Config", "court"), "2");
}

TEST_F(CourtWindow, ReturnMeansNextAsTheWindowOpens) {
    open();
    QSignalSpy spy(form.get(), &frmConfig1::nextStep);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(CourtWindow, ShowsCaptionsOfBothLanguages) {
    const struct {
        const char* name;
        const char* english;
        const char* serbian;
    } boxes[] = {{"Frame5", "HeadLine", "Naslov"},
                 {"Frame4", "BackGround", "Pozadina"},
                 {"Frame1", "Court", "Teren"},
                 {"Frame2", "Playfield", "Teren"}},
      buttons[] = {{"Command9", "Edit", "Edituj"},      {"optBG_0", "Color", "Boja"},
                   {"optBG_1", "Texture", "Tekstura"},  {"Command5", "Next", "Dalje"},
                   {"optcourtColor_0", "White", "Beo"}, {"optcourtColor_1", "Black", "Crn"}};
    for (const bool serbian : {false, true}) {
        if (serbian) {
            speakSerbian();
        }
        open();
        for (const auto& row : boxes) {
            EXPECT_EQ(control<QGroupBox>(*form, QLatin1String(row.name)).title(),
                      QLatin1String(serbian ? row.serbian : row.english));
        }
        for (const auto& row : buttons) {
            EXPECT_EQ(control<QAbstractButton>(*form, QLatin1String(row.name)).text(),
                      QLatin1String(serbian ? row.serbian : row.english));
        }
        EXPECT_EQ(form->missingCaption(), 0);
    }
}

TEST_F(CourtWindow, SteppingStaysWithinTheNineCourts) {
    EXPECT_EQ(courtAfter({"cmdc2"}), "1");
    EXPECT_EQ(courtAfter({"cmdc3"}), "2");
    EXPECT_EQ(courtAfter({"cmdc4"}), "9");
    EXPECT_EQ(courtAfter({"cmdc4", "cmdc3"}), "9");
    EXPECT_EQ(courtAfter({"cmdc4", "cmdc2", "cmdc2"}), "7");
    EXPECT_EQ(courtAfter({"cmdc4", "cmdc1"}), "1");
}

TEST_F(CourtWindow, EveryStepRepaintsThePreview) {
    open();
    const QImage first = preview();
    press("cmdc3");
    EXPECT_NE(preview(), first);
    press("cmdc2");
    EXPECT_EQ(preview(), first);
}

TEST_F(CourtWindow, ColourOptionAsksForTheColour) {
    open();
    answers.expectColor(QColor(0, 100, 0));
    press("optBG_0");
    EXPECT_EQ(preview().pixel(160, 20), qRgb(0, 100, 0));
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "courtColor"), std::to_string(0x006400));
    EXPECT_EQ(play.file.readWhole("Config", "courtTexture"), "0");
}

TEST_F(CourtWindow, ColourOptionThatIsOnAsksAgain) {
    open();
    answers.expectColor(QColor(0, 100, 0));
    press("optBG_0");
    answers.expectColor(QColor(0, 0, 100));
    press("optBG_0");
    EXPECT_EQ(answers.answered(), 2);
    EXPECT_EQ(preview().pixel(160, 20), qRgb(0, 0, 100));
}

TEST_F(CourtWindow, CancelledColourStaysAsItWas) {
    open();
    answers.expectColorCancelled();
    press("optBG_0");
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "courtColor"), "16777215");
    EXPECT_EQ(play.file.readWhole("Config", "courtTexture"), "0");
}

TEST_F(CourtWindow, WhiteLinesAreStoredAsUseTexture) {
    open();
    press("optcourtColor_0");
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "useTexture"), "1");
}

TEST_F(CourtWindow, TitleEditedFromHereIsKept) {
    open();
    answers.expect([](QWidget& window) {
        EXPECT_EQ(window.objectName(), QStringLiteral("frmTitle"));
        EXPECT_EQ(control<QLineEdit>(window, "Text1").text(), QString());
        control<QLineEdit>(window, "Text1").setText(QStringLiteral("Flex"));
        click(window, "Command1");
    });
    press("Command9");
    EXPECT_TRUE(next());
    EXPECT_TRUE(play.holds(
        "[Config]\ntxtTitle=Flex\ntxtHead=\ncourt=1\ncourtColor=16777215\ncourtTexture=1\nuseTexture=0\n"));
}

TEST_F(CourtWindow, FailureToWriteStaysInTheWindowAndIsTold) {
    document::PlayFile nowhere(play.folder.path("missing/folder/play.zpf"));
    frmConfig1 lost(nowhere, session);
    QSignalSpy spy(&lost, &frmConfig1::nextStep);
    click(lost, "Command5");
    EXPECT_EQ(spy.count(), 0);
    EXPECT_FALSE(session.newFileFlag);
    EXPECT_TRUE(lost.windowTitle().contains(QStringLiteral("NOT SAVED")));
}

TEST_F(CourtWindow, FitsASmallScreen) {
    open();
    EXPECT_LE(form->sizeHint().width(), 1000);
    EXPECT_LE(form->sizeHint().height(), 700);
}

} // namespace
} // namespace zeltrona::dialogs
