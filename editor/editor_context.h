#pragma once

#include "document/frame_records.h"
#include "document/session.h"
#include "editor/editor_host.h"
#include "editor/editor_state.h"

namespace zeltrona::editor {

/// Everything that an editing procedure reads, changes or asks; lent by the window for one event.
struct EditorContext {
    document::Session& session;
    document::FrameRecords& records;
    EditorState& state;
    EditorHost& host;
};

} // namespace zeltrona::editor
