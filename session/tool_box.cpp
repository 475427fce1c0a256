#include "session/tool_box.h"

#include "platform/themed_icon.h"
#include "session/control_names.h"
#include "session/tool_grip.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace zeltrona::session {

namespace {

struct ToolTexts {
    const char* name; ///< for assistive programs
    const char* tip;
};

constexpr std::array<ToolTexts, ToolBox::kTools> kToolTexts{{
    {"Cut", "Cut: click points, right click to finish"},
    {"Pass", "Pass: click points, right click to finish"},
    {"Dribble", "Dribble: click points, right click to finish"},
    {"Screen", "Screen: click points, right click to finish"},
    {"Double line", "Double line: click points, right click to finish"},
    {"Ball", "Ball: click to drop it"},
    {"Triangle", "Triangle: click to drop it"},
    {"Text", "Text: type it, then click to drop it"},
    {"Shadow", "Shadow: click one corner, then the other"},
    {"Delete", "Delete: click a ball, triangle, shadow, text or line"},
    {"Color", "Color of new lines and triangles"},
}};

constexpr int kColumns = 2;

} // namespace

ToolBox::ToolBox(QWidget* parent) : QFrame(parent) {
    named(this, "pToolbox", "Tool box");
    setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    setAutoFillBackground(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2, 2, 2, 4);
    column->setSpacing(2);
    column->addWidget(buildGrip());
    auto* tiles = new QGridLayout;
    tiles->setSpacing(0);
    buildTiles(*tiles);
    column->addLayout(tiles);
    buildCurvePart(*column);
    column->setSizeConstraint(QLayout::SetFixedSize);
    showIcons();
    parent->installEventFilter(this);
}

QWidget* ToolBox::buildGrip() {
    auto* row = new QWidget(this);
    m_grip = named(new ToolGrip(row), "pToolboxGrip", "Move the tool box");
    m_grip->installEventFilter(this);
    cmdToolBox1Close = named(new QToolButton(row), "cmdToolBox1Close", "Close the tool box");
    cmdToolBox1Close->setToolTip(QStringLiteral("Close the tool box (View, Tool box brings it back)"));
    cmdToolBox1Close->setAutoRaise(true);
    cmdToolBox1Close->setFixedSize(16, 16);
    cmdToolBox1Close->setIconSize({12, 12});
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_grip, 1);
    layout->addWidget(cmdToolBox1Close);
    return row;
}

void ToolBox::buildTiles(QGridLayout& grid) {
    for (int number = 0; number < kTools; ++number) {
        const auto place = static_cast<std::size_t>(number);
        ToolTile* tile = named(new ToolTile(number, this), QStringLiteral("Picture1_%1").arg(number),
                               QString::fromLatin1(kToolTexts[place].name));
        tile->setToolTip(QString::fromLatin1(kToolTexts[place].tip));
        grid.addWidget(tile, number / kColumns, number % kColumns, Qt::AlignCenter);
        Picture1[place] = tile;
    }
}

void ToolBox::buildCurvePart(QVBoxLayout& column) {
    Label3 = named(new QLabel(this), "Label3", "Curve");
    Label3->setAlignment(Qt::AlignCenter);
    CheckCurve = named(new QCheckBox(this), "CheckCurve", "Curved lines and movements");
    CheckCurve->setToolTip(
        QStringLiteral("Curved line drawing or Curved player's movement.Select it and move "
                       "player around."));
    cmdCurveShowHide = named(new QToolButton(this), "cmdCurveShowHide", "Show or hide curved paths");
    cmdCurveShowHide->setToolTip(QStringLiteral("Show or hide curved path for each player."));
    cmdCurveShowHide->setAutoRaise(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    row->addWidget(CheckCurve);
    row->addWidget(cmdCurveShowHide);
    column.addWidget(Label3);
    column.addLayout(row);
}

void ToolBox::paintToolIcons() {
    const QPixmap strip =
        platform::themedPixmap(QStringLiteral("tool_strip"), palette(), devicePixelRatioF());
    for (ToolTile* tile : Picture1) {
        tile->setStrip(strip);
        tile->setTag(QStringLiteral("0"));
    }
}

void ToolBox::showIcons() {
    cmdToolBox1Close->setIcon(platform::themedIcon(QStringLiteral("close"), palette()));
    cmdCurveShowHide->setIcon(platform::themedIcon(QStringLiteral("curve_showhide"), palette()));
}

void ToolBox::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && cmdCurveShowHide != nullptr) {
        showIcons();
        const QPixmap strip =
            platform::themedPixmap(QStringLiteral("tool_strip"), palette(), devicePixelRatioF());
        for (ToolTile* tile : Picture1) {
            tile->setStrip(strip);
        }
    }
}

void ToolBox::moveInside(QPoint place) {
    const QSize room = parentWidget()->size() - size();
    move(std::clamp(place.x(), 0, std::max(0, room.width())),
         std::clamp(place.y(), 0, std::max(0, room.height())));
}

bool ToolBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_grip) {
        dragBy(*event);
    } else if (watched == parentWidget() && event->type() == QEvent::Resize) {
        moveInside(pos());
    }
    return QFrame::eventFilter(watched, event);
}

void ToolBox::dragBy(QEvent& event) {
    if (event.type() == QEvent::MouseButtonPress) {
        m_grabbedAt = mapFromGlobal(static_cast<QMouseEvent&>(event).globalPosition().toPoint());
        raise();
    } else if (event.type() == QEvent::MouseMove) {
        auto& mouse = static_cast<QMouseEvent&>(event);
        if (mouse.buttons().testFlag(Qt::LeftButton)) {
            moveInside(parentWidget()->mapFromGlobal(mouse.globalPosition().toPoint()) - m_grabbedAt);
        }
    }
}

} // namespace zeltrona::session
