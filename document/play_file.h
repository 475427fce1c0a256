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
/// Text:   bytes in, bytes out; names match without regard to ASCII case, and only the first section and the
///         first key of a name count. Spaces at the ends of a section or key argument are dropped.
/// Reads:  look at the file's identity, size and time of change first and parse it anew only when one
///         differs. They never fail: a file that cannot be read answers with defaults.
/// Writes: replace the whole file (built beside, flushed, renamed over); symbolic links and permissions
///         survive, other bytes stay as they stand. A failed write leaves the old file, and is reported by
///         the result and to the observer. A file whose bytes cannot be read is never written over: it may
///         hold a play. One that is missing is made; if this object has read it before it vanished, it is
///         made whole again with what it held.
class PlayFile {
public:
    explicit PlayFile(std::string path);
    ~PlayFile();
    PlayFile(PlayFile&&) noexcept;
    PlayFile& operator=(PlayFile&&) noexcept;

    const std::string& path() const;

    /// The value without its outer quotation marks, or `fallback` without its trailing spaces, for a buffer
    /// of `size` characters: at most size - 1 come back; size 0 gives none.
    std::string readString(std::string_view section, std::string_view key, std::string_view fallback,
                           std::size_t size) const;
    /// The whole value, uncut, or `fallback`.
    std::string readWhole(std::string_view section, std::string_view key,
                          std::string_view fallback = {}) const;
    /// Whether there is such a key, be its value empty.
    bool hasKey(std::string_view section, std::string_view key) const;
    /// The whole number at the start of the value, modulo 2^32; 0 when it starts with none; `fallback` when
    /// absent.
    std::int32_t readInt(std::string_view section, std::string_view key, std::int32_t fallback) const;

    /// The value goes in as it is given. One that is there already leaves the file untouched.
    WriteResult writeString(std::string_view section, std::string_view key, std::string_view value);
    /// As writeString for a text from the user: reads back as typed, also between quotation marks.
    WriteResult writeText(std::string_view section, std::string_view key, std::string_view text);
    /// What is absent counts as deleted; a missing file is made, empty.
    WriteResult deleteKey(std::string_view section, std::string_view key);
    /// Comment lines of the section stay.
    WriteResult deleteSection(std::string_view section);

    /// All bytes of the file as they stand now, writes of an open batch included; empty when it cannot be
    /// read.
    std::string bytes() const;
    /// Replaces everything.
    WriteResult replaceAll(std::string bytes);

    /// Told the result of every write, of a batch once at its outermost commit; success means that the file
    /// holds what was written, also when it needed no change for it. One observer; an empty function takes it
    /// away.
    void setWriteObserver(std::function<void(const WriteResult&)> observer);

private:
    friend class ReadScope;
    friend class WriteBatch;
    class State;
    std::unique_ptr<State> m_state;
};

/// Within it the file is looked at once, so that reads that belong together see one version of it, and many
/// small ones are quick.
class ReadScope {
public:
    explicit ReadScope(const PlayFile& play);
    ~ReadScope();
    ReadScope(const ReadScope&) = delete;
    ReadScope& operator=(const ReadScope&) = delete;

private:
    const PlayFile& m_play;
};

/// Gathers writes into one replacement of the file. Batches nest: only the outermost commit reaches the disk.
/// Reads meanwhile see what was written. A batch that ends without commit takes its writes back, and so does
/// one whose commit fails. Keep it short: another program that wants to write waits for its end.
class WriteBatch {
public:
    explicit WriteBatch(PlayFile& play);
    ~WriteBatch();
    WriteBatch(const WriteBatch&) = delete;
    WriteBatch& operator=(const WriteBatch&) = delete;
    WriteResult commit();
    /// Gives an act up that failed ahead of its commit: takes its writes back and, as the outermost, tells
    /// the observer why. Gives the reason on.
    WriteResult fail(WriteResult why);

private:
    PlayFile& m_play;
    bool m_open = true;
};

} // namespace zeltrona::document
