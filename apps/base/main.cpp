#include <unistd.h>

#include <iostream>

#include "base/executer.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const std::vector<std::string> args(argv + 1, argv + argc);
  return base::executer(args, std::cin, std::cout, std::cerr, isatty(STDERR_FILENO) == 1);
}
