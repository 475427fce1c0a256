#pragma once

namespace zeltrona::zpf {

/// What the program tells the script that started it.
enum class ExitCode : int {
    Done = 0,
    Found = 1, ///< `check` has found something
    Usage = 2, ///< the command line makes no sense; nothing was done
    Failed = 3 ///< a play could not be read, or a result could not be written
};

/// The worse of the two.
constexpr ExitCode worse(ExitCode a, ExitCode b) {
    return static_cast<int>(a) > static_cast<int>(b) ? a : b;
}

} // namespace zeltrona::zpf
