// quorconv: probe records in INI files, from the command line.

#include "apps/quorconv/CommandLine.h"

int main(int argc, char** argv) { return quorconv::RunCommandLine(argc, argv); }
