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

/// One of two things that are compared.
struct Side {
  Work prepare;  ///< Runs before each `work` and does not count.
  Work work;
};
/// The same for two that must not find what the other has left.
double ratioOf(int rounds, const Side& ours, const Side& theirs);

}  // namespace veldra::bench
