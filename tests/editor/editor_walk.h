#pragma once

#include "document/frame_store.h"
#include "document/play_file.h"
#include "editor/editor_context.h"

#include <array>
#include <cstdint>
#include <string>

namespace zeltrona::editor::testing {

/// One thing that a user does: which, where, and how (button and keys, or the answer to a dialog).
using WalkAction = std::array<std::uint8_t, 6>;

/// The surroundings of a walk: a play on the disk, and dialogs that the action under way answers. While one
/// is open the frame may change and the pointer may be let go.
class WalkHost : public EditorHost {
public:
    WalkHost(document::PlayFile& play, EditorContext& editor) : m_play(play), m_editor(editor) {}

    std::uint8_t answer = 0;
    bool isCurveChecked = false;
    bool sawFrameChange = false;
    bool sawRemoval = false;
    bool brokeAPromise = false; ///< was asked for something impossible

    void changeFrame(bool up);

    void redrawBoard(float pointerX, float pointerY) override;
    void setTimerEnabled(bool enabled) override;
    void showStatus(const std::string& utf8) override;
    std::string localText(std::int16_t offset) override;
    void message(const std::string& utf8, MessageIcon icon) override;
    std::optional<Color> askColor(bool cancelIsError) override;
    std::optional<TextAnswer> askText() override;
    void storeFont(const std::string& name, std::int16_t charset) override;
    bool curveChecked() override { return isCurveChecked; }
    void paintToolButton(int index, bool down) override;
    void openPopUpMenu() override {}
    void openBodyPanel(float x, float y) override;
    void closeBodyPanel() override;
    int textWidth(const std::string& text) override { return static_cast<int>(text.size()) * 7; }
    int textHeight(const std::string&) override { return 14; }
    int boardWidth() override { return 363; }
    int boardHeight() override { return 332; }
    void removeObject(document::ObjectClass kind, std::size_t index) override;

private:
    void whileOpen();

    document::PlayFile& m_play;
    EditorContext& m_editor;
};

/// A user without a plan: any stream of actions, on a board of six against six with bodies or circles, with
/// frames that are stored, made, stepped and deleted in between. After each step nothing that must hold may
/// be broken.
class EditorWalk {
public:
    /// Makes the play anew in `folder`.
    explicit EditorWalk(const std::string& folder);

    void step(const WalkAction& action);

    /// The first promise broken by the last step; empty when all hold.
    std::string brokenPromise() const;

    const document::FrameRecords& records() const { return m_records; }

private:
    void pointerStep(const WalkAction& action);
    void controlStep(const WalkAction& action);
    void sequenceStep(const WalkAction& action);
    void noteStaleIndices();
    std::string brokenToolPromise() const;
    std::string brokenLinePromise() const;
    std::string brokenPickPromise() const;
    std::string brokenRecordPromise() const;

    std::string m_folder;
    document::PlayFile m_play;
    document::Session m_session;
    document::FrameRecords m_records;
    EditorState m_state;
    WalkHost m_host;
    EditorContext m_editor;
    bool m_picksMayBeStale = false;
    bool m_lineMayBeStale = false;
    bool m_lineWasStored = false; ///< a line in progress may be in the play with its one point
};

} // namespace zeltrona::editor::testing
