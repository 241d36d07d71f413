#pragma once

#include <string>

namespace reference {

/// How the elements of a description stand in each other, one in each line.
std::string elementTree();

/// A section for every element, with a table of its attributes.
std::string elementSections();

}  // namespace reference
