#include "apps/support/ParseNoteText.h"

#include "host/files/Paths.h"

namespace apps {

namespace {

using Kind = ZORVEL::ParseNoteKind;
using ZORVEL::ParseNote;

std::string quoted(const std::wstring& text) { return '"' + host::toUtf8(text) + '"'; }

std::string named(const char* kind, const ParseNote& note) {
  return note.text.empty() ? kind : kind + (" " + quoted(note.text));
}

std::string pathOf(const ParseNote& note) { return host::nativePath(note.path).lexically_normal().string(); }

std::string textOf(const ParseNote& note) {
  switch (note.kind) {
    case Kind::NoDescription:
      return "there is no zorvel.xml in this folder";
    case Kind::DescriptionNotReadable:
      return "cannot be read";
    case Kind::DescriptionNotWellFormed:
      return "not well-formed XML: " + host::toUtf8(note.text);
    case Kind::DescriptionBeyondLimits:
      return "refused: " + host::toUtf8(note.text);
    case Kind::WrongDocumentElement:
      return "the document element is " + quoted(note.element) + ", not \"zorvel\" without a namespace";
    case Kind::CharacterWithoutAttributes:
      return "character left out: it has no attributes";
    case Kind::CharacterWithoutFolder:
      return named("character", note) + " left out: it has no \"folder\"";
    case Kind::CharacterWithoutPreviews:
    case Kind::CharacterWithoutSkin:
      return named("character", note) + " left out: there is no folder " + pathOf(note);
    case Kind::ElementSkipped:
      return quoted(note.element) + " in " + quoted(note.name) + " is skipped: nothing of that name is read there";
    case Kind::ClothingWithoutPreview:
      return named("clothing", note) + " left out: there is no picture " + pathOf(note);
    case Kind::MatrixRowDropped:
      return "row of the asset matrix left out: it has no " + quoted(note.name);
    case Kind::NumberNotWhole:
      return quoted(note.name) + " is " + quoted(note.text) + ", which is read only as far as it is a number";
    case Kind::ListNameExtended:
      return quoted(note.text) + " is appended to the name of an earlier " + quoted(note.element);
    case Kind::AttributeOfTheSystem:
      return quoted(note.name) + " is an attribute that only the system sets";
  }
  return "";
}

std::string placeOf(const ParseNote& note, const std::filesystem::path& root) {
  if (note.kind == Kind::NoDescription) return root.string();
  std::string place = (root / "zorvel.xml").string();
  if (note.line > 0) place += ":" + std::to_string(note.line);
  if (note.line > 0 && note.column > 0) place += ":" + std::to_string(note.column);
  return place;
}

}  // namespace

std::string lineOf(const ParseNote& note, const std::filesystem::path& root) {
  return placeOf(note, root) + ": " + textOf(note) + ".";
}

bool isLoss(const ParseNote& note) {
  switch (note.kind) {
    case Kind::CharacterWithoutAttributes:
    case Kind::CharacterWithoutFolder:
    case Kind::CharacterWithoutPreviews:
    case Kind::CharacterWithoutSkin:
    case Kind::ClothingWithoutPreview:
    case Kind::MatrixRowDropped:
      return true;
    default:
      return false;
  }
}

}  // namespace apps
