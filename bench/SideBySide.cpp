#include "bench/SideBySide.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace veldra::bench {

double secondsOf(const Work& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

namespace {
double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}
}  // namespace

double ratioOf(int rounds, const Work& ours, const Work& theirs) {
  return ratioOf(
      rounds, [] {}, ours, theirs);
}

double ratioOf(int rounds, const Work& prepare, const Work& ours, const Work& theirs) {
  prepare();
  ours();
  theirs();
  std::vector<double> ourTimes;
  std::vector<double> theirTimes;
  for (int round = 0; round < rounds; ++round) {
    prepare();
    if (round % 2 == 0) ourTimes.push_back(secondsOf(ours));
    theirTimes.push_back(secondsOf(theirs));
    if (round % 2 != 0) ourTimes.push_back(secondsOf(ours));
  }
  return median(ourTimes) / median(theirTimes);
}

double ratioOf(int rounds, const Side& ours, const Side& theirs) {
  const auto run = [](const Side& side) {
    side.prepare();
    return secondsOf(side.work);
  };
  run(ours);
  run(theirs);
  std::vector<double> ourTimes;
  std::vector<double> theirTimes;
  for (int round = 0; round < rounds; ++round) {
    if (round % 2 == 0) ourTimes.push_back(run(ours));
    theirTimes.push_back(run(theirs));
    if (round % 2 != 0) ourTimes.push_back(run(ours));
  }
  return median(ourTimes) / median(theirTimes);
}

}  // namespace veldra::bench
