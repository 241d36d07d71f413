#include "core/Commands.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"

namespace ZORVEL {

namespace {

/// The "id" of the first child; null when there is none.
const wchar_t* FirstId(const DataContainer* list) {
  const DataContainer* first = list != nullptr && list->GetChildCount() > 0 ? list->GetChild(0) : nullptr;
  return first != nullptr ? Data2::GetIdForUnique(Data2::GetUnique(first)) : nullptr;
}

/// The first element whose folder is there; skins have none and all count.
const DataContainer* FirstUsable(const CharacterData& character, CONTAINER container) {
  for (int i = 0; i < character.GetCount(container); ++i) {
    const DataContainer* element = character.GetContainerElement(container, i);
    if (container == SKINS || element->GetFastFlag(FLAG_VALID)) return element;
  }
  return nullptr;
}

const wchar_t* IdOf(const DataContainer* element) {
  return element != nullptr ? Data2::GetIdForUnique(Data2::GetUnique(element)) : nullptr;
}

void SelectFirstUsable(const CharacterData& character) {
  const DataContainer* cloth = FirstUsable(character, CLOTH);
  Selection2::SetCharacter(IdOf(&character));
  Selection2::SetCloth(IdOf(cloth));
  Selection2::SetPose(IdOf(FirstUsable(character, POSES)));
  Selection2::SetSkin(IdOf(FirstUsable(character, SKINS)));
  Selection2::SetStyle(cloth != nullptr ? FirstId(cloth->GetChild(MATERIAL)) : nullptr);
  Selection2::ClearAssets();
}

}  // namespace

}  // namespace ZORVEL

/// Only in the diagnostic module, for trying a placement without the window: creates the next character of the
/// repository in the first of everything that is usable, as the window's button does.
extern "C" void ModuleCreateCharacter();

void ModuleCreateCharacter() {
  static int next = 0;
  if (!ZORVEL::Commands::ValidateData() || ZORVEL::Data2::GetCharacterCount() == 0) return;
  ZORVEL::SelectFirstUsable(*ZORVEL::Data2::GetCharacter(next++ % ZORVEL::Data2::GetCharacterCount()));
  ZORVEL::Commands::CreateCharacter();
}
