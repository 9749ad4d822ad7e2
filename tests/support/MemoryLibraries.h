#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>

#include "cm/host/ILibraries.h"

namespace veldra::test {

/// Libraries that are tables of functions of the test program itself.
class MemoryLibraries : public ILibraries {
 public:
  using Functions = std::map<std::string, EntryPoint>;

  /// What lies under which path. Everything else cannot be loaded.
  std::map<std::string, Functions> libraries;
  int loads = 0;
  /// How many are loaded now. A library may outlive the host that loaded it.
  std::shared_ptr<int> loaded = std::make_shared<int>(0);

  std::unique_ptr<ILibrary> load(const std::string& path, std::string& errorText) override {
    ++loads;
    const auto found = libraries.find(path);
    if (found != libraries.end()) return std::make_unique<Table>(found->second, loaded);
    errorText = "there is no library " + path;
    return nullptr;
  }

 private:
  class Table : public ILibrary {
   public:
    Table(Functions functions, std::shared_ptr<int> loaded)
        : m_functions(std::move(functions)), m_loaded(std::move(loaded)) {
      ++*m_loaded;
    }
    ~Table() override { --*m_loaded; }
    EntryPoint find(const char* name) const override {
      const auto found = m_functions.find(name);
      return found == m_functions.end() ? nullptr : found->second;
    }

   private:
    Functions m_functions;
    std::shared_ptr<int> m_loaded;
  };
};

}  // namespace veldra::test
