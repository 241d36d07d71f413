#pragma once

#include <memory>
#include <string>

namespace ZORVEL {

class DataContainer;
class XmlDocument;
struct XmlElement;

/// With what each of them has besides element and place.
enum class ParseNoteKind {
  NoDescription,             // path: the file that is not there
  DescriptionNotReadable,    // path: the file; text: why
  DescriptionNotWellFormed,  // the same
  DescriptionBeyondLimits,   // the same
  WrongDocumentElement,      // path: the file
  CharacterWithoutAttributes,
  CharacterWithoutFolder,    // text: its id
  CharacterWithoutPreviews,  // text: its id; path: the folder that is not there
  CharacterWithoutSkin,      // the same
  ElementSkipped,            // name: the element around it
  ClothingWithoutPreview,    // text: its id; path: the picture that is not there; it is gone with all that it holds
  MatrixRowDropped,          // name: the attribute that is missing
  NumberNotWhole,            // name: the attribute; text: its value, read as far as it is a number
  ListNameExtended,          // text: what is appended to the name that an earlier list has given
  AttributeOfTheSystem       // name: the attribute, which the system writes itself; text: its value
};

/// Something that the parser refused, skipped or limited.
struct ParseNote {
  ParseNoteKind kind;
  // Names live as long as the process; empty when there is none.
  const wchar_t* element;
  const wchar_t* name;
  std::wstring text;
  std::wstring path;
  // Of the element's start tag, counted from 1; 0 when there is no such place.
  int line;
  int column;
  // The element, as long as the document is kept; null for what concerns the whole file.
  const XmlElement* source;
};

/// Told of what the parser does with a description, in the order in which it happens. Nothing that it could do changes
/// what is read.
class ParseObserver {
 public:
  virtual ~ParseObserver() = default;
  virtual void Noted(const ParseNote& note) = 0;
  /// The document whose elements are read next; who keeps it, keeps the elements that are told of below.
  virtual void DocumentRead(const std::shared_ptr<const XmlDocument>& /*document*/) {}
  /// The record of the element is filled. It may be destroyed later: a clothing without a preview. One with the fields
  /// of a matrix row lives only as long as the call.
  virtual void RecordRead(const DataContainer& /*record*/, const XmlElement& /*element*/) {}
};

/// As long as it lives, every parse is told to its observer. The youngest one counts, and none is there by default:
/// parsing costs nothing more then.
class ObservedParsing {
 public:
  explicit ObservedParsing(ParseObserver& observer);
  ~ObservedParsing();
  ObservedParsing(const ObservedParsing&) = delete;
  ObservedParsing& operator=(const ObservedParsing&) = delete;

  /// Null when nobody listens.
  static ParseObserver* GetObserver();

 private:
  ParseObserver* m_previous;
};

}  // namespace ZORVEL
