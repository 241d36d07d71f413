#pragma once

#include <windows.h>

using MCHAR = wchar_t;
using TCHAR = wchar_t;
#define _M(text) L##text
#define _T(text) L##text

/// In ticks, 4800 a second.
using TimeValue = int;
constexpr int TIME_TICKSPERSEC = 4800;

using SClass_ID = DWORD;
using PartID = DWORD;
using BlockID = short;
using ParamID = short;

class Class_ID {
 public:
  constexpr Class_ID() = default;
  constexpr Class_ID(ULONG a, ULONG b) : a_(a), b_(b) {}
  constexpr ULONG PartA() const { return a_; }
  constexpr ULONG PartB() const { return b_; }
  constexpr bool operator==(const Class_ID& other) const { return a_ == other.a_ && b_ == other.b_; }
  constexpr bool operator!=(const Class_ID& other) const { return !(*this == other); }
  constexpr bool operator<(const Class_ID& other) const { return a_ != other.a_ ? a_ < other.a_ : b_ < other.b_; }

 private:
  ULONG a_ = 0xFFFFFFFFU;
  ULONG b_ = 0xFFFFFFFFU;
};

class Interface_ID {
 public:
  constexpr Interface_ID() = default;
  constexpr Interface_ID(ULONG a, ULONG b) : a_(a), b_(b) {}
  constexpr ULONG PartA() const { return a_; }
  constexpr ULONG PartB() const { return b_; }
  constexpr bool operator==(const Interface_ID& other) const { return a_ == other.a_ && b_ == other.b_; }

 private:
  ULONG a_ = 0;
  ULONG b_ = 0;
};

enum IOResult { IO_OK = 0, IO_END = 1, IO_ERROR = 2 };
