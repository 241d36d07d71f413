#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// The unique ids of chosen assets and materials, in the order of choice. One may be there twice.
class ChosenAssets {
 public:
  void Add(int unique);
  /// The first of it, if there is one.
  void Remove(int unique);
  void Clear();
  bool Contains(int unique) const { return m_counts.count(unique) > 0; }
  const std::vector<int>& GetUniques() const { return m_uniques; }

  /// With those that the character does not know; changes nothing when one of them has no category.
  void RemoveCategory(const DataContainer* category, const CharacterData& character);

 private:
  bool LearnCategories(const CharacterData& character);
  void RemoveAt(std::size_t place);

  std::vector<int> m_uniques;
  std::unordered_map<int, int> m_counts;
  // Of the first of them, as far as they are known, for a character and a state of all records.
  std::vector<const DataContainer*> m_categories;
  std::unordered_map<const DataContainer*, int> m_ofCategory;
  const CharacterData* m_character = nullptr;
  std::uint64_t m_changes = 0;
};

}  // namespace ZORVEL
