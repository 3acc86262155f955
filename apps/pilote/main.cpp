#include <iostream>

#include "pilote/programme.h"

int main(int argc, char** argv) {
  return pilote::executer({argv + 1, argv + argc}, std::cin, std::cout, std::cerr);
}
