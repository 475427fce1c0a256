#pragma once

#include "tools/zpf/check/check_desk.h"
#include "tools/zpf/check/key_shape.h"

#include <cstddef>

namespace zeltrona::zpf {

/// Checks Ball3, Triangle3, Shadow3, Line3 or txtPic3. `readable` is the length of the list as it is read: an
/// index from there on is lost.
void checkListKey(const CheckDesk& desk, std::string_view key, const FrameKey& shape, std::size_t readable);

/// Checks the fields of off3curve or Ball3curve.
void checkCurveFields(const CheckDesk& desk, std::string_view key);

} // namespace zeltrona::zpf
