#include "desktop/application.h"

int main(int argc, char** argv) { return kelvor::RunDesktop(argc, argv); }
