#include "check/explain/Elements.h"

#include <algorithm>

#include "apps/support/ModelText.h"
#include "host/files/Paths.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using ZORVEL::XmlElement;

namespace {

/// Their "id" is another element's, or nobody's.
bool isReference(std::optional<EntryKind> kind) {
  return kind == EntryKind::Exclude || kind == EntryKind::MandatoryAsset || kind == EntryKind::Select ||
         kind == EntryKind::MatrixRow;
}

std::string idIn(const XmlElement& element) {
  const ZORVEL::XmlAttribute* id = element.FindAttribute(ZORVEL::RepositoryFormat::FIELD_ID);
  return id != nullptr ? id->text : "";
}

}  // namespace

Elements::Elements(const Survey& survey, const std::string& id) : survey_(survey), id_(id) {
  noteRecords();
  const XmlElement* root = survey.findings.description().root();
  if (root != nullptr) walk(*root, EntryKind::Repository);
  std::sort(ids_.begin(), ids_.end());
  ids_.erase(std::unique(ids_.begin(), ids_.end()), ids_.end());
}

void Elements::noteRecords() {
  for (const DataContainer* shared : apps::globalAssets()) {
    note(shared, nullptr, nullptr);
    for (const DataContainer* material : apps::childrenOf(*shared)) note(material, nullptr, shared);
  }
  for (const CharacterData* character : apps::characters()) {
    note(character, character, nullptr);
    for (const ZORVEL::CONTAINER list : {ZORVEL::SKINS, ZORVEL::POSES, ZORVEL::CATEGORIES}) {
      for (const DataContainer* record : apps::elementsOf(*character, list)) note(record, character, nullptr);
    }
    for (const DataContainer* clothing : apps::elementsOf(*character, ZORVEL::CLOTH)) {
      note(clothing, character, nullptr);
      for (const DataContainer* style : apps::clothChildren(*clothing, ZORVEL::MATERIAL)) {
        note(style, character, clothing);
      }
    }
    for (const DataContainer* asset : apps::elementsOf(*character, ZORVEL::ASSETS)) {
      note(asset, character, nullptr);
      for (const DataContainer* material : apps::childrenOf(*asset)) note(material, character, asset);
    }
  }
}

void Elements::note(const DataContainer* record, const CharacterData* character, const DataContainer* owner) {
  const XmlElement* source = survey_.elementOf(record);
  if (source != nullptr && idIn(*source) == id_) records_[source] = {source, {}, record, character, owner};
}

void Elements::take(const XmlElement& element, std::optional<EntryKind> kind) {
  const std::string id = idIn(element);
  if (ids_.empty() || ids_.back() != id) ids_.push_back(id);
  if (id != id_) return;
  const auto found = records_.find(&element);
  Element one = found != records_.end() ? found->second : Element();
  one.source = &element;
  one.kind = kind;
  elements_.push_back(one);
}

void Elements::walk(const XmlElement& element, std::optional<EntryKind> kind) {
  if (!isReference(kind) && element.FindAttribute(ZORVEL::RepositoryFormat::FIELD_ID) != nullptr) {
    take(element, kind);
  }
  for (const XmlElement* child = element.firstChild; child != nullptr; child = child->nextSibling) {
    if (!kind) {
      walk(*child, {});
      continue;
    }
    const ElementLookup lookup = elementAt(*kind, child->name);
    walk(*child, lookup.isRead() ? std::optional<EntryKind>(lookup.entry->kind) : std::nullopt);
  }
}

}  // namespace check
