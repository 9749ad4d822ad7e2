#include <exception>
#include <iostream>

#include "host/platform/Program.h"
#include "host/tandel/window/ShowWindow.h"

int main(int argc, char** argv) {
  using namespace veldra::host;
  addOwnFolderToPath();
  try {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    const tandel::ShowWindow show = tandel::windowsOfThisMachine(argc, argv);
    const tandel::TandelEnd end = tandel::runTandel(arguments, std::cout, std::cerr, show);
    return static_cast<int>(std::cout.flush() ? end : tandel::TandelEnd::Wrong);
  } catch (const std::exception& problem) {
    std::cerr << "Tandel: " << problem.what() << '\n';
    return static_cast<int>(tandel::TandelEnd::Wrong);
  }
}
