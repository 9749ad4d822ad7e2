#pragma once

#include <optional>
#include <vector>

#include "cm/ui/logic/ItemView.h"

namespace veldra::test {

/// A window whose user has selected items and fills in what the test prepared.
class ScriptedItemView : public ItemView {
 public:
  CMArchiveItemList selected;
  CMArchiveItemList all;
  std::optional<CommandOptions> answer = CommandOptions{};
  std::optional<VersionChoice> versions = VersionChoice{};
  std::vector<OptionPresets> asked;
  int running = 0;
  int refreshes = 0;

  CMArchiveItemList CmSelectedItems() override { return selected; }
  CMArchiveItemList allItems() override { return all; }
  std::optional<CommandOptions> askOptions(const OptionPresets& presets) override {
    asked.push_back(presets);
    return answer;
  }
  std::optional<VersionChoice> askVersions() override { return versions; }
  void commandStarts() override { ++running; }
  void commandEnds() override { --running; }
  void refreshItems() override { ++refreshes; }
};

}  // namespace veldra::test
