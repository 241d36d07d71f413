#include "tests/ui/CommandLog.h"

#include "model/Data2.h"

namespace support {

namespace {

QStringList& lines() {
  static QStringList all;
  return all;
}

QString idOf(unsigned int unique) {
  const wchar_t* id = ZORVEL::Data2::GetIdForUnique(static_cast<int>(unique));
  return id != nullptr ? QString::fromWCharArray(id) : QStringLiteral("unknown");
}

void add(const QString& text, bool refresh) { lines().append(refresh ? text + ", refresh" : text); }

}  // namespace

void CommandLog::Clear() { lines().clear(); }

QStringList CommandLog::Take() {
  const QStringList all = lines();
  Clear();
  return all;
}

// The linker sends callers of a command to the function that is named with __wrap_ here, and that one's call to the
// command itself.

#define WRAP_ELEMENT_COMMAND(MANGLED, WHAT)                                      \
  void pass##WHAT(unsigned int unique, bool refresh) __asm__("__real_" MANGLED); \
  void note##WHAT(unsigned int unique, bool refresh) __asm__("__wrap_" MANGLED); \
  void note##WHAT(unsigned int unique, bool refresh) {                           \
    add(#WHAT " " + idOf(unique), refresh);                                      \
    pass##WHAT(unique, refresh);                                                 \
  }

WRAP_ELEMENT_COMMAND("_ZN6ZORVEL8Commands26SetSelectedCharacterUniqueEjb", character)
WRAP_ELEMENT_COMMAND("_ZN6ZORVEL8Commands15SetSelectedPoseEjb", pose)
WRAP_ELEMENT_COMMAND("_ZN6ZORVEL8Commands15SetSelectedSkinEjb", skin)
WRAP_ELEMENT_COMMAND("_ZN6ZORVEL8Commands16SetSelectedStyleEjb", style)
WRAP_ELEMENT_COMMAND("_ZN6ZORVEL8Commands16SetSelectedAssetEjb", asset)
WRAP_ELEMENT_COMMAND("_ZN6ZORVEL8Commands18SetDeselectedAssetEjb", without)

#undef WRAP_ELEMENT_COMMAND

void passCloth(unsigned int character, unsigned int cloth,
               bool refresh) __asm__("__real__ZN6ZORVEL8Commands22SetSelectedClothUniqueEjjb");
void noteCloth(unsigned int character, unsigned int cloth,
               bool refresh) __asm__("__wrap__ZN6ZORVEL8Commands22SetSelectedClothUniqueEjjb");
void noteCloth(unsigned int character, unsigned int cloth, bool refresh) {
  add("cloth " + idOf(character) + " " + idOf(cloth), refresh);
  passCloth(character, cloth, refresh);
}

void passCreate() __asm__("__real__ZN6ZORVEL8Commands15CreateCharacterEv");
void noteCreate() __asm__("__wrap__ZN6ZORVEL8Commands15CreateCharacterEv");
void noteCreate() {
  add(QStringLiteral("create"), false);
  passCreate();
}

}  // namespace support
