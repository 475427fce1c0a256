#pragma once

#include "document/posix_calls.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zeltrona::document {

/// A new file in the folder of another one, until it takes that one's name; removed again when it never does.
/// Its steps give an error number, 0 for success.
class FileBeside {
public:
    explicit FileBeside(const std::string& target);
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    /// Whether the file could be made, only for this user to read.
    int error() const { return m_error; }
    int write(std::span<const std::string_view> pieces);
    /// Takes owner, group and permissions of the old file, or those of any new file when there is none.
    int takeRights(const struct stat* old);
    int flush();
    int renameTo(const std::string& target);

    /// Gives the file a time between two ticks of the clock that stamps changes: a change by another program,
    /// even within the same tick, then carries another one. Gives that time, 0 when it cannot be set.
    std::int64_t setTellingTime();
    FileStamp stamp() const;

    /// Whether a file of this name was made here.
    static bool isNameOfOne(std::string_view name);

private:
    std::string m_path;
    posix::Descriptor m_file;
    int m_error = 0;
    bool m_renamed = false;
};

} // namespace zeltrona::document
