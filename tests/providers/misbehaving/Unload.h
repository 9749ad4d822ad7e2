#pragma once

namespace veldra::test {

/// Takes away the code that runs: the return from here leads nowhere.
void unloadMyself();

}  // namespace veldra::test
