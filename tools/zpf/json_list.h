#pragma once

#include <ostream>
#include <string_view>

namespace zeltrona::zpf {

/// Prints objects as one JSON array, each on a line of its own; nothing when it is not wanted.
class JsonList {
public:
    JsonList(std::ostream& out, bool wanted) : m_out(out), m_wanted(wanted) {
        if (m_wanted) {
            m_out << '[';
        }
    }
    ~JsonList() {
        if (m_wanted) {
            m_out << "]\n";
        }
    }
    JsonList(const JsonList&) = delete;
    JsonList& operator=(const JsonList&) = delete;

    void add(std::string_view object) {
        m_out << m_separator << object;
        m_separator = ",\n ";
    }

private:
    std::ostream& m_out;
    bool m_wanted;
    std::string_view m_separator;
};

} // namespace zeltrona::zpf
