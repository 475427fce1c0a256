#pragma once

#include "document/file_turn.h"
#include "document/play_file.h"
#include "document/play_text.h"
#include "document/whole_file.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// What a PlayFile knows of its file, and the acts that are open on it.
class PlayFile::State {
public:
    explicit State(std::string path) : m_path(std::move(path)) {}

    const std::string& path() const { return m_path; }
    /// The text to read from: the file's as it is now, or that of the open act.
    const PlayText& text();
    /// The value as the file has it, marks kept.
    std::optional<std::string_view> value(std::string_view section, std::string_view key);

    /// Makes a change, in the open batch or as an act of its own. `change` says whether it changed the text.
    WriteResult apply(const std::function<bool(PlayText&)>& change);

    void openScope();
    void closeScope() { --m_scopes; }
    void openBatch();
    WriteResult commitBatch();
    void dropBatch();
    void failBatch(const WriteResult& why);

    void setObserver(std::function<void(const WriteResult&)> observer) { m_observer = std::move(observer); }

private:
    // What a batch goes back to.
    struct Mark {
        PlayText text;
        bool changed = false;
    };

    void refresh();
    bool isUnchanged(const FileLook& look);
    void adopt(FileLook look);
    WriteResult store();
    void tell(const WriteResult& result) const;

    std::string m_path;
    PlayText m_text;
    FileStanding m_standing = FileStanding::Missing;
    std::string m_reason; ///< of an unreadable file
    FileStamp m_stamp;
    bool m_settled = false;
    PlayText m_lastRead; ///< what the file held before it vanished
    bool m_leftoversRemoved = false;

    int m_scopes = 0;
    std::vector<Mark> m_marks; ///< of the open batches
    bool m_changed = false;    ///< in the open batch
    FileTurn m_turn;
    std::function<void(const WriteResult&)> m_observer;
};

} // namespace zeltrona::document
