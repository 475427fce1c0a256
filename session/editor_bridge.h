#pragma once

#include "editor/editor_host.h"
#include "session/main_window_parts.h"

#include <QPoint>

class QMenu;

namespace zeltrona::session {

/// Answers what editing asks for: with the window's controls, the platform's dialogs and the play.
class EditorBridge : public editor::EditorHost {
public:
    EditorBridge(const MainWindowParts& parts, QMenu& mnuPopUp) : m_parts(parts), m_popUp(mnuPopUp) {}

    /// Where the pop-up menu opens next, on the screen.
    void setPointer(QPoint onScreen) { m_pointer = onScreen; }

    void redrawBoard(float pointerX, float pointerY) override;
    void setTimerEnabled(bool enabled) override;
    void showStatus(const std::string& utf8) override;
    std::string localText(std::int16_t offset) override;
    void message(const std::string& utf8, editor::MessageIcon icon) override;
    std::optional<editor::Color> askColor(bool cancelIsError) override;
    std::optional<editor::TextAnswer> askText() override;
    void storeFont(const std::string& name, std::int16_t charset) override;
    bool curveChecked() override;
    void paintToolButton(int index, bool down) override;
    void openPopUpMenu() override;
    void openBodyPanel(float x, float y) override;
    void closeBodyPanel() override;
    int textWidth(const std::string& text) override;
    int textHeight(const std::string& text) override;
    int boardWidth() override;
    int boardHeight() override;
    void removeObject(document::ObjectClass kind, std::size_t index) override;

private:
    QString boardText(const std::string& bytes) const;

    MainWindowParts m_parts;
    QMenu& m_popUp;
    QPoint m_pointer;
};

} // namespace zeltrona::session
