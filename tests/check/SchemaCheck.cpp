#include "tests/check/SchemaCheck.h"

#include <algorithm>
#include <regex>

namespace support {

namespace {

using Json = nlohmann::json;

class SchemaReader {
 public:
  explicit SchemaReader(const Json& root) : root_(root) {}

  void check(const Json& schema, const Json& value, const std::string& place) {
    for (const auto& [keyword, argument] : schema.items()) checkOne(schema, keyword, argument, value, place);
  }
  const std::string& errors() const { return errors_; }

 private:
  void checkOne(const Json& schema, const std::string& keyword, const Json& argument, const Json& value,
                const std::string& place) {
    if (keyword == "$ref")
      return check(root_.at(Json::json_pointer(argument.get<std::string>().substr(1))), value, place);
    if (keyword == "properties" || keyword == "additionalProperties") return;  // with the properties, below
    if (keyword == "type") {
      checkProperties(schema, value, place);
      return require(isOfType(argument, value), place, keyword);
    }
    if (keyword == "const") return require(value == argument, place, keyword);
    if (keyword == "enum") return require(std::count(argument.begin(), argument.end(), value) == 1, place, keyword);
    if (keyword == "minimum") return require(value >= argument, place, keyword);
    if (keyword == "minLength") return require(value.get<std::string>().size() >= argument, place, keyword);
    if (keyword == "pattern") {
      return require(std::regex_search(value.get<std::string>(), std::regex(argument.get<std::string>())), place,
                     keyword);
    }
    if (keyword == "required") {
      for (const Json& name : argument)
        require(value.contains(name.get<std::string>()), place, "required " + name.dump());
      return;
    }
    if (keyword == "items") {
      for (const Json& item : value) check(argument, item, place + "[]");
      return;
    }
    if (keyword == "propertyNames") {
      for (const auto& [name, unused] : value.items()) check(argument, name, place + '.' + name);
      return;
    }
    const bool isRemark = keyword == "title" || keyword == "description" || keyword == "$schema" || keyword == "$defs";
    require(isRemark, place, "unknown keyword " + keyword);
  }

  void checkProperties(const Json& schema, const Json& value, const std::string& place) {
    if (!value.is_object()) return;
    const Json known = schema.value("properties", Json::object());
    const Json others = schema.value("additionalProperties", Json(true));
    for (const auto& [name, property] : value.items()) {
      const std::string inside = place + '.' + name;
      if (known.contains(name)) {
        check(known[name], property, inside);
      } else if (others.is_object()) {
        check(others, property, inside);
      } else {
        require(others == true, inside, "additionalProperties");
      }
    }
  }

  static bool isOfType(const std::string& type, const Json& value) {
    if (type == "integer") return value.is_number_integer();
    return type == value.type_name();
  }

  void require(bool isMet, const std::string& place, const std::string& what) {
    if (!isMet) errors_ += place + ": " + what + '\n';
  }

  const Json& root_;
  std::string errors_;
};

}  // namespace

std::string schemaErrors(const Json& schema, const Json& value) {
  SchemaReader reader(schema);
  reader.check(schema, value, "");
  return reader.errors();
}

}  // namespace support
