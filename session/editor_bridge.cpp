#include "session/editor_bridge.h"

#include "dialogs/text_picture.h"
#include "document/code_page.h"
#include "document/frame_store.h"
#include "platform/message_box.h"
#include "session/body_panel.h"
#include "session/frmMain.h"
#include "session/language.h"
#include "session/status_line.h"
#include "session/tool_box.h"

#include <QCheckBox>
#include <QMenu>

namespace zeltrona::session {

void EditorBridge::redrawBoard(float pointerX, float pointerY) {
    m_parts.window.redrawBoard(pointerX, pointerY);
}

void EditorBridge::setTimerEnabled(bool enabled) {
    m_parts.timer.setEnabled(enabled);
}

void EditorBridge::showStatus(const std::string& utf8) {
    m_parts.controls.pStatus->print(QString::fromStdString(utf8));
}

std::string EditorBridge::localText(std::int16_t offset) {
    return session::localText(m_parts.desk.session, offset).value_or(QString()).toStdString();
}

void EditorBridge::message(const std::string& utf8, editor::MessageIcon icon) {
    platform::showMessage(&m_parts.window, QString::fromStdString(utf8),
                          icon == editor::MessageIcon::Critical ? platform::Icon::Critical
                                                                : platform::Icon::Information);
}

std::optional<editor::Color> EditorBridge::askColor(bool cancelIsError) {
    platform::CommonDialog& dialog = m_parts.desk.CommonDialog1;
    dialog.cancelError = cancelIsError;
    const bool chosen = platform::showColor(&m_parts.window, dialog);
    if (!chosen && cancelIsError) {
        return std::nullopt;
    }
    return dialog.color;
}

std::optional<editor::TextAnswer> EditorBridge::askText() {
    const auto answer = dialogs::askTextPicture(&m_parts.window, m_parts.desk.play, m_parts.desk.session);
    if (!answer) {
        return std::nullopt;
    }
    const platform::FontChoice& font = answer->font;
    return editor::TextAnswer{answer->text, answer->fontName, font.size,      font.color,  font.bold,
                              font.italic,  font.underline,   font.strikeOut, font.charset};
}

void EditorBridge::storeFont(const std::string& name, std::int16_t charset) {
    document::writeFontConfig(m_parts.desk.play, name, charset);
}

bool EditorBridge::curveChecked() {
    return m_parts.controls.pToolbox->CheckCurve->isChecked();
}

void EditorBridge::paintToolButton(int index, bool down) {
    m_parts.controls.pToolbox->Picture1[static_cast<std::size_t>(index)]->setTag(down ? QStringLiteral("1")
                                                                                      : QStringLiteral("0"));
}

void EditorBridge::openPopUpMenu() {
    m_popUp.popup(m_pointer);
}

void EditorBridge::openBodyPanel(float x, float y) {
    const editor::EditorState& state = m_parts.desk.editor;
    m_parts.controls.pBodyTool->setTags(QString::fromStdString(state.bodyToolSide),
                                        QString::fromStdString(state.bodyToolIndex));
    m_parts.controls.pBodyTool->openAt(QPointF(x, y).toPoint());
}

void EditorBridge::closeBodyPanel() {
    m_parts.controls.pBodyTool->hide();
    m_parts.controls.pBodyTool->setTags({}, {});
}

QString EditorBridge::boardText(const std::string& bytes) const {
    return QString::fromStdString(document::toUtf8(bytes, m_parts.desk.session.fontCharset));
}

int EditorBridge::textWidth(const std::string& text) {
    return m_parts.desk.surface.textWidth(boardText(text));
}

int EditorBridge::textHeight(const std::string& text) {
    return m_parts.desk.surface.textHeight(boardText(text));
}

int EditorBridge::boardWidth() {
    return m_parts.desk.surface.width();
}

int EditorBridge::boardHeight() {
    return m_parts.desk.surface.height();
}

// A failed write shows in the message line and in the title, and the object stays.
void EditorBridge::removeObject(document::ObjectClass kind, std::size_t index) {
    PlayDesk& desk = m_parts.desk;
    document::removeObject(desk.play, desk.session, desk.records, kind, index);
}

} // namespace zeltrona::session
