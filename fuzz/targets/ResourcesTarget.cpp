#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "host/plugins/ResourceScript.h"

void fuzz::resources(std::string_view bytes) {
  std::size_t characters = 0;
  for (const auto& entry : host::stringTable(bytes)) characters += entry.second.size();
  require(characters <= bytes.size(), "a script gives no more than it holds");
}
