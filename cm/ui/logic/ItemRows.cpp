#include "cm/ui/logic/ItemRows.h"

#include <algorithm>
#include <numeric>

namespace veldra {

std::vector<std::size_t> ItemRows::orderOf(int column) const {
  std::vector<std::string> keys;
  keys.reserve(size());
  for (std::size_t row = 0; row < size(); ++row) keys.push_back(cell(row, column));
  std::vector<std::size_t> order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
  return order;
}

}  // namespace veldra
