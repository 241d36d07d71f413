#pragma once

class INode;

namespace ZORVEL {

/// Placing a new character with the mouse: the first click fixes where it stands, the second how it is turned, a right
/// click deletes it.
namespace Placement {

/// Makes the placement mode current for the node. A node that is still being placed is forgotten where it stands.
void StartPlacement(INode* node);

}  // namespace Placement

}  // namespace ZORVEL
