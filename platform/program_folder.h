#pragma once

#include <QString>

namespace zeltrona::platform {

/// The folder that holds the program, its `Files` and `ZP.hlp`; no closing separator.
QString programFolder();

/// Where the file dialogs begin: `Files` of the program folder; where that cannot be written to, the user's
/// own folder `Zeltrona` among the documents, made if need be, with a link to the sample plays in it.
QString playsFolder();

/// As playsFolder, for a program folder and a folder of documents.
QString playsFolderOf(const QString& program, const QString& documents);

/// A file dialog that is given no folder begins in the current one. Where the program folder cannot be
/// written to, the user's own folder becomes that; elsewhere nothing changes.
void beginInOwnPlays();

} // namespace zeltrona::platform
