#include "fuzz/Meshes.h"
#include "fuzz/Targets.h"

void fuzz::obj(std::string_view bytes) { readAndUseMesh(bytes); }
