#pragma once

#include <strclass.h>

/// One step that can be taken back and made again.
class RestoreObj {
 public:
  virtual ~RestoreObj() = default;
  virtual void Restore(int isUndo) = 0;
  virtual void Redo() = 0;
};

/// Records what changes between Begin and the matching Accept. Begin and Accept nest: only the outermost Accept makes
/// an entry of the undo list, and a Cancel inside takes back the whole nest.
class Hold {
 public:
  void Begin();
  /// Takes ownership. False, and the object is ended, when nothing is being recorded.
  bool Put(RestoreObj* object);
  /// A recording without any step leaves no entry.
  void Accept(const MCHAR* commandName);
  void Cancel();
  int Holding() const;
  int RestoreOrRedoing() const;
  int GetBeginDepth() const;
};

extern Hold theHold;
