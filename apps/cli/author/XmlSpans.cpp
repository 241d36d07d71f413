#include "apps/cli/author/XmlSpans.h"

#include <algorithm>

namespace cli {

namespace {

class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  std::optional<XmlSpan> run() {
    while (text_.find('<', at_) != std::string_view::npos) {
      at_ = text_.find('<', at_);
      if (skip("<!--", "-->") || skip("<![CDATA[", "]]>") || skip("<?", "?>")) continue;
      if (!isMarkup() || !readTag()) return std::nullopt;
    }
    const bool whole = open_.size() == 1 && open_.front().children.size() == 1;
    return whole ? std::optional(open_.front().children.front()) : std::nullopt;
  }

 private:
  bool beginsWith(std::string_view beginning) const { return text_.substr(at_, beginning.size()) == beginning; }

  bool skip(std::string_view beginning, std::string_view ending) {
    if (!beginsWith(beginning)) return false;
    const std::size_t found = text_.find(ending, at_ + beginning.size());
    at_ = found == std::string_view::npos ? text_.size() : found + ending.size();
    return true;
  }

  /// Of an element; what else begins with an exclamation mark declares a document type.
  bool isMarkup() const { return !beginsWith("<!"); }

  bool readTag() {
    const std::size_t begin = at_;
    at_ = endOfTag();
    if (text_[begin + 1] == '/') return close(begin);
    const bool closedAtOnce = text_[at_ - 2] == '/';
    open_.push_back({begin, at_, at_, at_, closedAtOnce, {}});
    return !closedAtOnce || hang();
  }

  /// Behind the '>', which in a quoted value is a character like any other.
  std::size_t endOfTag() const {
    char quote = 0;
    for (std::size_t i = at_; i < text_.size(); ++i) {
      const char c = text_[i];
      if (quote != 0) {
        if (c == quote) quote = 0;
      } else if (c == '"' || c == '\'') {
        quote = c;
      } else if (c == '>') {
        return i + 1;
      }
    }
    return text_.size();
  }

  bool close(std::size_t begin) {
    open_.back().contentEnd = begin;
    open_.back().end = at_;
    return hang();
  }

  /// Hangs the innermost element into the one around it.
  bool hang() {
    if (open_.size() < 2) return false;
    XmlSpan done = std::move(open_.back());
    open_.pop_back();
    open_.back().children.push_back(std::move(done));
    return true;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  /// The first stands around the document element.
  std::vector<XmlSpan> open_ = std::vector<XmlSpan>(1);
};

}  // namespace

std::optional<XmlSpan> findSpans(std::string_view text) { return Scanner(text).run(); }

}  // namespace cli
