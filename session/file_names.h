#pragma once

#include <QString>

#include <string>

namespace zeltrona::session {

/// Between the paths of the dialogs and the file system's own encoding, in which the session keeps the play's
/// path.
std::string toPath(const QString& name);
QString fromPath(const std::string& path);

} // namespace zeltrona::session
