#include "dialogs/frmConfig.h"
#include "tests/dialogs/dialog_fixture.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

namespace zeltrona::dialogs {
namespace {

using namespace zeltrona::testing;

QString element(const char* name, int index) {
    return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index);
}

class TeamWindow : public tests::DialogTest {
protected:
    void open() { form = std::make_unique<frmConfig>(play.file, session); }
    bool isChecked(const char* name, int index) {
        return control<QCheckBox>(*form, element(name, index)).isChecked();
    }
    void toggle(const char* name, int index) { control<QCheckBox>(*form, element(name, index)).click(); }
    void uncheckAll() {
        click(*form, "Command9");
        click(*form, "Command8");
    }
    QImage picture(const char* name, int index) {
        return control<QLabel>(*form, element(name, index)).pixmap().toImage();
    }
    /// Whether Next leads on.
    bool next() {
        QSignalSpy spy(form.get(), &frmConfig::nextStep);
        click(*form, "Command6");
        return spy.count() == 1;
    }

    std::unique_ptr<frmConfig> form;
};

constexpr const char* kDefaultPlay =
    "[Config]\n"
    "colorOff=16711680\ncolorDef=255\ncolorOffFont=16777215\ncolorDefFont=16777215\n"
    "colorLine=0\nline=1\nfont=Arial,238,\n"
    "txtOff0=1\nskinOff0=0\ntxtOff1=2\nskinOff1=0\ntxtOff2=3\nskinOff2=0\n"
    "txtDef0=1\nskinDef0=0\ntxtDef1=2\nskinDef1=0\n"
    "[Frame1]\nframe=1\n"
    "off0=10,10\nangleOff0=90\nbodyOff0=0\noff1=40,10\nangleOff1=90\nbodyOff1=0\n"
    "off2=70,10\nangleOff2=90\nbodyOff2=0\n"
    "def0=10,40\nangleDef0=90\nbodyDef0=0\ndef1=40,40\nangleDef1=90\nbodyDef1=0\n";

TEST_F(TeamWindow, ReturnInALabelMeansNext) {
    open();
    QSignalSpy spy(form.get(), &frmConfig::nextStep);
    auto& label = control<QLineEdit>(*form, element("Text1", 0));
    label.setFocus();
    QTest::keyClick(&label, Qt::Key_Return);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(TeamWindow, ReturnMeansNextAsTheWindowOpens) {
    open();
    QSignalSpy spy(form.get(), &frmConfig::nextStep);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QTest::keyClick(form->windowHandle(), Qt::Key_Return);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(TeamWindow, BeginsWithThreeAgainstTwo) {
    open();
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(isChecked("Check1", i), i < 3) << i;
        EXPECT_EQ(isChecked("Check2", i), i < 2) << i;
        EXPECT_EQ(control<QLineEdit>(*form, element("Text1", i)).text(), QString::number(i + 1));
        EXPECT_FALSE(control<QWidget>(*form, element("cmdOffSuitColor", i)).isEnabled());
        EXPECT_FALSE(control<QWidget>(*form, element("cmdDefSuitColor", i)).isEnabled());
    }
    EXPECT_FALSE(control<QWidget>(*form, "cmdOffSuitColorReset").isEnabled());
    EXPECT_FALSE(control<QWidget>(*form, "cmdDefSuitColorReset").isEnabled());
    EXPECT_TRUE(control<QRadioButton>(*form, "optBodyType_0").isChecked());
    EXPECT_TRUE(control<QRadioButton>(*form, "Option1_0").isChecked());
}

TEST_F(TeamWindow, NothingIsWrittenBeforeNext) {
    begin("header\n");
    open();
    toggle("Check1", 5);
    EXPECT_TRUE(play.holds("header\n"));
}

TEST_F(TeamWindow, DefaultChoicesGiveTheseBytes) {
    open();
    EXPECT_TRUE(next());
    EXPECT_TRUE(play.holds(kDefaultPlay));
}

TEST_F(TeamWindow, ShowsCaptionsOfBothLanguages) {
    const struct {
        const char* name;
        const char* english;
        const char* serbian;
    } rows[] = {{"Command1", "Color", "Boja"},
                {"Command4", "Color", "Boja"},
                {"Command5", "Color", "Boja"},
                {"Command9", "Uncheck All", "Iskljuci sve"},
                {"Command8", "Uncheck All", "Iskljuci sve"},
                {"Command2", "Text Color", "Boja teksta"},
                {"Command3", "Text Color", "Boja teksta"},
                {"Command6", "Next", "Dalje"}};
    open();
    for (const auto& row : rows) {
        EXPECT_EQ(control<QPushButton>(*form, QLatin1String(row.name)).text(), QLatin1String(row.english));
    }
    EXPECT_EQ(control<QGroupBox>(*form, "Frame1").title(), QStringLiteral("Offense"));
    speakSerbian();
    open();
    for (const auto& row : rows) {
        EXPECT_EQ(control<QPushButton>(*form, QLatin1String(row.name)).text(), QLatin1String(row.serbian));
    }
    EXPECT_EQ(control<QGroupBox>(*form, "Frame1").title(), QStringLiteral("Napad"));
    EXPECT_EQ(control<QGroupBox>(*form, "Frame2").title(), QStringLiteral("Odbrana"));
    EXPECT_EQ(control<QGroupBox>(*form, "Frame3").title(), QStringLiteral("Linije"));
    EXPECT_EQ(form->missingCaption(), 0);
}

TEST_F(TeamWindow, LanguageWithoutTextsNamesTheFirstMissingId) {
    session.langIndex = 4;
    session.stringBase = 1300;
    open();
    EXPECT_EQ(form->missingCaption(), 1304);
}

TEST_F(TeamWindow, LastPlayersAreMissedWithTheMessageAndTheFirstIsTaken) {
    open();
    uncheckAll();
    answers.expectMessage(QStringLiteral("One player must be selected."));
    EXPECT_FALSE(next());
    EXPECT_EQ(answers.answered(), 1);
    EXPECT_TRUE(isChecked("Check1", 0));
    EXPECT_TRUE(next());
}

TEST_F(TeamWindow, ChosenPlayersArePackedWithTheLabelOfTheirRow) {
    open();
    uncheckAll();
    toggle("Check1", 3);
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "txtOff0"), "4");
    EXPECT_FALSE(play.file.hasKey("Config", "txtOff1"));
    EXPECT_EQ(play.file.readWhole("Frame1", "off0"), "10,10");
}

