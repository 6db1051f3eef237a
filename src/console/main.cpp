#include <iostream>

#include "console/application.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    return kelvor::RunConsole(argc, argv, std::cin, std::cout, std::cerr);
}
