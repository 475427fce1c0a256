#include "dialogs/frmConfig1.h"

#include "dialogs/captions.h"
#include "dialogs/form_controls.h"
#include "dialogs/frmTitle.h"
#include "dialogs/write_failure.h"
#include "document/setup_writer.h"
#include "platform/common_dialog.h"
#include "platform/spoken_caption.h"
#include "platform/themed_icon.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zeltrona::dialogs {
namespace {

// The preview is shown at twice its size: whole pixels, so that its lines stay crisp.
constexpr int kEnlarged = 2;
constexpr int kFirstCourt = 1;
constexpr int kLastCourt = 9;

QRadioButton* option(const char* name, const QString& plainWords, QButtonGroup* group, int index) {
    auto* button =
        named(new QRadioButton, QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index), plainWords);
    group->addButton(button, index);
    return button;
}

QGroupBox* group(const char* name, const QString& plainWords, std::initializer_list<QWidget*> controls) {
    auto* box = named(new QGroupBox, name, plainWords);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    column->setSpacing(kGap);
    for (QWidget* control : controls) {
        column->addWidget(control);
    }
    return box;
}

} // namespace

frmConfig1::frmConfig1(document::PlayFile& play, document::Session& session, QWidget* parent)
    : QWidget(parent, Qt::Window), m_play(play), m_session(session) {
    setObjectName(QStringLiteral("frmConfig1"));
    setWindowTitle(QStringLiteral("Zeltrona - Court"));
    setAccessibleName(windowTitle());
    m_next = named(new QPushButton, "Command5", QStringLiteral("Next"));
    m_next->setDefault(true);
    connect(m_next, &QPushButton::clicked, this, &frmConfig1::Command5_Click);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    grid->setSpacing(kEdge);
    grid->addWidget(buildPreview(), 0, 0, 3, 1);
    grid->addWidget(buildPlayfield(), 0, 1);
    grid->addWidget(buildBackground(), 1, 1);
    grid->addWidget(buildHeadline(), 2, 1, Qt::AlignTop);
    grid->addWidget(m_next, 3, 1, Qt::AlignRight);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);
    m_next->setFocus(); // the first control would take Return, and shows no focus until a key moves it
    showCourtPreview();
    m_missingCaption = setCourtCaptions();
    platform::speakCaptions(*this);
}

QWidget* frmConfig1::buildPreview() {
    m_picture = named(new QLabel, "Picture1", QStringLiteral("The court as it will look"));
    m_picture->setFixedSize(kCourtPreviewWidth * kEnlarged, kCourtPreviewHeight * kEnlarged);
    m_courtFrame = group("Frame1", QStringLiteral("Court"), {m_picture, buildStepping()});
    return m_courtFrame;
}

QWidget* frmConfig1::buildStepping() {
    struct Step {
        const char* name;
        const char* icon;
        const char* words;
        std::function<int(int)> next;
    };
    const Step steps[] = {{"cmdc1", "court_first", "First court", [](int) { return kFirstCourt; }},
                          {"cmdc2", "court_prev", "Previous court", [](int court) { return court - 1; }},
                          {"cmdc3", "court_next", "Next court", [](int court) { return court + 1; }},
                          {"cmdc4", "court_last", "Last court", [](int) { return kLastCourt; }}};
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addStretch();
    for (const Step& step : steps) {
        auto* button = named(new QToolButton, QLatin1String(step.name), QLatin1String(step.words));
        button->setIcon(platform::themedIcon(QLatin1String(step.icon), palette()));
        button->setIconSize({20, 20});
        button->setToolTip(QLatin1String(step.words));
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this,
                [this, next = step.next] { stepTo(next(m_choice.court)); });
        row->addWidget(button);
    }
    row->addStretch();
    return bar;
}

