#pragma once

#include <string>
#include <vector>

namespace zeltrona::tests {

/// Stands between the program and the operating system's file calls and makes one of them fail. It is linked
/// into the test program, whose own definitions of the calls come before the system's.

/// Notes the names of the calls from now on, in their order.
void startCounting();
std::vector<std::string> stopCounting();

/// The call of this place in the order, from 0, fails with this error number, once. EINTR comes back three
/// times.
void failCall(int place, int error);
/// Writes take at most so many bytes at a time.
void shortenWrites(long bytes);
/// Writes take nothing and report no error, a hundred times; who goes on after that is let through.
void emptyWrites();
/// All goes its usual way again. Gives whether the failure, or an empty write, has come to pass.
bool endFailures();

} // namespace zeltrona::tests
