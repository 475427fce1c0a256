#pragma once

namespace zeltrona::render {

/// Calls `visit` with every whole number from `first`, a whole number itself, to `last`; with none when one
/// of them is no number. Both lie within the range of int where they are numbers at all and `first` <=
/// `last`.
template<class Visit> void visitWholes(double first, double last, Visit visit) {
    if (!(first <= last)) {
        return;
    }
    for (int at = static_cast<int>(first); at <= last; ++at) {
        visit(at);
    }
}

} // namespace zeltrona::render
