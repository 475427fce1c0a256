#pragma once

#include "document/posix_calls.h"

#include <string>

namespace zeltrona::document {

/// A program's turn to change a file, from the read that the change builds on to the replacement: of two
/// programs on one play, neither then undoes what the other has just written.
/// Waits:  up to a second for another program's turn, then goes on without one. It is a courtesy that only
///         programs of this kind know; a file that is missing or on a file system without locks has no turns.
/// Ends:   with the object, and with the program however it ends.
class FileTurn {
public:
    FileTurn() = default;
    static FileTurn take(const std::string& path);

private:
    explicit FileTurn(posix::Descriptor file) : m_file(std::move(file)) {}
    posix::Descriptor m_file;
};

} // namespace zeltrona::document
