#pragma once

#include "tools/zpf/arguments.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>

namespace zeltrona::zpf {

/// Where the option --output leads: a folder for the results of all plays, or one file for one play.
class OutputTarget {
public:
    /// `endings` are those of names that mean a file, as ".pdf"; any other name is a folder.
    OutputTarget(const Arguments& arguments, std::initializer_list<const char*> endings);

    /// Empty when the command line makes sense.
    std::string fault() const;

    /// Whether the name is that of a file.
    bool isFile() const { return m_isFile; }
    QString name() const { return m_name; }

    /// Makes the folder; gives the reason of a failure.
    static std::string makeFolder(const QString& folder);
    /// Why nothing may be written under this name: a play that was named would be lost, perhaps through a
    /// link. Empty when nothing stands against it.
    std::string refusal(const QString& result) const;
    /// Writes a result whole or not at all, over what is there; gives the reason of a failure, and of a
    /// refusal.
    std::string write(const QString& result, const QByteArray& bytes) const;

    /// Two plays of one name would write over each other: gives the reason to refuse the second.
    std::string claim(const QString& play);
    /// The play's name without its folder and last ending.
    static QString baseOf(const QString& play);

private:
    using FileIdentity = std::pair<std::uint64_t, std::uint64_t>; ///< device and number in it

    QString m_name;
    bool m_isFile = false;
    std::size_t m_plays = 0;
    std::set<QString> m_claimed;
    std::set<FileIdentity> m_playFiles;
};

} // namespace zeltrona::zpf
