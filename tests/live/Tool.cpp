#include "tests/live/Tool.h"

#include <sstream>
#include <stdexcept>

namespace veldra::live {

std::unique_ptr<Tool> makeTool(const std::string& pack, const Sandbox& sandbox) {
  for (const auto make :
       {makeSubversion, makeSubversionProvider, makeRcs, makeCvs, makeGit, makeMercurial}) {
    std::unique_ptr<Tool> tool = make(sandbox);
    if (tool->traits().pack == pack) return tool;
  }
  throw std::invalid_argument(pack);
}

std::string programOf(const std::string& pack) {
  return makeTool(pack, Sandbox())->traits().program;
}

std::string between(const std::string& text, const std::string& before, const std::string& after) {
  const std::size_t found = text.find(before);
  if (found == std::string::npos) return {};
  const std::size_t from = found + before.size();
  return text.substr(from, text.find(after, from) - from);
}

std::set<std::string> pieces(const std::string& text, char end) {
  std::istringstream in(text);
  std::set<std::string> result;
  for (std::string piece; std::getline(in, piece, end);) result.insert(piece);
  return result;
}

}  // namespace veldra::live
