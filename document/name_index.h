#pragma once

#include "document/name_match.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace zeltrona::document {

/// Finds an element of a list by its name in a step or two. It keeps no names, only each one's hash and place
/// in the list, so the caller hands in a function `nameAt(place)` for the comparison.
class NameIndex {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFFU;

    /// The place of the name, or kNone.
    template<typename NameAt> std::uint32_t find(std::string_view name, NameAt&& nameAt) const {
        return findHashed(nameHash(name), name, nameAt);
    }

    /// Notes a name that is not known yet. Gives whether it was not.
    template<typename NameAt> bool addNew(std::string_view name, std::uint32_t place, NameAt&& nameAt) {
        const std::uint32_t hash = nameHash(name);
        const bool isNew = findHashed(hash, name, nameAt) == kNone;
        if (isNew) {
            add({hash, place});
        }
        return isNew;
    }

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t place = kNone;
    };
    template<typename NameAt>
    std::uint32_t findHashed(std::uint32_t hash, std::string_view name, NameAt&& nameAt) const {
        if (m_slots.empty()) {
            return kNone;
        }
        for (std::size_t slot = hash & mask(); m_slots[slot].place != kNone; slot = (slot + 1) & mask()) {
            if (m_slots[slot].hash == hash && sameName(nameAt(m_slots[slot].place), name)) {
                return m_slots[slot].place;
            }
        }
        return kNone;
    }
    std::size_t mask() const { return m_slots.size() - 1; }
    void add(Slot entry);
    void put(Slot entry);
    void grow();

    std::vector<Slot> m_slots; ///< a power of two of them, at most three in four taken
    std::size_t m_count = 0;
};

} // namespace zeltrona::document
