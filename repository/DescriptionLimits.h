#pragma once

#include "repository/XmlDocument.h"

namespace ZORVEL {

/// What a repository's description may be, the same for the window and for every program: what an author can check, an
/// artist can load. It may be as large as anybody wants, as long as it is about something: what its elements cost, in
/// memory and thus in time, is bounded by the file's size, and by less than half a gigabyte where that is ordinary.
namespace DescriptionLimits {

/// For reading one.
XmlOptions Get();

/// Memory that the element takes with what comes from it: its part of the tree, its record, and what the checker or the
/// window keeps of it until they are done. Measured, and rounded up.
std::size_t CostOf(const XmlElement& element);

/// What all elements of a file of so many bytes may cost.
std::size_t BudgetFor(std::size_t bytes);

}  // namespace DescriptionLimits

}  // namespace ZORVEL
