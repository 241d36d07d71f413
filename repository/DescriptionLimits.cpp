#include "repository/DescriptionLimits.h"

#include <cstring>
#include <cwchar>

#include "model/RepositoryFormat.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

const std::size_t MEBIBYTE = std::size_t{1} << 20;
// Of 512 MiB, less what a program takes without any description.
const std::size_t FREE_COST = 440 * MEBIBYTE;
// As an ordinary description needs, whose elements have a name, a folder and the like.
const std::size_t COST_OF_BYTE = 8;

const std::size_t ANY_ELEMENT = 300;
const std::size_t ANY_ATTRIBUTE = sizeof(XmlAttribute) + 24;

/// What one of them takes besides.
struct Extra {
  const wchar_t* element;
  std::size_t cost;
};
const Extra EXTRAS[] = {{ELEMENT_CHARACTER, 1500}, {ELEMENT_CLOTHING, 1000}, {ELEMENT_POSE, 300}};

std::size_t CostOf(const XmlAttribute& attribute) {
  // Once as it was read, and once as a text of the record.
  return ANY_ATTRIBUTE + (std::strlen(attribute.text) + 1) * (1 + sizeof(wchar_t));
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
  options.freeCost = FREE_COST;
  options.costOfByte = COST_OF_BYTE;
  return options;
}

std::size_t DescriptionLimits::CostOf(const XmlElement& element) {
  std::size_t cost = ANY_ELEMENT;
  for (const Extra& extra : EXTRAS) {
    if (std::wcscmp(extra.element, element.name) == 0) cost += extra.cost;
  }
  for (int i = 0; i < element.attributeCount; ++i) cost += ZORVEL::CostOf(element.attributes[i]);
  return cost;
}

}  // namespace ZORVEL
