#include "document/name_index.h"

#include <utility>

namespace zeltrona::document {

void NameIndex::add(Slot entry) {
    if ((m_count + 1) * 4 > m_slots.size() * 3) {
        grow();
    }
    put(entry);
    ++m_count;
}

void NameIndex::put(Slot entry) {
    std::size_t slot = entry.hash & mask();
    while (m_slots[slot].place != kNone) {
        slot = (slot + 1) & mask();
    }
    m_slots[slot] = entry;
}

void NameIndex::grow() {
    constexpr std::size_t kFirst = 16;
    const std::vector<Slot> old = std::exchange(m_slots, {});
    m_slots.resize(old.empty() ? kFirst : old.size() * 2);
    for (const Slot& entry : old) {
        if (entry.place != kNone) {
            put(entry);
        }
    }
}

} // namespace zeltrona::document
