#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace veldra {

/// What is known of objects while a model is walked through: their places in a list, and whether
/// the walk has met them. A table without a node per object, since models have many.
class ObjectPlaces {
 public:
  static constexpr std::uint32_t None = static_cast<std::uint32_t>(-1);

  struct Known {
    const void* object = nullptr;
    std::uint32_t place = None;
    bool isMet = false;
  };

  explicit ObjectPlaces(std::size_t expected) {
    std::size_t size = 16;
    while (size < 2 * expected) size *= 2;
    m_slots.resize(size);
  }

  /// What is known of the object; until it is first asked for, nothing is. The reference holds
  /// until the next call.
  Known& of(const void* object) {
    if (2 * m_count >= m_slots.size()) grow();
    Known& slot = slotOf(object);
    if (slot.object == nullptr) {
      slot.object = object;
      ++m_count;
    }
    return slot;
  }

 private:
  Known& slotOf(const void* object) {
    // Objects lie side by side, so that their addresses differ in the middle.
    std::size_t at = reinterpret_cast<std::uintptr_t>(object) * 0x9E3779B97F4A7C15U >> 20;
    while (true) {
      Known& slot = m_slots[at & (m_slots.size() - 1)];
      if (slot.object == nullptr || slot.object == object) return slot;
      ++at;
    }
  }

  void grow() {
    std::vector<Known> former(m_slots.size() * 2);
    former.swap(m_slots);
    for (const Known& known : former) {
      if (known.object != nullptr) slotOf(known.object) = known;
    }
  }

  std::vector<Known> m_slots;
  std::size_t m_count = 0;
};

}  // namespace veldra
