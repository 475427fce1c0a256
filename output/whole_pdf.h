#pragma once

#include <QByteArray>

namespace zeltrona::output {

/// Whether these are all the bytes of a PDF file, from its head to its end mark, none lost between: the place
/// that the end names as that of the table of objects is where the table stands.
/// Reason: the toolkit's PDF writer does not look whether the disk took what it wrote, and says on a full
///         one that all went well.
bool isWholePdf(const QByteArray& bytes);

} // namespace zeltrona::output
