#pragma once

#include <strclass.h>

class MaxIcon {
 public:
  virtual ~MaxIcon() = default;
};

/// An icon from a strip of bitmaps that the host looks up by name in its icon folders; the index counts from 1.
class MaxBmpFileIcon : public MaxIcon {
 public:
  MaxBmpFileIcon(const MCHAR* filePrefix, int index) : prefix_(filePrefix), index_(index) {}
  const MSTR& prefix() const { return prefix_; }
  int index() const { return index_; }

 private:
  MSTR prefix_;
  int index_;
};
