#pragma once

namespace cli {

/// What a description can be added to. A shared asset belongs to all characters; one of theirs may stand for it.
enum class EntryKind { Character, Clothing, Pose, Skin, Style, Category, Asset, SharedAsset, AssetReference };

}  // namespace cli
