#pragma once

#include <maxtypes.h>

#include <string>

/// The SDK's wide text. Never null: data() of an empty one is an empty text.
class WStr {
 public:
  WStr() = default;
  WStr(const wchar_t* text) : text_(text != nullptr ? text : L"") {}
  const wchar_t* data() const { return text_.c_str(); }
  operator const wchar_t*() const { return text_.c_str(); }
  int Length() const { return static_cast<int>(text_.size()); }
  bool isNull() const { return text_.empty(); }
  bool operator==(const WStr& other) const { return text_ == other.text_; }
  bool operator!=(const WStr& other) const { return text_ != other.text_; }
  bool operator<(const WStr& other) const { return text_ < other.text_; }
  WStr& operator+=(const wchar_t* text) {
    text_ += text;
    return *this;
  }
  WStr operator+(const wchar_t* text) const { return WStr(*this) += text; }

 private:
  std::wstring text_;
};

using MSTR = WStr;
using TSTR = WStr;
