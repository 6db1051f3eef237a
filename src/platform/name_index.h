#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/text.h"

namespace kelvor {

/// Finds places in a list by name, without regard to case. The list keeps the names, and is asked for those
/// that may be meant: so a look-up touches one small table and the name that it finds, which counts where
/// each value of a project is read by its name. No two names are equal.
class NameIndex {
  public:
    /// Makes room for so many names at once.
    void Reserve(std::size_t count) {
        std::size_t size = slots_.empty() ? kFewestSlots : slots_.size();
        while (size < count * kSlotsOfName) size *= 2;
        if (size > slots_.size()) Spread(size);
    }

    /// The next name of the list, which has the place that follows the last one's.
    void Add(std::string_view name) {
        Reserve(count_ + 1);
        Put({HashOf(name), ++count_});
    }

    void Clear() {
        slots_.clear();
        count_ = 0;
    }

    /// The place, from 0. `nameAt` gives the name at a place.
    template <typename NameAt>
    [[nodiscard]] std::optional<std::uint32_t> Find(std::string_view name, NameAt nameAt) const {
        if (slots_.empty()) return std::nullopt;
        const std::uint32_t hash = HashOf(name);
        for (std::size_t at = hash & Mask(); slots_[at].next != 0; at = (at + 1) & Mask()) {
            const Slot& slot = slots_[at];
            if (slot.hash == hash && NameEqual()(nameAt(slot.next - 1), name)) return slot.next - 1;
        }
        return std::nullopt;
    }

  private:
    static constexpr std::size_t kFewestSlots = 16;
    static constexpr std::size_t kSlotsOfName = 2;  // at most every other one is taken

    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t next = 0;  // the place behind the name's; 0: no name is here
    };

    static std::uint32_t HashOf(std::string_view name) {
        return static_cast<std::uint32_t>(NameHash()(name));
    }

    [[nodiscard]] std::size_t Mask() const { return slots_.size() - 1; }

    void Put(Slot slot) {
        std::size_t at = slot.hash & Mask();
        while (slots_[at].next != 0) at = (at + 1) & Mask();
        slots_[at] = slot;
    }

    void Spread(std::size_t size) {
        const std::vector<Slot> former = std::exchange(slots_, std::vector<Slot>(size));
        for (const Slot& slot : former) {
            if (slot.next != 0) Put(slot);
        }
    }

    std::vector<Slot> slots_;  // a power of two
    std::uint32_t count_ = 0;
};

}  // namespace kelvor
