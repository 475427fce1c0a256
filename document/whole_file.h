#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// What tells one version of a file from another without reading it.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modifiedNs = 0; ///< last change of the content, nanoseconds since 1970
    std::int64_t changedNs = 0;  ///< last change of content, name or rights; it cannot be set back
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

enum class FileStanding {
    Readable,
    Missing,    ///< nothing has this name
    Unreadable, ///< something has it that cannot be read: a directory, a pipe, a file without the right, too
                ///< long a one
};

/// A look at a file.
struct FileLook {
    FileStanding standing = FileStanding::Missing;
    FileStamp stamp;    ///< of a readable one
    std::string reason; ///< why it is missing or unreadable, in the operating system's words
    std::string bytes;  ///< filled by readWholeFile alone
    /// False while a further change could still carry the same time: the clock of the file system ticks only
    /// every few milliseconds.
    bool settled = false;
};

/// A file longer than this counts as unreadable: a play has some megabytes at the most.
constexpr std::int64_t kLongestFile = std::int64_t{1} << 30;

/// Looks without opening.
FileLook lookAtFile(const std::string& path);
/// Never waits: a pipe or a device is not opened.
FileLook readWholeFile(const std::string& path);

struct FileReplacement {
    std::string reason; ///< empty on success
    FileStamp stamp;    ///< of the new file
    bool settled = false;
};
/// Puts the pieces in the file's place, or leaves the old file as it is. They are written to a file beside
/// the old one, flushed to the disk, and that is renamed over it; then the folder is flushed.
/// Keeps:    a symbolic link (its target is replaced), permissions, owner and group where the system allows
///           it. Another hard link to the old file goes on to name the old content.
/// Failures: a file that may not be written is refused although its folder would allow the replacement. When
///           only the last flush of the folder fails, the new file stands, and the reason is given all the
///           same.
FileReplacement replaceWholeFile(const std::string& path, std::span<const std::string_view> pieces);

/// Why `replaceWholeFile` would fail now, as far as rights tell: a file that may not be written, or a folder
/// that takes no new one. Empty when nothing stands against it. Changes nothing.
std::string refusalToReplace(const std::string& path);

/// Removes what writers that were killed left beside the file more than an hour ago.
void removeLeftovers(const std::string& path);

} // namespace zeltrona::document
