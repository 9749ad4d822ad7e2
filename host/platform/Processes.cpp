#include "host/platform/Processes.h"

namespace veldra::host {

void Processes::setChildEnvironment(std::map<std::string, std::string> variables) {
  m_settings.environment = std::move(variables);
}

void Processes::setWatch(ChildWatch* watch) {
  m_settings.watch = watch;
}

void Processes::setOutputLimit(std::size_t bytes) {
  m_settings.outputLimit = bytes;
}

}  // namespace veldra::host
