#pragma once

#include <string>
#include <vector>

#include "tests/support/SmallRepository.h"

namespace support {

/// The small repository with clothes and poses for every state in which one can be in the other: what it adds is named
/// after what is wrong with it.
class WearRepository {
 public:
  WearRepository();

  const TemporaryFolder& folder() const { return small_.folder(); }

 private:
  void addClothing(const std::string& attributes, bool hasStyle = true);
  void addPose(const std::string& attributes);
  void addMeshes(const std::string& clothing, const std::string& folder) const;
  void addPictures(const std::string& clothing) const;

  SmallRepository small_;
  std::vector<std::string> poses_ = {"p1", "p2"};
};

}  // namespace support
