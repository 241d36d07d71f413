#include "repository/DescriptionLimits.h"

#include <algorithm>
#include <cstring>
#include <cwchar>

#include "model/RepositoryFormat.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

const std::size_t MEBIBYTE = std::size_t{1} << 20;
// Of 512 MiB, less what a program takes without any description and what the checker keeps besides.
const std::size_t FREE_COST = 400 * MEBIBYTE;
// More than an ordinary description needs, whose elements have a name, a folder and the like.
const std::size_t COST_OF_BYTE = 7;
// Beyond this size nobody expects it to be done in half a gigabyte.
const std::size_t LARGE_FILE = 64 * MEBIBYTE;
const std::size_t COST_OF_BYTE_BEYOND = 24;

const std::size_t ANY_ELEMENT = 250;
const std::size_t ANY_FIELD = 24;
// A row of the asset matrix, of which there may be one for each asset in each pose. It has no record of its own.
const std::size_t ANY_ROW = 330;

/// What one of them takes besides.
struct Extra {
  const wchar_t* element;
  std::size_t cost;
};
const Extra EXTRAS[] = {{ELEMENT_CHARACTER, 1500}, {ELEMENT_CLOTHING, 1000}, {ELEMENT_POSE, 300}};
// Of a list that is a page of the window: all of it is described at once. Short ones come one after the other.
const int LONG_LIST = 2000;
const std::size_t ON_LONG_PAGE = 500;

std::size_t CostOf(const XmlAttribute& attribute) { return sizeof(attribute) + std::strlen(attribute.text) + 1; }

std::size_t CostOfField(const XmlAttribute& attribute) {
  return CostOf(attribute) + ANY_FIELD + (std::strlen(attribute.text) + 1) * sizeof(wchar_t);
}

/// It keeps its ids as texts, and of the others the numbers.
std::size_t CostOfRow(const XmlElement& row) {
  std::size_t cost = ANY_ROW;
  for (int i = 0; i < row.attributeCount; ++i) cost += ZORVEL::CostOf(row.attributes[i]);
  for (const wchar_t* id : {FIELD_POSE_ID, FIELD_MATRIX_ASSET_ID}) {
    if (const XmlAttribute* attribute = row.FindAttribute(id)) cost += CostOfField(*attribute);
  }
  return cost;
}

}  // namespace

XmlOptions DescriptionLimits::Get() {
  XmlOptions options;
  options.mostNames = 10000;
  options.mostAttributes = 100;
  options.longestName = 256;
  options.longestText = 4096;
  options.longestMarkup = MEBIBYTE;
  options.costOf = &CostOf;
  options.budgetFor = &BudgetFor;
  return options;
}

std::size_t DescriptionLimits::CostOf(const XmlElement& element) {
  if (std::wcscmp(element.name, ELEMENT_MATRIX) == 0) return CostOfRow(element);
  std::size_t cost = ANY_ELEMENT;
  for (const Extra& extra : EXTRAS) {
    if (std::wcscmp(extra.element, element.name) == 0) cost += extra.cost;
  }
  const bool isLong = element.parent && element.parent->childCount > LONG_LIST;
  if (isLong) cost += ON_LONG_PAGE;
  for (int i = 0; i < element.attributeCount; ++i) cost += CostOfField(element.attributes[i]);
  return cost;
}

std::size_t DescriptionLimits::BudgetFor(std::size_t bytes) {
  const std::size_t ordinary = COST_OF_BYTE * std::min(bytes, LARGE_FILE);
  const std::size_t beyond = bytes > LARGE_FILE ? COST_OF_BYTE_BEYOND * (bytes - LARGE_FILE) : 0;
  return std::max(FREE_COST, ordinary) + beyond;
}

}  // namespace ZORVEL
