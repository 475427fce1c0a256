#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace zeltrona::bench {

/// A play that nobody draws but that a file can hold: as many objects of one kind as go into its bytes, each
/// as costly as it can be made.
struct HostilePlay {
    std::string name;
    std::string bytes;
};

/// One of each kind, of `size` bytes give or take a key. Frame 1 holds the objects.
std::vector<HostilePlay> hostilePlays(std::size_t size);

} // namespace zeltrona::bench
