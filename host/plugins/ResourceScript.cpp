#include "host/plugins/ResourceScript.h"

#include <charconv>
#include <optional>
#include <vector>

#include "host/files/Paths.h"

namespace host {

namespace {

struct Token {
  enum class Kind { Word, Text };
  Kind kind;
  /// A text without its quotes, its escapes as written.
  std::string_view text;
};

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ',' || c == '|'; }

/// Cuts a script into words and texts; lines of the preprocessor come as words like others, each '#' line ended by
/// "\n".
class Tokens {
 public:
  explicit Tokens(std::string_view script) : rest_(script) {}

  std::optional<Token> next() {
    skip();
    if (rest_.empty()) return std::nullopt;
    if (rest_.front() == '"') return text();
    if (rest_.front() == '{' || rest_.front() == '}') return Token{Token::Kind::Word, take(1)};
    std::size_t length = 1;
    while (length < rest_.size() && !isBlank(rest_[length]) &&
           std::string_view("\"{}").find(rest_[length]) == std::string_view::npos)
      ++length;
    return Token{Token::Kind::Word, take(length)};
  }

 private:
  std::string_view take(std::size_t length) {
    const std::string_view taken = rest_.substr(0, length);
    rest_.remove_prefix(std::min(length, rest_.size()));
    return taken;
  }

  void skip() {
    while (!rest_.empty()) {
      if (isBlank(rest_.front())) {
        take(1);
      } else if (rest_.substr(0, 2) == "//") {
        take(std::min(rest_.find('\n'), rest_.size()));
      } else if (rest_.substr(0, 2) == "/*") {
        const std::size_t end = rest_.find("*/", 2);
        take(end == std::string_view::npos ? rest_.size() : end + 2);
      } else {
        return;
      }
    }
  }

  /// A text that does not end goes to the end of its line.
  Token text() {
    std::size_t at = 1;
    while (at < rest_.size() && rest_[at] != '\n') {
      const char following = at + 1 < rest_.size() ? rest_[at + 1] : '\0';
      if (rest_[at] == '"' && following != '"') break;
      const bool pair = following != '\n' && following != '\0' && (rest_[at] == '"' || rest_[at] == '\\');
      at += pair ? 2 : 1;
    }
    const std::string_view taken = take(at + 1).substr(1);
    const bool ended = !taken.empty() && taken.size() == at && taken.back() == '"';
    return {Token::Kind::Text, ended ? taken.substr(0, taken.size() - 1) : taken};
  }

  std::string_view rest_;
};

std::optional<std::uint32_t> number(std::string_view word) {
  const bool hexadecimal = word.size() > 2 && word[0] == '0' && (word[1] == 'x' || word[1] == 'X');
  if (hexadecimal) word.remove_prefix(2);
  if (!word.empty() && (word.back() == 'L' || word.back() == 'l')) word.remove_suffix(1);
  std::uint32_t value = 0;
  const auto read = std::from_chars(word.data(), word.data() + word.size(), value, hexadecimal ? 16 : 10);
  return read.ec == std::errc() && read.ptr == word.data() + word.size() ? std::optional(value) : std::nullopt;
}

/// How many of the characters belong to a hexadecimal escape's number, four at most.
std::size_t hexDigits(std::wstring_view text) {
  return std::min<std::size_t>(4, std::min(text.find_first_not_of(L"0123456789abcdefABCDEF"), text.size()));
}

std::wstring withoutEscapes(std::wstring_view text) {
  std::wstring result;
  while (!text.empty()) {
    const wchar_t first = text.front();
    const wchar_t second = text.size() > 1 ? text[1] : L'\0';
    std::size_t used = 2;
    if (first == L'"' && second == L'"') {
      result += L'"';
    } else if (first != L'\\' || second == L'\0') {
      result += first;
      used = 1;
    } else if (second == L'x' && hexDigits(text.substr(2)) > 0) {
      const std::size_t digits = hexDigits(text.substr(2));
      result += static_cast<wchar_t>(std::stoul(std::wstring(text.substr(2, digits)), nullptr, 16));
      used += digits;
    } else {
      const std::size_t known = std::wstring_view(L"nrt").find(second);
      result += known == std::wstring_view::npos ? second : L"\n\r\t"[known];
    }
    text.remove_prefix(used);
  }
  return result;
}

class Reader {
 public:
  explicit Reader(std::string_view script) : tokens_(script) {}

  std::map<std::uint32_t, std::wstring> read() {
    while (const auto token = tokens_.next()) {
      if (token->kind != Token::Kind::Word) continue;
      if (token->text == "#define") readDefine();
      if (token->text == "STRINGTABLE") readTable();
    }
    return std::move(strings_);
  }

 private:
  void readDefine() {
    const auto name = tokens_.next();
    const auto value = tokens_.next();
    if (!name || !value) return;
    if (const auto id = number(value->text)) defines_[name->text] = *id;
  }

  std::optional<std::uint32_t> idOf(std::string_view word) const {
    const auto defined = defines_.find(word);
    return defined != defines_.end() ? std::optional(defined->second) : number(word);
  }

  void readTable() {
    // Options such as DISCARDABLE or LANGUAGE stand before the entries.
    auto token = tokens_.next();
    while (token && token->text != "BEGIN" && token->text != "{") token = tokens_.next();
    while ((token = tokens_.next())) {
      if (token->kind == Token::Kind::Word && (token->text == "END" || token->text == "}")) return;
      const auto id = token->kind == Token::Kind::Word ? idOf(token->text) : std::nullopt;
      const auto text = tokens_.next();
      if (!id || !text || text->kind != Token::Kind::Text) return;
      strings_[*id] = withoutEscapes(toWide(text->text));
    }
  }

  Tokens tokens_;
  std::map<std::string_view, std::uint32_t> defines_;
  std::map<std::uint32_t, std::wstring> strings_;
};

}  // namespace

std::map<std::uint32_t, std::wstring> stringTable(std::string_view script) { return Reader(script).read(); }

}  // namespace host
