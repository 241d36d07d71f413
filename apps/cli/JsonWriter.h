#pragma once

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>

namespace cli {

/// Writes JSON as it goes, indented like any other: what is written is not kept.
class JsonWriter {
 public:
  explicit JsonWriter(std::ostream& out) : out_(out) {}

  void beginObject() { begin('{'); }
  void endObject() { end('}'); }
  void beginArray() { begin('['); }
  void endArray() { end(']'); }
  /// The next value is that of the key.
  void key(const char* name);
  void value(const nlohmann::json& value);

  template <class Value>
  void member(const char* name, const Value& text) {
    key(name);
    value(text);
  }

 private:
  void begin(char bracket);
  void end(char bracket);
  /// Before a value or a key.
  void separate();
  void startLine();

  std::ostream& out_;
  std::string indentation_;
  bool isFirst_ = true;
  bool hasKey_ = false;
};

}  // namespace cli
