#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// What became of a write: `reason` is empty on success, else plain words from the operating system.
struct WriteResult {
    std::string reason;
    bool ok() const { return reason.empty(); }
};

/// The play on the disk, reached by section and key at the moment a value is needed.
/// Text:   bytes in, bytes out; names match without regard to ASCII case.
/// Reads:  look at the file's identity, size and time of change first and parse it anew only when one differs.
///         They never fail: a file that cannot be read answers with defaults.
/// Writes: replace the whole file (built beside, flushed, renamed over); symbolic links and permissions survive.
///         A failed write leaves the old file, and is reported by the result and to the observer.
class PlayFile {
public:
    explicit PlayFile(std::string path);
    ~PlayFile();
    PlayFile(PlayFile&&) noexcept;
    PlayFile& operator=(PlayFile&&) noexcept;

    const std::string& path() const;

    /// The profile string read with a buffer of `size` characters: at most size - 1 come back; size 0 gives none.
    std::string readString(std::string_view section, std::string_view key, std::string_view fallback,
                           std::size_t size) const;
    /// The whole value, uncut, or `fallback`.
    std::string readWhole(std::string_view section, std::string_view key, std::string_view fallback = {}) const;
    bool hasKey(std::string_view section, std::string_view key) const;
    std::int32_t readInt(std::string_view section, std::string_view key, std::int32_t fallback) const;

    WriteResult writeString(std::string_view section, std::string_view key, std::string_view value);
    WriteResult deleteKey(std::string_view section, std::string_view key);
    WriteResult deleteSection(std::string_view section);

    /// All bytes of the file as they stand now, writes of an open batch included; empty when it cannot be read.
    std::string bytes() const;
    /// Replaces everything.
    WriteResult replaceAll(std::string bytes);

    /// Told after every attempt to reach the disk, with its result. One observer; an empty function takes it away.
    void setWriteObserver(std::function<void(const WriteResult&)> observer);

private:
    friend class WriteBatch;
    struct State;
    std::unique_ptr<State> m_state;
};

/// Gathers writes into one replacement of the file. Batches nest: only the outermost commit reaches the disk.
/// Reads meanwhile see what was written. A batch that ends without commit takes its writes back.
class WriteBatch {
public:
    explicit WriteBatch(PlayFile& play);
    ~WriteBatch();
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;
    WriteResult commit();

private:
    PlayFile& m_play;
    bool m_open = true;
};

} // namespace zeltrona::document
