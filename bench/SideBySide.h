#pragma once

#include <functional>

namespace veldra::bench {

using Work = std::function<void()>;

/// Seconds that one call of `work` takes.
double secondsOf(const Work& work);

/// The median time of `ours` divided by that of `theirs`. The two run in turn, `rounds` times each,
/// after one round that does not count; who goes first changes every round.
double ratioOf(int rounds, const Work& ours, const Work& theirs);
/// The same; `prepare` runs before every round and does not count.
double ratioOf(int rounds, const Work& prepare, const Work& ours, const Work& theirs);

}  // namespace veldra::bench
