// The lines that the trace log has around every call of the provider. Log readers search for these
// very texts.

#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

std::string invoking(const std::string& name) {
  return "Invoking " + name + " on Scc dll";
}

std::string fileLine(const char* file) {
  return std::string("\t") + file + "\n";
}

}  // namespace

void CMProperty::getPreSCCCallLogMsg(const std::string& name, long count, const char* const* files,
                                     std::string& out) {
  out.clear();
  if (files == nullptr) return;
  out = invoking(name) + " for the following files:\n";
  for (long i = 0; i < count; ++i) out += fileLine(files[i]);
}

void CMProperty::getPreSCCCallLogMsg(const std::string& name, const char* file, std::string& out) {
  out.clear();
  if (file != nullptr) out = invoking(name) + " for the following file:\n" + fileLine(file);
}

void CMProperty::getPreSCCCallLogMsg(const std::string& name, std::string& out) {
  out = invoking(name);
}

void CMProperty::getPostSCCCallLogMsg(const std::string& name, std::string& out) {
  out = "Returned from " + name + " on Scc dll";
}

void CMProperty::getSCCReturnLogMsg(const std::string& name, long code, std::string& out) {
  out = "Scc dll returned " + std::to_string(code) + " from " + name;
}

}  // namespace veldra
