#pragma once

#include <string>
#include <vector>

#include "core/LogStore.h"

namespace cli {

/// What one build did, as its log tells it.
struct BuildReport {
  struct Piece {
    std::string meshFile;
    /// Shows a mesh that the scene already had.
    bool sharesMesh = false;
    /// Empty when no material was asked for.
    std::string material;
    bool materialFound = false;
    /// The material was in the scene already.
    bool sharesMaterial = false;
    /// It should have a row of the asset matrix and has none.
    bool withoutPlace = false;
  };

  std::vector<Piece> pieces;
};

/// Reads the messages that a build left, oldest first.
BuildReport reportOf(const std::vector<ZORVEL::LogEntry>& entries);

}  // namespace cli