TEST_F(TeamWindow, SideWithoutPlayersWritesNoKeys) {
    open();
    click(*form, "Command9");
    EXPECT_TRUE(next());
    EXPECT_FALSE(play.file.hasKey("Config", "txtOff0"));
    EXPECT_FALSE(play.file.hasKey("Frame1", "off0"));
    EXPECT_TRUE(play.file.hasKey("Frame1", "def1"));
}

TEST_F(TeamWindow, TwentyFourPlayersGetTwelveSlotsASide) {
    open();
    for (int i = 0; i < 12; ++i) {
        control<QCheckBox>(*form, element("Check1", i)).setChecked(true);
        control<QCheckBox>(*form, element("Check2", i)).setChecked(true);
    }
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Frame1", "off11"), "340,10");
    EXPECT_EQ(play.file.readWhole("Frame1", "def11"), "340,40");
    EXPECT_EQ(play.file.readWhole("Config", "txtDef11"), "12");
}

TEST_F(TeamWindow, EmptyLabelIsWrittenAsItIs) {
    open();
    control<QLineEdit>(*form, "Text1_1").clear();
    EXPECT_TRUE(next());
    EXPECT_TRUE(play.file.hasKey("Config", "txtOff1"));
    EXPECT_EQ(play.file.readWhole("Config", "txtOff1"), "");
}

TEST_F(TeamWindow, LabelsTakeTwoCharactersAndTheLastEight) {
    open();
    typeInto(*form, "Text1_0", QStringLiteral("123"));
    typeInto(*form, "Text2_11", QStringLiteral("123456789"));
    EXPECT_EQ(control<QLineEdit>(*form, "Text1_0").text(), QStringLiteral("12"));
    EXPECT_EQ(control<QLineEdit>(*form, "Text2_11").text(), QStringLiteral("12345678"));
}

TEST_F(TeamWindow, LineWidthFollowsItsOption) {
    for (int index = 0; index < 3; ++index) {
        open();
        control<QRadioButton>(*form, element("Option1", index)).click();
        EXPECT_TRUE(next());
        EXPECT_EQ(play.file.readWhole("Config", "line"), std::to_string(index + 1));
    }
}

TEST_F(TeamWindow, LinePreviewShowsThePen) {
    open();
    const auto inked = [this](int y) {
        return control<QLabel>(*form, "Picture3").pixmap().toImage().pixel(80, y) == qRgb(0, 0, 0);
    };
    EXPECT_TRUE(inked(8));
    EXPECT_FALSE(inked(7));
    EXPECT_FALSE(inked(9));
    control<QRadioButton>(*form, "Option1_2").click();
    EXPECT_TRUE(inked(7) && inked(8) && inked(9));
}

