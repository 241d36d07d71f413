#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/FieldName.h"

namespace ZORVEL {

struct XmlAttribute {
  FieldName name;
  const char* text;  // UTF-8, a fourth of what wide characters may take

  std::wstring GetText() const;
  /// The same at the end of `out`. No more characters than `text` has bytes.
  void AppendTo(std::wstring& out) const;
};

/// One element of a document. Names carry their prefix; namespace declarations are attributes like any other.
struct XmlElement {
  const wchar_t* name;             // valid for the life of the process
  const XmlAttribute* attributes;  // in document order
  int attributeCount;
  // Where the start tag begins, in characters, counted from 1. An element out of an entity stands where that is used.
  // The column is 0 where it is not known: behind a very long line. Both are when places were not asked for.
  int line;
  int column;
  int childCount;
  const XmlElement* parent;  // null for the document element
  const XmlElement* firstChild;
  const XmlElement* nextSibling;

  /// Null when the element has no such attribute.
  const XmlAttribute* FindAttribute(const wchar_t* attribute) const;
  /// Empty when the element has no such attribute.
  std::wstring GetText(const wchar_t* attribute) const;
};

enum class XmlFault { NotReadable, NotWellFormed, BeyondLimits };

/// Why a document could not be read. Line and column are 0 when the fault has no place in the file.
struct XmlError {
  XmlFault fault = XmlFault::NotReadable;
  std::wstring message;  // one line; empty when there is no error
  int line = 0;
  int column = 0;
};

struct XmlOptions {
  std::size_t largestFile = std::size_t{256} << 20;  // bytes
  bool places = true;                                // loading takes a fifth longer with them
  std::size_t mostNames = SIZE_MAX;                  // different ones, of elements and attributes
  int mostAttributes = 10000;                        // of one element; records look their fields up one by one
  std::size_t longestName = SIZE_MAX;                // bytes, of elements and attributes
  std::size_t longestText = SIZE_MAX;                // bytes of an attribute's value
  std::size_t longestMarkup = SIZE_MAX;              // bytes of a start tag, a comment or a document type, roughly

  /// What an element costs whoever asks for the document, in bytes; its children are not there yet. Null for nothing.
  std::size_t (*costOf)(const XmlElement& element) = nullptr;
  /// What all together may cost when so many bytes of the file are read. Null for anything.
  std::size_t (*budgetFor)(std::size_t bytes) = nullptr;
};

/// Memory for things that live as long as the document and need no destructor.
class XmlArena {
 public:
  /// The alignment is a power of two.
  void* Allocate(std::size_t size, std::size_t alignment) {
    std::size_t begin = (m_blockUsed + alignment - 1) & ~(alignment - 1);
    if (m_blocks.empty() || begin > m_blockSize || size > m_blockSize - begin) {
      AddBlock(size);
      begin = 0;
    }
    m_blockUsed = begin + size;
    m_total += size;
    return m_blocks.back().get() + begin;
  }
  /// Bytes in use.
  std::size_t GetSize() const { return m_total; }

 private:
  void AddBlock(std::size_t size);

  std::vector<std::unique_ptr<char[]>> m_blocks;
  std::size_t m_blockSize = 0;
  std::size_t m_blockUsed = 0;
  std::size_t m_total = 0;
};

/// A well-formed XML file as a light tree of elements; comments, instructions and text are left out.
///
///     XmlError error;
///     const auto document = XmlDocument::Load(L"C:\\repository\\zorvel.xml", error);
///     if (document) walk(document->GetRoot());
///
/// Strict, never touches the network or another file, and bounded: large files, absurdly deep nesting and entities that
/// blow up are refused, also in text, which nobody keeps.
class XmlDocument {
 public:
  /// Null, with the reason in `error`, for everything that cannot be opened, read or is not well formed.
  static std::unique_ptr<XmlDocument> Load(const wchar_t* path, XmlError& error,
                                           const XmlOptions& options = XmlOptions());

  /// Belongs to the document.
  const XmlElement& GetRoot() const;
  /// With the document element.
  int GetElementCount() const { return m_elementCount; }
  /// Of the file, in bytes.
  std::size_t GetSize() const { return m_size; }
  /// Of all elements, as the options have it.
  std::size_t GetCost() const { return m_cost; }

 private:
  friend class XmlTreeBuilder;

  XmlArena m_arena;
  int m_elementCount = 0;
  std::size_t m_size = 0;
  std::size_t m_cost = 0;
  const XmlElement* m_root = nullptr;
};

}  // namespace ZORVEL
