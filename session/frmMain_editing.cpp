// Carries the events of the board and of the tools to the editor, which decides on them.
#include "editor/body_panel.h"
#include "editor/keyboard.h"
#include "editor/pointer.h"
#include "editor/toolbox.h"
#include "session/board_view.h"
#include "session/body_panel.h"
#include "session/frmMain.h"
#include "session/tool_box.h"

#include <QKeyEvent>
#include <QToolButton>

namespace zeltrona::session {

namespace {

constexpr int kEscape = 27;

} // namespace

void frmMain::connectEditing() {
    connect(m_controls.pic, &BoardView::pressed, this, &frmMain::pic_MouseDown);
    connect(m_controls.pic, &BoardView::moved, this, &frmMain::pic_MouseMove);
    connect(m_controls.pic, &BoardView::released, this, &frmMain::pic_MouseUp);
    ToolBox& tools = *m_controls.pToolbox;
    for (std::size_t index = 0; index < tools.Picture1.size(); ++index) {
        connect(tools.Picture1[index], &ToolTile::clicked, this,
                [this, index] { editor::Picture1_Click(m_editor, static_cast<std::int16_t>(index)); });
    }
    connect(tools.cmdCurveShowHide, &QToolButton::clicked, this,
            [this] { editor::cmdCurveShowHide_Click(m_editor); });
    connect(tools.cmdToolBox1Close, &QToolButton::clicked, &tools, &QWidget::hide);
    connect(m_controls.pBodyTool, &BodyPanel::poseChosen, this,
            [this](int index) { editor::pBodyTool_Click(m_editor, static_cast<std::int16_t>(index)); });
}

void frmMain::pic_MouseDown(const PointerEvent& event) {
    m_editorBridge.setPointer(m_controls.pic->mapToGlobal(QPointF(event.x, event.y).toPoint()));
    editor::pic_MouseDown(m_editor, event.button, event.shift, event.x, event.y);
}

void frmMain::pic_MouseMove(const PointerEvent& event) {
    editor::pic_MouseMove(m_editor, event.button, event.shift, event.x, event.y);
}

void frmMain::pic_MouseUp(const PointerEvent& event) {
    editor::pic_MouseUp(m_editor, event.button, event.shift, event.x, event.y);
}

// Keys that no control takes come here, those of the board too.
void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        editor::Form_KeyDown(m_editor, kEscape, 0);
        return;
    }
    QMainWindow::keyPressEvent(event);
}

} // namespace zeltrona::session
