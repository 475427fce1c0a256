#include "session/main_controls.h"

#include "animation/transport_bar.h"
#include "session/accessible_roles.h"
#include "session/board_view.h"
#include "session/body_panel.h"
#include "session/control_names.h"
#include "session/sequence_panel.h"
#include "session/status_line.h"
#include "session/tool_box.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>

namespace zeltrona::session {

namespace {

constexpr int kGap = 4;

void setTabChain(std::initializer_list<QWidget*> chain) {
    QWidget* before = nullptr;
    for (QWidget* control : chain) {
        if (before != nullptr) {
            QWidget::setTabOrder(before, control);
        }
        before = control;
    }
}

void orderTabs(const MainControls& controls) {
    const ToolBox& tools = *controls.pToolbox;
    const SequencePanel& frames = *controls.Frame1;
    const animation::TransportBar& bar = *controls.pToolAnim;
    setTabChain({controls.pic, tools.cmdToolBox1Close, tools.Picture1[0]});
    for (std::size_t place = 1; place < tools.Picture1.size(); ++place) {
        QWidget::setTabOrder(tools.Picture1[place - 1], tools.Picture1[place]);
    }
    setTabChain({tools.Picture1.back(), tools.CheckCurve,  tools.cmdCurveShowHide, frames.cmdSeqNoDown,
                 frames.txtSeq,         frames.cmdSeqNoUp, frames.seqSave,         frames.seqNew,
                 frames.seqDel,         frames.seqNotes,   bar.cmdAnimFirst,       bar.cmdAnimPrev,
                 bar.cmdAnimPlay,       bar.cmdAnimPause,  bar.cmdAnimStop,        bar.cmdAnimNext,
                 bar.cmdAnimLast,       bar.cmdAnimDown,   bar.txtAnimSpeed,       bar.cmdAnimUp,
                 bar.animCheckLoop});
}

/// As wide as the table's left edge leaves on both sides, or as wide as the panel needs.
int panelWidth(const CourtLayout& layout, int left, const QWidget& panel) {
    return std::max(layout.window.width() - 2 * left, panel.sizeHint().width());
}

} // namespace

MainControls buildMainControls(QMainWindow& window) {
    installAccessibleRoles();
    MainControls controls;
    controls.room = new QWidget(&window);
    controls.desk = new QWidget(controls.room);
    controls.pic = named(new BoardView(controls.desk), "pic", "Board");
    controls.Frame1 = new SequencePanel(controls.desk);
    controls.pToolAnim = new animation::TransportBar(controls.desk);
    controls.pStatus = named(new StatusLine(controls.room), "pStatus", "Message line");
    controls.pToolbox = new ToolBox(controls.room);
    controls.pBodyTool = new BodyPanel(controls.pic);
    window.setCentralWidget(controls.room);
    orderTabs(controls);
    return controls;
}

void placeMainControls(QMainWindow& window, const MainControls& controls, const CourtLayout& layout) {
    controls.pic->move(layout.pic);
    SequencePanel& frames = *controls.Frame1;
    animation::TransportBar& bar = *controls.pToolAnim;
    frames.setGeometry(layout.Frame1.x(), layout.Frame1.y(), panelWidth(layout, layout.Frame1.x(), frames),
                       frames.sizeHint().height());
    const int barTop = std::max(layout.pToolAnim.y(), frames.geometry().bottom() + 1);
    bar.setGeometry(layout.pToolAnim.x(), barTop, panelWidth(layout, layout.pToolAnim.x(), bar),
                    bar.sizeHint().height());

    const int right = std::max(frames.geometry().right(), bar.geometry().right()) + 1 + kGap;
    const int needed = bar.geometry().bottom() + 1 + kGap + controls.pStatus->sizeHint().height();
    const int menu = window.menuBar()->sizeHint().height();
    const QSize size(std::max(layout.window.width(), right), std::max(layout.window.height(), menu + needed));
    controls.desk->resize(size.width(), size.height() - menu - controls.pStatus->sizeHint().height());
    window.setMinimumSize(size);
    window.resize(size);
    controls.room->resize(size.width(), size.height() - menu);
    centerDesk(controls);
    ToolBox& tools = *controls.pToolbox;
    tools.adjustSize();
    tools.moveInside({controls.room->width() - tools.width() - 2, layout.pic.y()});
}

void centerDesk(const MainControls& controls) {
    const int status = controls.pStatus->sizeHint().height();
    const QSize room = controls.room->size();
    controls.pStatus->setGeometry(0, room.height() - status, room.width(), status);
    const QPoint place(std::max(0, (room.width() - controls.desk->width()) / 2),
                       std::max(0, (room.height() - status - controls.desk->height()) / 2));
    const QPoint delta = place - controls.desk->pos();
    controls.desk->move(place);
    controls.pToolbox->moveInside(controls.pToolbox->pos() + delta);
}

} // namespace zeltrona::session
