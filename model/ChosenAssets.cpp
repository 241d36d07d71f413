#include "model/ChosenAssets.h"

#include <algorithm>

#include "model/CharacterData.h"
#include "model/RecordIndex.h"

namespace ZORVEL {

namespace {

// What was learnt of more is kept: nobody chooses so many by hand, and each that replaces another would ask for all.
const std::size_t MOST_ASKED_ANEW = 64;

}  // namespace

void ChosenAssets::Add(int unique) {
  m_uniques.push_back(unique);
  ++m_counts[unique];
}

void ChosenAssets::Remove(int unique) {
  const auto position = std::find(m_uniques.begin(), m_uniques.end(), unique);
  if (position != m_uniques.end()) RemoveAt(static_cast<std::size_t>(position - m_uniques.begin()));
}

void ChosenAssets::Clear() { *this = ChosenAssets(); }

void ChosenAssets::RemoveAt(std::size_t place) {
  const auto offset = static_cast<std::ptrdiff_t>(place);
  const auto count = m_counts.find(m_uniques[place]);
  if (--count->second == 0) m_counts.erase(count);
  m_uniques.erase(m_uniques.begin() + offset);
  if (place >= m_categories.size()) return;
  --m_ofCategory[m_categories[place]];
  m_categories.erase(m_categories.begin() + offset);
}

void ChosenAssets::RemoveCategory(const DataContainer* category, const CharacterData& character) {
  const bool isKnown = m_character == &character && m_changes == RecordIndex::GetChanges();
  if (!isKnown || m_uniques.size() <= MOST_ASKED_ANEW) {
    m_categories.clear();
    m_ofCategory.clear();
  }
  m_character = &character;
  m_changes = RecordIndex::GetChanges();
  if (!LearnCategories(character)) return;
  // What is replaced was mostly chosen last.
  int left = m_ofCategory[category];
  for (std::size_t place = m_uniques.size(); left > 0; --place) {
    if (m_categories[place - 1] != category) continue;
    RemoveAt(place - 1);
    --left;
  }
}

/// False when one has no category. Else the character knows all that are left.
bool ChosenAssets::LearnCategories(const CharacterData& character) {
  const std::size_t known = m_categories.size();
  std::vector<const DataContainer*> categories;
  for (std::size_t place = known; place < m_uniques.size(); ++place) {
    DataContainer* asset = nullptr;
    DataContainer* material = nullptr;
    const bool isFound = character.GetAssetAndMaterial(m_uniques[place], asset, material);
    categories.push_back(isFound ? character.GetCategory(asset) : nullptr);
    if (isFound && !categories.back()) return false;
  }
  for (std::size_t i = categories.size(); i > 0; --i) {
    if (!categories[i - 1]) RemoveAt(known + i - 1);
  }
  for (const DataContainer* category : categories) {
    if (!category) continue;
    m_categories.push_back(category);
    ++m_ofCategory[category];
  }
  return true;
}

}  // namespace ZORVEL
