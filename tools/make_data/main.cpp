#include <cstdio>
#include <exception>
#include <string_view>

#include "make_data/database_maker.h"
#include "make_data/table_files.h"

/// Usage: kelvor-make-data DATA HOME    makes the databases of HOME
///        kelvor-make-data --list HOME  lists there what is installed of a finished home
///        kelvor-make-data --align DATA aligns the columns of the text tables
int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs(
            "usage: kelvor-make-data DATA HOME\n       kelvor-make-data --list HOME\n       kelvor-make-data "
            "--align DATA\n",
            stderr);
        return 2;
    }
    try {
        if (argv[1] == std::string_view("--align")) {
            kelvor::AlignTables(argv[2]);
        } else if (argv[1] == std::string_view("--list")) {
            kelvor::WriteShippedList(argv[2]);
        } else {
            kelvor::MakeDatabases(argv[1], argv[2]);
        }
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "kelvor-make-data: %s\n", failure.what());
        return 1;
    }
}
