#include "document/play_file_state.h"

#include <utility>

namespace zeltrona::document {

const PlayText& PlayFile::State::text() {
    if (m_marks.empty() && m_scopes == 0) {
        refresh();
    }
    return m_text;
}

std::optional<std::string_view> PlayFile::State::value(std::string_view section, std::string_view key) {
    return text().value(section, key);
}

void PlayFile::State::refresh() {
    const FileLook look = lookAtFile(m_path);
    if (!isUnchanged(look)) {
        adopt(look.standing == FileStanding::Readable ? readWholeFile(m_path) : look);
    }
}

// A stamp that is not settled may hide a change, so the bytes are compared until it is.
bool PlayFile::State::isUnchanged(const FileLook& look) {
    if (look.standing != FileStanding::Readable || m_standing != FileStanding::Readable
        || look.stamp != m_stamp) {
        return false;
    }
    if (m_settled) {
        return true;
    }
    FileLook again = readWholeFile(m_path);
    const bool same = again.standing == FileStanding::Readable && again.bytes == m_text.bytes();
    if (same) {
        m_stamp = again.stamp;
        m_settled = again.settled;
    }
    return same;
}

void PlayFile::State::adopt(FileLook look) {
    if (m_standing == FileStanding::Readable) {
        m_lastRead = std::exchange(m_text, PlayText());
    }
    m_standing = look.standing;
    m_reason = std::move(look.reason);
    m_stamp = look.stamp;
    m_settled = look.settled;
    if (m_standing == FileStanding::Readable) {
        m_text = PlayText(std::move(look.bytes));
        m_lastRead = PlayText();
    }
}

WriteResult PlayFile::State::apply(const std::function<bool(PlayText&)>& change) {
    if (m_marks.empty()) {
        openBatch();
        apply(change);
        return commitBatch();
    }
    if (m_standing == FileStanding::Unreadable) {
        return {m_reason};
    }
    const bool changed = change(m_text);
    m_changed = m_changed || changed || m_standing == FileStanding::Missing;
    return {};
}

void PlayFile::State::openScope() {
    text();
    ++m_scopes;
}

void PlayFile::State::openBatch() {
    if (!m_marks.empty()) {
        m_marks.push_back({m_text, m_changed});
        return;
    }
    m_turn = FileTurn::take(m_path);
    refresh();
    m_marks.push_back({m_text, false});
    m_changed = false;
    if (m_standing == FileStanding::Missing) {
        m_text = m_lastRead;
    }
}

WriteResult PlayFile::State::commitBatch() {
    if (m_marks.size() > 1) {
        m_marks.pop_back();
        return {};
    }
    WriteResult result = store();
    if (result.ok()) {
        m_marks.pop_back();
        m_turn = FileTurn();
    } else {
        dropBatch();
    }
    tell(result);
    return result;
}

void PlayFile::State::failBatch(const WriteResult& why) {
    dropBatch();
    if (m_marks.empty()) {
        tell(why);
    }
}

void PlayFile::State::tell(const WriteResult& result) const {
    if (m_observer) {
        m_observer(result);
    }
}

void PlayFile::State::dropBatch() {
    m_text = std::move(m_marks.back().text);
    m_changed = m_marks.back().changed;
    m_marks.pop_back();
    if (m_marks.empty()) {
        m_turn = FileTurn();
    }
}

WriteResult PlayFile::State::store() {
    if (m_standing == FileStanding::Unreadable) {
        return {m_reason};
    }
    if (!m_changed) {
        return {};
    }
    FileReplacement written = replaceWholeFile(m_path, m_text.pieces());
    if (!written.reason.empty()) {
        return {std::move(written.reason)};
    }
    m_standing = FileStanding::Readable;
    m_stamp = written.stamp;
    m_settled = written.settled;
    m_lastRead = PlayText();
    m_text.tidy();
    if (!std::exchange(m_leftoversRemoved, true)) {
        removeLeftovers(m_path);
    }
    return {};
}

} // namespace zeltrona::document
