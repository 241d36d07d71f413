#include <exception>
#include <iostream>

#include "apps/reference/Documents.h"
#include "apps/support/ProgramStart.h"
#include "host/files/PrintableText.h"
#include "host/files/WholeFile.h"

int main(int argc, char** argv) try {
  apps::startProgram("zorvel-reference");
  if (argc != 2) {
    std::cerr
        << "usage: zorvel-reference FOLDER\nWrites what comes from the checker's tables into the documents there.\n";
    return 2;
  }
  for (const reference::Document& document : reference::documents(argv[1])) {
    const std::string error = host::writeWholeFile(document.file, document.text);
    if (error.empty()) continue;
    host::printLine(std::cerr, std::string("zorvel-reference: ") + error);
    return 1;
  }
  return 0;
} catch (const std::exception& error) {
  host::printLine(std::cerr, std::string("zorvel-reference: ") + error.what());
  return 1;
}
