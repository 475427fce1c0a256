#pragma once

namespace zeltrona::assets {

/// Makes the compiled-in files readable: pictures and icons under ":/art/NAME", the texts under
/// ":/strings/NAME". Call it once before the first of them is opened, in a program and in a test alike: a
/// linker may drop data that nothing refers to, and this call is the reference. Calling it again changes
/// nothing.
void initResources();

} // namespace zeltrona::assets
