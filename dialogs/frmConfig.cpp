#include "dialogs/frmConfig.h"

#include "dialogs/captions.h"
#include "dialogs/form_controls.h"
#include "dialogs/team_card.h"
#include "dialogs/write_failure.h"
#include "document/setup_writer.h"
#include "platform/color_value.h"
#include "platform/common_dialog.h"
#include "platform/message_box.h"
#include "platform/program_fonts.h"
#include "platform/spoken_caption.h"
#include "platform/swatch.h"
#include "render/board_surface.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace zeltrona::dialogs {
namespace {

constexpr int kSampleWidth = 166;
constexpr int kSampleHeight = 17;

QRadioButton* option(const QString& array, int index, const QString& text, const QString& plainWords) {
    return named(new QRadioButton(text), QStringLiteral("%1_%2").arg(array).arg(index), plainWords);
}

} // namespace

frmConfig::frmConfig(document::PlayFile& play, const document::Session& session, QWidget* parent)
    : QWidget(parent, Qt::Window), m_play(play), m_session(session) {
    setObjectName(QStringLiteral("frmConfig"));
    setWindowTitle(QStringLiteral("Zeltrona - Teams"));
    setAccessibleName(windowTitle());
    m_offence = new TeamCard({"Frame1", "Check1", "Text1", "Picture1", "cmdOffSuitColor",
                              "cmdOffSuitColorReset", "Command9", "Command1", "Command2", "Offence"},
                             0xFF0000, 0xFFFFFF, this);
    m_defence = new TeamCard({"Frame2", "Check2", "Text2", "Picture2", "cmdDefSuitColor",
                              "cmdDefSuitColorReset", "Command8", "Command4", "Command3", "Defence"},
                             0x0000FF, 0xFFFFFF, this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    column->setSpacing(kEdge);
    auto* cards = new QHBoxLayout;
    cards->setSpacing(kEdge);
    cards->addWidget(m_offence);
    cards->addWidget(m_defence);
    column->addLayout(cards);
    column->addWidget(buildLines());
    column->addWidget(buildFoot());
    m_next->setFocus(); // the first control would take Return, and shows no focus until a key moves it

    checkArialFont();
    drawLinePreview();
    chooseFirstPlayers();
    m_missingCaption = setTeamCaptions();
    platform::speakCaptions(*this);
    m_offence->enableSuitButtons(false);
    m_defence->enableSuitButtons(false);
}

void frmConfig::checkArialFont() {
    if (!platform::isArialAvailable()) {
        platform::showMessage(this, QStringLiteral("Arial font is missing! It is default font for drawing. "),
                              platform::Icon::None);
    }
}

QWidget* frmConfig::buildLines() {
    auto* group = named(new QGroupBox, "Frame3", QStringLiteral("Lines"));
    m_lines = group;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    row->setSpacing(kEdge);
    auto* widths = new QButtonGroup(this);
    for (int index = 0; index < 3; ++index) {
        auto* button = option(QStringLiteral("Option1"), index, QString::number(index + 1),
                              QStringLiteral("Pen %1 wide").arg(index + 1));
        button->setChecked(index == 0);
        widths->addButton(button, index);
        row->addWidget(button);
    }
    m_sample = named(new QLabel, "Picture3", QStringLiteral("Sample of the pen"));
    m_sample->setFixedSize(kSampleWidth, kSampleHeight);
    m_lineColor = named(new QPushButton, "Command5", QStringLiteral("Colour of the lines"));
    m_lineColor->setAutoDefault(false);
    row->addWidget(m_sample);
    row->addStretch();
    row->addWidget(m_lineColor);
    connect(widths, &QButtonGroup::idToggled, this, [this](int index, bool on) {
        if (on) {
            m_newLineWidth = index + 1;
            drawLinePreview();
        }
    });
    connect(m_lineColor, &QPushButton::clicked, this, [this] {
        platform::CommonDialog dialog;
        dialog.color = m_newLineColor;
        if (platform::showColor(this, dialog)) {
            m_newLineColor = dialog.color;
            drawLinePreview();
        }
    });
    return group;
}

QWidget* frmConfig::buildFoot() {
    auto* foot = new QWidget;
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kEdge);
    auto* looks = new QButtonGroup(this);
    const std::array<const char*, 2> words{"C&ircles", "&Bodies"};
    for (int index = 0; index < 2; ++index) {
        auto* button = option(
            QStringLiteral("optBodyType"), index, QLatin1String(words[static_cast<std::size_t>(index)]),
            index == 0 ? QStringLiteral("Players as circles") : QStringLiteral("Players as bodies"));
        button->setChecked(index == 0);
        looks->addButton(button, index);
        row->addWidget(button);
    }
    m_next = named(new QPushButton, "Command6", QStringLiteral("Next"));
    m_next->setDefault(true);
    row->addStretch();
    row->addWidget(m_next);
    connect(looks, &QButtonGroup::idToggled, this, [this](int index, bool on) {
        if (on) {
            optBodyType_Click(index);
        }
    });
    connect(m_next, &QPushButton::clicked, this, &frmConfig::Command6_Click);
    return foot;
}

