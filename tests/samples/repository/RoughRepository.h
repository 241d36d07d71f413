#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "samples/repository/SampleRepository.h"

namespace support {

/// Coarse and quick; the same otherwise as what people get.
samples::SampleOptions rough(std::uint64_t seed, int characters = 6);

/// The whole default repository, rough: written by two threads when it is first asked for, and removed when the program
/// ends.
const std::filesystem::path& roughRepository();

/// An element of a description.
struct Element {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::vector<Element> children;

  /// Empty when it is not there.
  std::string get(const std::string& attribute) const;
  std::vector<const Element*> all(const std::string& wanted) const;
  const Element& only(const std::string& wanted) const { return *all(wanted).at(0); }
};

/// The document element of the repository's description; without a name when it cannot be read.
Element readDescription(const std::filesystem::path& root);

std::string bytesOf(const std::filesystem::path& file);

}  // namespace support
