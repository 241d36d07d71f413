#include "apps/cli/Choice.h"

#include <algorithm>

#include "apps/cli/AssetChoice.h"
#include "apps/cli/ModelText.h"
#include "apps/cli/NearestIds.h"
#include "core/Disk.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Selection2.h"

namespace cli {

namespace {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Selection2;

/// Whether elements of a list have a folder that decides whether they can be used.
enum class Usable { IfFolderFound, Always };

class Chooser {
 public:
  explicit Chooser(const CreateOptions& options) : options_(options) {}

  ChoiceResult run() {
    Selection2::Reset();
    Selection2::SetStyle(nullptr);
    character_ = pick("character", options_.character, characters(), Usable::IfFolderFound, Selection2::SetCharacter);
    if (character_ != nullptr) chooseElements();
    return std::move(result_);
  }

 private:
  void chooseElements() {
    const DataContainer* cloth = pick("clothing", options_.cloth, elementsOf(*character_, ZORVEL::CLOTH),
                                      Usable::IfFolderFound, Selection2::SetCloth);
    pick("pose", options_.pose, posesFor(cloth), Usable::IfFolderFound, Selection2::SetPose);
    pick("skin", options_.skin, elementsOf(*character_, ZORVEL::SKINS), Usable::Always, Selection2::SetSkin);
    if (cloth == nullptr) return;
    pick("style of " + field(cloth, L"id"), options_.style, clothChildren(*cloth, ZORVEL::MATERIAL), Usable::Always,
         Selection2::SetStyle);
    if (!result_.errors.empty()) return;
    AssetChoice assets(*character_, result_);
    for (const std::string& wanted : options_.assets) assets.wish(wanted);
    if (result_.errors.empty()) assets.select(!options_.bare);
  }

  /// The poses that the clothing has a mesh for come first, as in the window.
  std::vector<DataContainer*> posesFor(const DataContainer* cloth) const {
    std::vector<DataContainer*> poses = elementsOf(*character_, ZORVEL::POSES);
    const auto hasMesh = [&](const DataContainer* pose) {
      const std::string folder = field(character_, L"folder") + "\\" + field(cloth, L"folder");
      const std::string name = field(cloth, L"id") + "_" + field(pose, L"id") + ".vrmesh";
      return ZORVEL::Disk::FileExists(host::toWide(folder + "\\" + name));
    };
    std::stable_partition(poses.begin(), poses.end(), hasMesh);
    return poses;
  }

  template <class Record>
  Record* pick(const std::string& kind, const std::optional<std::string>& wanted, const std::vector<Record*>& records,
               Usable usable, void (*remember)(const wchar_t*)) {
    const auto fits = [&](const Record* record) {
      if (wanted.has_value()) return field(record, L"id") == *wanted;
      return usable == Usable::Always || isUsable(*record);
    };
    const auto found = std::find_if(records.begin(), records.end(), fits);
    if (found == records.end()) {
      result_.errors.push_back(wanted.has_value() ? unknownId(kind, *wanted, idsOf(records))
                                                  : "There is no usable " + kind + " to choose.");
      return nullptr;
    }
    remember(host::toWide(field(*found, L"id")).c_str());
    return *found;
  }

  const CreateOptions& options_;
  CharacterData* character_ = nullptr;
  ChoiceResult result_;
};

}  // namespace

ChoiceResult choose(const CreateOptions& options) { return Chooser(options).run(); }

}  // namespace cli