void frmConfig::keyPressEvent(QKeyEvent* event) {
    if (!pressOnReturn(*this, *m_next, *event)) {
        QWidget::keyPressEvent(event);
    }
}

void frmConfig::chooseFirstPlayers() {
    for (int slot = 0; slot < static_cast<int>(document::kSlotCount); ++slot) {
        m_offence->check(slot, slot < 3);
        m_defence->check(slot, slot < 2);
    }
}

std::int16_t frmConfig::setTeamCaptions() {
    const auto on = [](QPushButton* button) {
        return [button](const QString& text) { button->setText(text); };
    };
    const auto over = [](QWidget* group) {
        return [group](const QString& text) { static_cast<QGroupBox*>(group)->setTitle(text); };
    };
    return showCaptions(m_session, {{4, over(m_offence)},
                                    {5, over(m_defence)},
                                    {6, over(m_lines)},
                                    {7, on(m_offence->teamColorButton())},
                                    {7, on(m_defence->teamColorButton())},
                                    {7, on(m_lineColor)},
                                    {8, on(m_offence->uncheckButton())},
                                    {8, on(m_defence->uncheckButton())},
                                    {9, on(m_offence->textColorButton())},
                                    {9, on(m_defence->textColorButton())},
                                    {3, on(m_next)}});
}

void frmConfig::drawLinePreview() {
    render::BoardSurface surface(kSampleWidth, kSampleHeight);
    surface.setBackColor(platform::valueOfColor(palette().color(QPalette::Button)));
    surface.cls();
    surface.state.drawWidth = m_newLineWidth;
    surface.line(10, 8, 156, 8, m_newLineColor);
    m_sample->setPixmap(QPixmap::fromImage(surface.image()));
    m_lineColor->setIcon(platform::swatch(platform::colorOfValue(m_newLineColor)));
}

void frmConfig::optBodyType_Click(int index) {
    m_bodies = index == 1;
    m_offence->showBodies(m_bodies);
    m_defence->showBodies(m_bodies);
}

void frmConfig::Command6_Click() {
    if (validateTeams() && writeTeamConfig()) {
        emit nextStep();
    }
}

bool frmConfig::validateTeams() {
    for (int slot = 0; slot < static_cast<int>(document::kSlotCount); ++slot) {
        if (m_offence->isChecked(slot) || m_defence->isChecked(slot)) {
            return true;
        }
    }
    platform::showMessage(this, QStringLiteral("One player must be selected."), platform::Icon::Critical);
    m_offence->check(0, true);
    return false;
}

bool frmConfig::writeTeamConfig() {
    document::TeamSetup setup;
    setup.colorOff = m_offence->suit();
    setup.colorDef = m_defence->suit();
    setup.colorOffFont = m_offence->font();
    setup.colorDefFont = m_defence->font();
    setup.colorLine = m_newLineColor;
    setup.lineWidth = m_newLineWidth;
    setup.bodies = m_bodies;
    setup.off = m_offence->players();
    setup.def = m_defence->players();
    return showWriteFailure(*this, document::writeTeamConfig(m_play, setup));
}

} // namespace zeltrona::dialogs
