#include <cstdio>
#include <exception>

#include "make_data/database_maker.h"

/// Usage: kelvor-make-data DATA HOME
int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: kelvor-make-data DATA HOME\n", stderr);
        return 2;
    }
    try {
        kelvor::MakeDatabases(argv[1], argv[2]);
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kelvor-make-data: %s\n", failure.what());
        return 1;
    }
}
