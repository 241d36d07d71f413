#include "tests/samples/repository/RoughRepository.h"

#include <QXmlStreamReader>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "tests/support/TemporaryFolder.h"

namespace support {
namespace {

Element readElement(QXmlStreamReader& xml) {
  Element element;
  element.name = xml.name().toString().toStdString();
  for (const auto& attribute : xml.attributes()) {
    element.attributes[attribute.name().toString().toStdString()] = attribute.value().toString().toStdString();
  }
  while (xml.readNextStartElement()) element.children.push_back(readElement(xml));
  return element;
}

}  // namespace

samples::SampleOptions rough(std::uint64_t seed, int characters) {
  samples::SampleOptions options;
  options.characters = characters;
  options.seed = seed;
  options.coarseness = 5;
  options.previewSamples = 1;
  return options;
}

const std::filesystem::path& roughRepository() {
  static const TemporaryFolder folder;
  static const std::filesystem::path root = [] {
    samples::SampleOptions options = rough(1);
    options.threads = 2;
    const std::string error = samples::writeSampleRepository(folder.path() / "people", options);
    if (!error.empty()) throw std::runtime_error(error);
    return folder.path() / "people";
  }();
  return root;
}

std::string Element::get(const std::string& attribute) const {
  const auto found = attributes.find(attribute);
  return found == attributes.end() ? std::string() : found->second;
}

std::vector<const Element*> Element::all(const std::string& wanted) const {
  std::vector<const Element*> result;
  for (const Element& child : children) {
    if (child.name == wanted) result.push_back(&child);
  }
  return result;
}

Element readDescription(const std::filesystem::path& root) {
  const std::string text = bytesOf(root / "zorvel.xml");
  QXmlStreamReader xml(QByteArray::fromStdString(text));
  xml.readNextStartElement();
  Element element = readElement(xml);
  return xml.hasError() ? Element() : element;
}

std::string bytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace support
