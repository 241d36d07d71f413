#include "model/UniqueRegistry.h"

#include <vector>

#include "model/DataContainer.h"

namespace ZORVEL {

namespace {

const int COUNTER_START = 1000;
const int STEP = 10;

// Records with static storage may release their ids after the registry has gone.
bool registryGone = false;

struct Registry {
  ~Registry() { registryGone = true; }

  int counter = COUNTER_START;
  std::vector<const DataContainer*> elements;  // by (id - COUNTER_START) / STEP - 1; null where an id names nothing
};

Registry& TheRegistry() {
  static Registry instance;
  return instance;
}

std::size_t SlotOf(int unique) { return static_cast<std::size_t>((unique - COUNTER_START) / STEP - 1); }

}  // namespace

int UniqueRegistry::NewUnique() { return TheRegistry().counter += STEP; }

const DataContainer* UniqueRegistry::Find(int unique) {
  if (unique <= COUNTER_START || unique % STEP != 0) return nullptr;
  const auto& elements = TheRegistry().elements;
  return SlotOf(unique) < elements.size() ? elements[SlotOf(unique)] : nullptr;
}

int UniqueRegistry::GetUnique(const DataContainer& element) {
  if (element.m_unique != 0 && Find(element.m_unique) == &element) return element.m_unique;
  const int unique = NewUnique();
  auto& elements = TheRegistry().elements;
  elements.resize(SlotOf(unique) + 1);
  elements.back() = &element;
  element.m_unique = unique;
  return unique;
}

void UniqueRegistry::Release(const DataContainer& element) {
  if (registryGone) return;
  if (Find(element.m_unique) == &element) TheRegistry().elements[SlotOf(element.m_unique)] = nullptr;
}

void UniqueRegistry::Clear() {
  TheRegistry().counter = COUNTER_START;
  TheRegistry().elements.clear();
  TheRegistry().elements.shrink_to_fit();
}

}  // namespace ZORVEL
