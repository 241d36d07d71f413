#pragma once

namespace bench {

/// An empty scene with a piece of clothing, a pose, a skin and a style of the generated repository chosen: what is
/// built next is body, one mandatory element, clothing and four assets, each a mesh file of 20,000 triangles. The
/// register of proxies follows.
void chooseCharacter();

/// The chosen character that many times, side by side, over a million triangles of ground. The undo list is left empty.
void fillScene(int characters);

}  // namespace bench
