#include "apps/cli/JsonWriter.h"

namespace cli {

namespace {

std::string textOf(const nlohmann::json& value) {
  return value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace

void JsonWriter::key(const char* name) {
  separate();
  out_ << textOf(name) << ": ";
  hasKey_ = true;
}

void JsonWriter::value(const nlohmann::json& value) {
  separate();
  out_ << textOf(value);
}

void JsonWriter::begin(char bracket) {
  separate();
  out_ << bracket;
  indentation_ += "  ";
  isFirst_ = true;
}

void JsonWriter::end(char bracket) {
  indentation_.resize(indentation_.size() - 2);
  if (!isFirst_) startLine();
  out_ << bracket;
  isFirst_ = false;
}

void JsonWriter::separate() {
  if (!hasKey_ && !isFirst_) out_ << ',';
  if (!hasKey_ && !indentation_.empty()) startLine();
  hasKey_ = false;
  isFirst_ = false;
}

void JsonWriter::startLine() { out_ << '\n' << indentation_; }

}  // namespace cli
