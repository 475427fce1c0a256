#pragma once

#include "tools/zpf/arguments.h"

#include <QString>

#include <initializer_list>
#include <set>
#include <string>

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

    /// Two plays of one name would write over each other: gives the reason to refuse the second.
    std::string claim(const QString& play);
    /// The play's name without its folder and last ending.
    static QString baseOf(const QString& play);

private:
    QString m_name;
    bool m_isFile = false;
    std::size_t m_plays = 0;
    std::set<QString> m_claimed;
};

} // namespace zeltrona::zpf
