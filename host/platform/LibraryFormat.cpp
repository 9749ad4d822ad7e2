#include "host/platform/LibraryFormat.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "host/platform/NumberedText.h"

namespace veldra::host {

namespace {

// The portable executable format: an offset in the old header leads to the new one.
constexpr std::size_t OffsetOfNewHeader = 0x3C;
constexpr std::string_view OldMark = "MZ";
constexpr std::string_view NewMark("PE\0\0", 4);

/// What they are for, by the number of the processor.
constexpr std::array<NumberedText<std::uint32_t>, 4> ProgramsOf = {{
    {0x014C, "32-bit programs"},
    {0x01C4, "32-bit programs of ARM processors"},
    {0x8664, "64-bit programs"},
    {0xAA64, "64-bit programs of ARM processors"},
}};

#if defined(__aarch64__) || defined(_M_ARM64)
constexpr std::uint32_t OwnMachine = 0xAA64;
#elif defined(__i386__) || defined(_M_IX86)
constexpr std::uint32_t OwnMachine = 0x014C;
#else
constexpr std::uint32_t OwnMachine = 0x8664;
#endif

/// A number of `size` bytes, the lowest first.
std::uint32_t numberAt(std::string_view head, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = (number << 8U) | static_cast<unsigned char>(head[at + i]);
  }
  return number;
}

/// The number of the processor; 0 when the head is that of no library.
std::uint32_t machineOf(std::string_view head) {
  if (!head.starts_with(OldMark) || head.size() < OffsetOfNewHeader + 4) return 0;
  const std::size_t start = numberAt(head, OffsetOfNewHeader, 4);
  if (start >= head.size() || !head.substr(start).starts_with(NewMark)) return 0;
  const std::size_t machine = start + NewMark.size();
  return machine + 2 <= head.size() ? numberAt(head, machine, 2) : 0;
}

const char* programsOf(std::uint32_t machine) {
  const char* const known = textOf(ProgramsOf, machine);
  return known != nullptr ? known : "programs of another kind of processor";
}

}  // namespace

std::optional<std::string> foreignLibraryProblem(const std::string& path, std::string_view head) {
  const std::uint32_t machine = machineOf(head);
  if (machine == 0 || machine == OwnMachine) return std::nullopt;
  return "The library '" + path + "' was made for " + programsOf(machine) +
         " and cannot be loaded into this one, which is for " + programsOf(OwnMachine) +
         ". Install the edition of it for " + programsOf(OwnMachine) + ".";
}

}  // namespace veldra::host
