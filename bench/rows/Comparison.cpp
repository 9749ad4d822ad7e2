#include <cstdio>
#include <cstdlib>
#include <nlohmann/json.hpp>

#include "bench/BenchProject.h"
#include "bench/Rows.h"
#include "bench/SideBySide.h"
#include "host/compare/FileComparison.h"
#include "host/platform/AtomicFile.h"

namespace veldra::bench {

namespace {

constexpr std::size_t ElementCount = 50'000;
constexpr std::size_t Header = sizeof("// Veldra component\n") - 1;

/// A unit file; every thousandth element differs from one revision to the next.
std::string unitFile(int revision) {
  std::string text =
      "// Veldra component\n{\n  \"format\": 1,\n  \"type\": \"Component\",\n"
      "  \"name\": \"Large\",\n  \"id\": \"large\",\n  \"elements\": [";
  for (std::size_t i = 0; i < ElementCount; ++i) {
    const std::string number = std::to_string(i);
    const std::string value = i % 1000 == 0 ? std::to_string(revision) : "0";
    text += (i == 0 ? "" : ",") + std::string("\n    {\n      \"type\": \"Attribute\",\n") +
            "      \"name\": \"attribute " + number + "\",\n      \"id\": \"4f0c" + number +
            "\",\n      \"attributes\": {\n        \"unit\": \"ml/s\",\n        \"value\": \"" +
            value + "\"\n      }\n    }";
  }
  return text + "\n  ]\n}\n";
}

void parse(const std::string& file) {
  const auto bytes = host::readFile(file, host::ModelFileLimit);
  if (!bytes || nlohmann::json::parse(bytes->substr(Header)).size() != 5) std::abort();
}

}  // namespace

double comparisonAgainstDiff() {
  const BenchProject project(1, "/bin/true");
  const std::string first = (project.folder() / "first").string();
  const std::string second = (project.folder() / "second").string();
  writeFile(first, unitFile(1));
  writeFile(second, unitFile(2));
  const std::string diff = "diff '" + first + "' '" + second + "' >/dev/null";
  return ratioOf(
      9,
      [&] {
        const auto comparison = host::compare::FileComparison::read(first, second);
        if (!comparison || comparison->size() != ElementCount / 1000) std::abort();
      },
      [&] {
        if (std::system(diff.c_str()) == 0) std::abort();
        parse(first);
        parse(second);
      });
}

}  // namespace veldra::bench