TEST_F(TeamWindow, ColoursAreAskedForAndWritten) {
    open();
    for (const char* name : {"Command1", "Command2", "Command3", "Command4", "Command5"}) {
        answers.expectColor(QColor(1, 2, 3));
        click(*form, QLatin1String(name));
    }
    EXPECT_TRUE(next());
    for (const char* key : {"colorOff", "colorDef", "colorOffFont", "colorDefFont", "colorLine"}) {
        EXPECT_EQ(play.file.readWhole("Config", key), std::to_string(0x030201)) << key;
    }
}

TEST_F(TeamWindow, CancelledColourStaysAsItWas) {
    open();
    answers.expectColorCancelled();
    click(*form, "Command1");
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "colorOff"), "16711680");
}

TEST_F(TeamWindow, TeamColourRepaintsTheChosenPlayersOnly) {
    open();
    answers.expectColor(QColor(0, 200, 0));
    click(*form, "Command1");
    EXPECT_EQ(picture("Picture1", 0).pixel(13, 5), qRgb(0, 200, 0));
    EXPECT_TRUE(picture("Picture1", 5).isNull());
}

TEST_F(TeamWindow, UncheckedPlayerLosesHisPreview) {
    open();
    EXPECT_EQ(picture("Picture1", 0).pixel(13, 5), qRgb(0, 0, 255));
    toggle("Check1", 0);
    EXPECT_TRUE(picture("Picture1", 0).isNull());
}

TEST_F(TeamWindow, ChangedLabelPaintsThePreviewOfAPlayerLeftOutToo) {
    open();
    EXPECT_TRUE(picture("Picture1", 7).isNull());
    typeInto(*form, "Text1_7", QStringLiteral("9"));
    EXPECT_EQ(picture("Picture1", 7).pixel(13, 5), qRgb(0, 0, 255));
}

TEST_F(TeamWindow, BodiesMakeLabelsBlackAndSkinsTheDefault) {
    open();
    control<QRadioButton>(*form, "optBodyType_1").click();
    EXPECT_TRUE(control<QWidget>(*form, "cmdOffSuitColor_4").isEnabled());
    EXPECT_TRUE(control<QWidget>(*form, "cmdDefSuitColorReset").isEnabled());
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "bodyType"), "1");
    EXPECT_EQ(play.file.readWhole("Config", "colorOffFont"), "0");
    EXPECT_EQ(play.file.readWhole("Config", "skinOff0"), "10079487");
    EXPECT_EQ(play.file.readWhole("Frame1", "off1"), "30,10");
    EXPECT_EQ(play.file.readWhole("Frame1", "def0"), "0,40");
}

TEST_F(TeamWindow, BackToCirclesKeepsBlackLabelsAndDefaultSkins) {
    open();
    control<QRadioButton>(*form, "optBodyType_1").click();
    control<QRadioButton>(*form, "optBodyType_0").click();
    EXPECT_FALSE(control<QWidget>(*form, "cmdOffSuitColor_4").isEnabled());
    EXPECT_TRUE(next());
    EXPECT_FALSE(play.file.hasKey("Config", "bodyType"));
    EXPECT_EQ(play.file.readWhole("Config", "colorDefFont"), "0");
    EXPECT_EQ(play.file.readWhole("Config", "skinDef1"), "10079487");
}

TEST_F(TeamWindow, SkinOfOnePlayerIsHisAndResetTakesItBack) {
    open();
    control<QRadioButton>(*form, "optBodyType_1").click();
    answers.expectColor(QColor(10, 20, 30));
    click(*form, "cmdOffSuitColor_1");
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "skinOff1"), std::to_string(0x1E140A));
    EXPECT_EQ(play.file.readWhole("Config", "skinOff0"), "10079487");
    click(*form, "cmdOffSuitColorReset");
    EXPECT_TRUE(next());
    EXPECT_EQ(play.file.readWhole("Config", "skinOff1"), "10079487");
}

TEST_F(TeamWindow, FailureToWriteStaysInTheWindowAndIsTold) {
    document::PlayFile nowhere(play.folder.path("missing/folder/play.zpf"));
    frmConfig lost(nowhere, session);
    QSignalSpy spy(&lost, &frmConfig::nextStep);
    click(lost, "Command6");
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(lost.windowTitle().contains(QStringLiteral("NOT SAVED")));
}

TEST_F(TeamWindow, FitsASmallScreenInBothLanguages) {
    open();
    EXPECT_LE(form->sizeHint().width(), 1000);
    EXPECT_LE(form->sizeHint().height(), 710);
    speakSerbian();
    open();
    EXPECT_LE(form->sizeHint().width(), 1000);
}

} // namespace
} // namespace zeltrona::dialogs
