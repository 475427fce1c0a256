#include "session/body_panel.h"

#include "session/control_names.h"

#include <QEvent>
#include <QGridLayout>
#include <QToolButton>

#include <algorithm>

namespace zeltrona::session {

namespace {

constexpr std::array<const char*, 4> kPoseTips{"Standing", "Arms forward", "Arms wide", "Dribbling"};
constexpr int kPicture = 50;

} // namespace

BodyPanel::BodyPanel(QWidget* board) : QFrame(board) {
    named(this, "pBodyTool_0", "Body of the player");
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setSpacing(4);
    for (int index = 1; index <= 4; ++index) {
        const auto pose = static_cast<std::size_t>(index - 1);
        auto* choice = named(new QToolButton(this), QStringLiteral("pBodyTool_%1").arg(index),
                             QString::fromLatin1(kPoseTips[pose]));
        choice->setToolTip(QString::fromLatin1(kPoseTips[pose]));
        choice->setIcon(QIcon(QStringLiteral(":/art/body_pose_%1.png").arg(pose)));
        choice->setIconSize({kPicture, kPicture});
        choice->setAutoRaise(true);
        choice->setProperty("Tag", QString());
        connect(choice, &QToolButton::clicked, this, [this, index] { emit poseChosen(index); });
        grid->addWidget(choice, (index - 1) / 2, (index - 1) % 2);
        pBodyTool[static_cast<std::size_t>(index)] = choice;
    }
    adjustSize();
    hide();
}

void BodyPanel::openAt(QPoint place) {
    adjustSize();
    const QSize room = parentWidget()->size() - size();
    move(std::clamp(place.x(), 0, std::max(0, room.width())),
         std::clamp(place.y(), 0, std::max(0, room.height())));
    show();
    raise();
}

void BodyPanel::setTags(const QString& side, const QString& playerIndex) {
    m_tag = side;
    pBodyTool[1]->setProperty("Tag", playerIndex);
}

void BodyPanel::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        adjustSize();
    }
}

} // namespace zeltrona::session