QWidget* frmConfig1::buildBackground() {
    auto* choices = new QButtonGroup(this);
    m_colorGround = option("optBG", QStringLiteral("Background of one colour"), choices, 0);
    m_textureGround = option("optBG", QStringLiteral("Background of parquet"), choices, 1);
    m_textureGround->setChecked(true);
    auto* sample = named(new QLabel, "Picture4", QStringLiteral("Sample of the parquet"));
    sample->setPixmap(QPixmap(QStringLiteral(":/art/court_texture.png")).copy(0, 0, 80, 32));
    // Clicked and not toggled: the colour may be asked for again.
    connect(choices, &QButtonGroup::idClicked, this, &frmConfig1::optBG_Click);
    m_groundFrame = group("Frame4", QStringLiteral("Background"), {m_colorGround, m_textureGround, sample});
    return m_groundFrame;
}

QWidget* frmConfig1::buildPlayfield() {
    auto* choices = new QButtonGroup(this);
    m_whiteLines = option("optcourtColor", QStringLiteral("White court lines"), choices, 0);
    m_blackLines = option("optcourtColor", QStringLiteral("Black court lines"), choices, 1);
    m_blackLines->setChecked(true);
    connect(choices, &QButtonGroup::idToggled, this, [this](int, bool on) {
        if (on) {
            showCourtPreview();
        }
    });
    m_lineFrame = group("Frame2", QStringLiteral("Lines of the playfield"), {m_whiteLines, m_blackLines});
    return m_lineFrame;
}

QWidget* frmConfig1::buildHeadline() {
    m_edit = named(new QPushButton, "Command9", QStringLiteral("Edit title and description"));
    m_edit->setAutoDefault(false);
    connect(m_edit, &QPushButton::clicked, this, &frmConfig1::Command9_Click);
    m_headlineFrame = group("Frame5", QStringLiteral("Title of the play"), {m_edit});
    return m_headlineFrame;
}

std::int16_t frmConfig1::setCourtCaptions() {
    const auto over = [](QGroupBox* box) { return [box](const QString& text) { box->setTitle(text); }; };
    const auto on = [](QAbstractButton* button) {
        return [button](const QString& text) { button->setText(text); };
    };
    return showCaptions(m_session, {{10, over(m_headlineFrame)},
                                    {11, on(m_edit)},
                                    {12, over(m_groundFrame)},
                                    {7, on(m_colorGround)},
                                    {13, on(m_textureGround)},
                                    {14, over(m_courtFrame)},
                                    {3, on(m_next)},
                                    {50, over(m_lineFrame)},
                                    {51, on(m_whiteLines)},
                                    {52, on(m_blackLines)}});
}

void frmConfig1::showCourtPreview() {
    m_choice.texture = m_textureGround->isChecked();
    m_choice.whiteLines = m_whiteLines->isChecked();
    m_picture->setPixmap(QPixmap::fromImage(courtPreview(m_choice).scaled(m_picture->size())));
}

void frmConfig1::stepTo(int court) {
    m_choice.court = static_cast<std::int16_t>(std::clamp(court, kFirstCourt, kLastCourt));
    showCourtPreview();
}

void frmConfig1::optBG_Click(int index) {
    if (index == 0) {
        platform::CommonDialog dialog;
        dialog.color = m_choice.color;
        if (platform::showColor(this, dialog)) {
            m_choice.color = dialog.color;
        }
    }
    showCourtPreview();
}

void frmConfig1::keyPressEvent(QKeyEvent* event) {
    if (!pressOnReturn(*this, *m_next, *event)) {
        QWidget::keyPressEvent(event);
    }
}

void frmConfig1::Command9_Click() {
    frmTitle(m_play, m_session, this).exec();
    m_titleEdited = true;
}

void frmConfig1::Command5_Click() {
    document::CourtSetup setup;
    setup.court = m_choice.court;
    setup.courtColor = m_choice.color;
    setup.texture = m_textureGround->isChecked();
    setup.whiteLines = m_whiteLines->isChecked();
    setup.titleEdited = m_titleEdited;
    if (showWriteFailure(*this, document::writeCourtConfig(m_play, setup))) {
        m_session.newFileFlag = true;
        emit nextStep();
    }
}

} // namespace zeltrona::dialogs
