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

/// Where a dialog that asks for a name to save under begins: in the folder where it stands, or in playsFolder
/// when that takes no files, as after a look at the sample plays of an installed program.
QString folderToSaveIn(const QString& standing);

/// A file dialog that is given no folder begins in the current one. Where the program folder cannot be
/// written to, the user's own folder becomes that; elsewhere nothing changes.
void beginInOwnPlays();

} // namespace zeltrona::platform
