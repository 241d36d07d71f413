#pragma once

#include <object.h>

#include <map>
#include <nlohmann/json.hpp>

#include "host/services/Ref.h"

namespace host {

/// Writes the objects of one file: each has its class and what its class is made from; one that several nodes share has
/// an "id" and is a "ref" from the second time on.
class ObjectWriter {
 public:
  nlohmann::ordered_json object(Object& object);

 private:
  std::map<const Object*, int> ids_;
};

/// Reads what ObjectWriter writes. Throws Unreadable or what the JSON library throws.
class ObjectReader {
 public:
  Ref<Object> object(const nlohmann::ordered_json& json);

 private:
  std::map<int, Ref<Object>> objects_;
};

}  // namespace host
