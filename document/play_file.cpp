#include "document/play_file.h"

#include "document/play_file_state.h"
#include "document/profile_value.h"

#include <utility>

namespace zeltrona::document {

namespace {

bool holds(const PlayText& text, std::string_view bytes) {
    for (const std::string_view piece : text.pieces()) {
        if (!bytes.starts_with(piece)) {
            return false;
        }
        bytes.remove_prefix(piece.size());
    }
    return bytes.empty();
}

} // namespace

PlayFile::PlayFile(std::string path) : m_state(std::make_unique<State>(std::move(path))) {}
PlayFile::~PlayFile() = default;
PlayFile::PlayFile(PlayFile&&) noexcept = default;
PlayFile& PlayFile::operator=(PlayFile&&) noexcept = default;

const std::string& PlayFile::path() const {
    return m_state->path();
}

std::string PlayFile::readString(std::string_view section, std::string_view key, std::string_view fallback,
                                 std::size_t size) const {
    if (size == 0) {
        return {};
    }
    const auto value = m_state->value(section, key);
    return std::string((value ? dropMarks(*value) : trimDefault(fallback)).substr(0, size - 1));
}

std::string PlayFile::readWhole(std::string_view section, std::string_view key,
                                std::string_view fallback) const {
    const auto value = m_state->value(section, key);
    return std::string(value ? dropMarks(*value) : trimDefault(fallback));
}

bool PlayFile::hasKey(std::string_view section, std::string_view key) const {
    return m_state->value(section, key).has_value();
}

std::int32_t PlayFile::readInt(std::string_view section, std::string_view key, std::int32_t fallback) const {
    const auto value = m_state->value(section, key);
    return value ? wholeNumber(dropMarks(*value)) : fallback;
}

WriteResult PlayFile::writeString(std::string_view section, std::string_view key, std::string_view value) {
    return m_state->apply([&](PlayText& text) { return text.write(section, key, value); });
}

WriteResult PlayFile::writeText(std::string_view section, std::string_view key, std::string_view text) {
    return writeString(section, key, guardMarks(std::string(text)));
}

WriteResult PlayFile::deleteKey(std::string_view section, std::string_view key) {
    return m_state->apply([&](PlayText& text) { return text.deleteKey(section, key); });
}

WriteResult PlayFile::deleteSection(std::string_view section) {
    return m_state->apply([&](PlayText& text) { return text.deleteSection(section); });
}

std::string PlayFile::bytes() const {
    return m_state->text().bytes();
}

WriteResult PlayFile::replaceAll(std::string bytes) {
    return m_state->apply([&](PlayText& text) {
        const bool changed = !holds(text, bytes);
        text = PlayText(std::move(bytes));
        return changed;
    });
}

void PlayFile::setWriteObserver(std::function<void(const WriteResult&)> observer) {
    m_state->setObserver(std::move(observer));
}

ReadScope::ReadScope(const PlayFile& play) : m_play(play) {
    m_play.m_state->openScope();
}

ReadScope::~ReadScope() {
    m_play.m_state->closeScope();
}

WriteBatch::WriteBatch(PlayFile& play) : m_play(play) {
    m_play.m_state->openBatch();
}

WriteBatch::~WriteBatch() {
    if (m_open) {
        m_play.m_state->dropBatch();
    }
}

WriteResult WriteBatch::commit() {
    if (!std::exchange(m_open, false)) {
        return {};
    }
    return m_play.m_state->commitBatch();
}

WriteResult WriteBatch::fail(WriteResult why) {
    if (std::exchange(m_open, false)) {
        m_play.m_state->failBatch(why);
    }
    return why;
}

} // namespace zeltrona::document
