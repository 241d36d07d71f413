#include "repository/XmlDocument.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>
#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <new>
#include <unordered_map>

namespace ZORVEL {

namespace {

const std::size_t BLOCK_SIZE = std::size_t{64} << 10;
// The tree of a document without entities stays below sixteen times the bytes it was read from. What grows beyond twice
// that is a default attribute that was repeated to do harm.
const std::size_t LARGEST_GROWTH = 32;
// Entities stand for as much as the document itself, or for this much.
const std::size_t FREE_GROWTH = std::size_t{1} << 20;
// What it takes to look one up, in bytes of its content.
const std::size_t REFERENCE_GROWTH = 16;
// The library looks for each among all, and takes longer for each.
const int MOST_DECLARATIONS = 1000;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
using ParserContext = std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxtPtr)>;

/// Writes the character that starts at `text`, and moves behind it. The library hands over valid UTF-8; `end` guards
/// against anything else.
wchar_t* DecodeCharacter(const xmlChar*& text, const xmlChar* end, wchar_t* out) {
  std::uint32_t character = *text++;
  const int following = character < 0xC0 ? 0 : character < 0xE0 ? 1 : character < 0xF0 ? 2 : 3;
  if (following > 0) character &= 0x3FU >> following;
  for (int i = 0; i < following && text != end; ++i) character = (character << 6) | (*text++ & 0x3FU);
  if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
    *out++ = static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
    character = 0xDC00 + ((character - 0x10000) & 0x3FF);
  }
  *out++ = static_cast<wchar_t>(character);
  return out;
}

/// Wide characters never outnumber the bytes that they are made of.
void AppendWide(std::wstring& wide, const xmlChar* text, const xmlChar* end) {
  const std::size_t size = wide.size();
  wide.resize(size + static_cast<std::size_t>(end - text));
  wchar_t* const begin = &wide[0];
  wchar_t* out = begin + size;
  while (text != end) {
    if (*text < 0x80) {
      *out++ = static_cast<wchar_t>(*text++);
    } else {
      out = DecodeCharacter(text, end, out);
    }
  }
  wide.resize(static_cast<std::size_t>(out - begin));
}

std::wstring WideText(const xmlChar* text) {
  std::wstring wide;
  AppendWide(wide, text, text + xmlStrlen(text));
  return wide;
}

const char* CopyText(XmlArena& arena, const xmlChar* text, const xmlChar* end) {
  const auto size = static_cast<std::size_t>(end - text);
  auto* const copy = static_cast<char*>(arena.Allocate(size + 1, 1));
  std::memcpy(copy, text, size);
  copy[size] = 0;
  return copy;
}

void FreeParser(xmlParserCtxtPtr context) {
  if (!context) return;
  xmlFreeDoc(context->myDoc);
  xmlFreeParserCtxt(context);
}

/// Encoding faults are reported outside any parser, by default on standard error.
class SilentErrors {
 public:
  SilentErrors() : m_context(xmlStructuredErrorContext), m_handler(xmlStructuredError) {
    xmlSetStructuredErrorFunc(nullptr, &Ignore);
  }
  ~SilentErrors() { xmlSetStructuredErrorFunc(m_context, m_handler); }
  SilentErrors(const SilentErrors&) = delete;
  SilentErrors& operator=(const SilentErrors&) = delete;

 private:
  template <class Error>
  static void Ignore(void* /*context*/, Error /*error*/) {}

  void* m_context;
  xmlStructuredErrorFunc m_handler;
};

}  // namespace

std::wstring XmlAttribute::GetText() const { return WideText(reinterpret_cast<const xmlChar*>(text)); }

void XmlAttribute::AppendTo(std::wstring& out) const {
  const auto* const begin = reinterpret_cast<const xmlChar*>(text);
  AppendWide(out, begin, begin + xmlStrlen(begin));
}

const XmlAttribute* XmlElement::FindAttribute(const wchar_t* attribute) const {
  for (int i = 0; i < attributeCount; ++i) {
    if (std::wcscmp(attributes[i].name.GetText(), attribute) == 0) return &attributes[i];
  }
  return nullptr;
}

std::wstring XmlElement::GetText(const wchar_t* attribute) const {
  const XmlAttribute* const found = FindAttribute(attribute);
  return found ? found->GetText() : std::wstring();
}

void XmlArena::AddBlock(std::size_t size) {
  m_blockSize = size > BLOCK_SIZE ? size : BLOCK_SIZE;
  m_blocks.emplace_back(new char[m_blockSize]);
}

/// Receives what the library reports while it parses, and hangs it into the document's tree.
class XmlTreeBuilder {
 public:
  XmlTreeBuilder(XmlDocument& document, std::FILE* file, const XmlOptions& options, XmlError& error)
      : m_document(document), m_file(file), m_options(options), m_error(error) {}

  bool Parse() {
    const SilentErrors silence;
    xmlSAXHandler handler = MakeHandler();
    const ParserContext context(xmlCreateIOParserCtxt(&handler, this, &ReadFile, nullptr, this, XML_CHAR_ENCODING_NONE),
                                &FreeParser);
    if (!context) return Refuse(XmlFault::NotReadable, L"not readable");
    m_context = context.get();
    // With entities substituted, "&amp;" in an attribute arrives as one character. Which ones there are to substitute,
    // the handler decides.
    xmlCtxtUseOptions(m_context, XML_PARSE_NOENT | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    xmlParseDocument(m_context);
    m_document.m_size = m_bytesRead;
    if (m_refused) return false;
    const bool wellFormed = m_context->wellFormed && m_context->nsWellFormed && m_document.m_root && IsAtEnd();
    return wellFormed || Refuse(XmlFault::NotWellFormed, L"not well formed");
  }

 private:
  using HeldName = std::pair<const xmlChar* const, FieldName>;
  static const std::size_t RECENT_COUNT = 256;

  struct Place {
    int line;
    int column;
  };

  struct OpenElement {
    XmlElement* element;
    XmlElement* lastChild;
  };

  /// The library takes a zero character behind the document for the end of the file.
  bool IsAtEnd() const {
    const xmlParserInput* input = m_context->input;
    return input && input->cur == input->end && std::fgetc(m_file) == EOF;
  }

  static XmlTreeBuilder& Self(void* data) { return *static_cast<XmlTreeBuilder*>(data); }

  static xmlSAXHandler MakeHandler() {
    xmlSAXHandler handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = &StartElement;
    handler.endElementNs = &EndElement;
    handler.serror = &ReportError;
    handler.startDocument = [](void* data) { xmlSAX2StartDocument(Self(data).m_context); };
    handler.internalSubset = [](void* data, const xmlChar* name, const xmlChar* externalId, const xmlChar* systemId) {
      xmlSAX2InternalSubset(Self(data).m_context, name, externalId, systemId);
    };
    handler.entityDecl = [](void* data, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                            xmlChar* content) {
      XmlTreeBuilder& builder = Self(data);
      if (++builder.m_declarationCount > MOST_DECLARATIONS) builder.RefuseSize(L"too many entities");
      if (!builder.m_refused) xmlSAX2EntityDecl(builder.m_context, name, type, publicId, systemId, content);
    };
    // These mean nothing here; that they come says that the markup before them has ended.
    handler.characters = [](void* data, const xmlChar*, int) { Self(data).EndMarkup(); };
    handler.ignorableWhitespace = handler.characters;
    handler.comment = [](void* data, const xmlChar*) { Self(data).EndMarkup(); };
    handler.processingInstruction = [](void* data, const xmlChar*, const xmlChar*) { Self(data).EndMarkup(); };
    handler.getEntity = [](void* data, const xmlChar* name) {
      return Self(data).InternalOnly(xmlSAX2GetEntity(Self(data).m_context, name));
    };
    handler.getParameterEntity = [](void* data, const xmlChar* name) {
      return Self(data).InternalOnly(xmlSAX2GetParameterEntity(Self(data).m_context, name));
    };
    return handler;
  }

  /// An external entity counts as not declared, so there is nothing that the library could load.
  xmlEntityPtr InternalOnly(xmlEntityPtr entity) {
    if (!entity) return nullptr;
    if (entity->etype == XML_INTERNAL_PREDEFINED_ENTITY) return entity;
    const bool internal =
        entity->etype == XML_INTERNAL_GENERAL_ENTITY || entity->etype == XML_INTERNAL_PARAMETER_ENTITY;
    return internal && CountGrowth(*entity) ? entity : nullptr;
  }

  /// Every reference is counted, those in other entities too: what is thrown away afterwards took its time all the
  /// same.
  bool CountGrowth(const xmlEntity& entity) {
    m_growth += static_cast<std::size_t>(entity.length) + REFERENCE_GROWTH;
    if (m_growth > FREE_GROWTH + m_bytesRead) RefuseSize(L"entities grow beyond all bounds");
    return !m_refused;
  }

  void EndMarkup() { m_markupBegin = m_bytesRead; }

  static int ReadFile(void* data, char* buffer, int size) {
    XmlTreeBuilder& builder = Self(data);
    const std::size_t count = std::fread(buffer, 1, static_cast<std::size_t>(size), builder.m_file);
    builder.m_bytesRead += count;
    // The parser cannot be stopped while it waits for bytes; it stops by itself when there are no more.
    if (builder.m_bytesRead > builder.m_options.largestFile) builder.NoteFault(XmlFault::BeyondLimits, L"too large");
    // Among its attributes the library looks for each, too, and that before it hands them over.
    if (builder.m_bytesRead - builder.m_markupBegin > builder.m_options.longestMarkup) {
      builder.NoteFault(XmlFault::BeyondLimits, L"a tag or comment is too long");
    }
    if (std::ferror(builder.m_file)) builder.NoteFault(XmlFault::NotReadable, L"not readable");
    return builder.m_refused ? -1 : static_cast<int>(count);
  }

  static void StartElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* /*uri*/,
                           int namespaceCount, const xmlChar** namespaces, int attributeCount, int /*defaulted*/,
                           const xmlChar** attributes) {
    XmlTreeBuilder& builder = Self(data);
    builder.EndMarkup();
    if (builder.m_refused) return;
    try {
      builder.AddElement(builder.HoldName(prefix, name), namespaceCount, namespaces, attributeCount, attributes);
    } catch (const std::bad_alloc&) {
      builder.RefuseSize(L"out of memory");
    }
  }

  static void EndElement(void* data, const xmlChar* /*name*/, const xmlChar* /*prefix*/, const xmlChar* /*uri*/) {
    XmlTreeBuilder& builder = Self(data);
    builder.EndMarkup();
    if (!builder.m_refused) builder.m_open.pop_back();
  }

  /// The library's type of an error is constant in some versions and not in others.
  template <class Error>
  static void ReportError(void* data, Error error) {
    XmlTreeBuilder& builder = Self(data);
    if (error->level < XML_ERR_ERROR || !builder.m_error.message.empty()) return;
    std::wstring text = WideText(reinterpret_cast<const xmlChar*>(error->message ? error->message : ""));
    while (!text.empty() && text.back() == L'\n') text.pop_back();
    std::replace(text.begin(), text.end(), L'\n', L' ');
    builder.m_error.fault = XmlFault::NotWellFormed;
    builder.m_error.message = text;
    builder.m_error.line = error->line;
    builder.m_error.column = error->int2;
  }

  void RefuseSize(const wchar_t* reason) { Refuse(XmlFault::BeyondLimits, reason); }

  bool Refuse(XmlFault fault, const wchar_t* reason) {
    NoteFault(fault, reason);
    if (m_context) xmlStopParser(m_context);
    return false;
  }

  void NoteFault(XmlFault fault, const wchar_t* reason) {
    m_refused = true;
    if (!m_error.message.empty()) return;
    m_error.fault = fault;
    m_error.message = reason;
  }

  /// Names are few, and the library holds each of them in one place: that place finds the name.
  FieldName HoldName(const xmlChar* prefix, const xmlChar* name) {
    const xmlChar* const key = prefix ? xmlDictQLookup(m_context->dict, prefix, name) : name;
    const HeldName*& recent = m_recent[reinterpret_cast<std::uintptr_t>(key) / alignof(void*) % RECENT_COUNT];
    if (!recent || recent->first != key) recent = &FindName(key);
    return recent->second;
  }

  const HeldName& FindName(const xmlChar* key) {
    const auto held = m_names.find(key);
    if (held != m_names.end()) return *held;
    if (static_cast<std::size_t>(xmlStrlen(key)) > m_options.longestName) RefuseSize(L"a name is too long");
    if (m_names.size() == m_options.mostNames) RefuseSize(L"too many different names");
    return *m_names.emplace(key, FieldName(m_refused ? L"" : WideText(key).c_str())).first;
  }

  void AddElement(FieldName name, int namespaceCount, const xmlChar** namespaces, int attributeCount,
                  const xmlChar** attributes) {
    if (m_refused) return;
    XmlArena& arena = m_document.m_arena;
    const int count = namespaceCount + attributeCount;
    if (count > m_options.mostAttributes) return RefuseSize(L"too many attributes");
    auto* const list = static_cast<XmlAttribute*>(
        arena.Allocate(static_cast<std::size_t>(count) * sizeof(XmlAttribute), alignof(XmlAttribute)));
    XmlAttribute* next = list;
    for (int i = 0; i < namespaceCount; ++i, namespaces += 2) new (next++) XmlAttribute(NamespaceAttribute(namespaces));
    // Five pointers each: name, prefix, namespace, begin and end of the value.
    for (int i = 0; i < attributeCount; ++i, attributes += 5) {
      const FieldName attribute = HoldName(attributes[1], attributes[0]);
      if (m_refused) return;
      if (static_cast<std::size_t>(attributes[4] - attributes[3]) > m_options.longestText) {
        return RefuseSize(L"an attribute is too long");
      }
      new (next++) XmlAttribute{attribute, CopyText(arena, attributes[3], attributes[4])};
    }
    void* const memory = arena.Allocate(sizeof(XmlElement), alignof(XmlElement));
    const Place place = m_options.places ? StartOfTag() : Place{0, 0};
    auto* const element =
        new (memory) XmlElement{name.GetText(), list, count, place.line, place.column, 0, nullptr, nullptr, nullptr};
    Append(element);
    ++m_document.m_elementCount;
    CountCost(*element);
  }

  void CountCost(const XmlElement& element) {
    if (m_options.costOf) m_document.m_cost += m_options.costOf(element);
    if (m_options.budgetFor && m_document.m_cost > m_options.budgetFor(m_bytesRead)) RefuseSize(L"too large");
    const std::size_t size = m_document.m_arena.GetSize();
    if (size > FREE_GROWTH + LARGEST_GROWTH * m_bytesRead) RefuseSize(L"entities grow beyond all bounds");
  }

  /// Of the tag whose attributes were just read: neither its name nor they can hold the character that it begins with.
  Place StartOfTag() const {
    const xmlParserInput& input = *m_context->input;
    // What ends in a semicolon is the reference to an entity whose content is being read.
    if (input.cur == input.base || input.cur[-1] == ';') return {input.line, input.col};
    const xmlChar* tag = input.cur - 1;
    while (tag != input.base && *tag != '<') --tag;
    const auto lineBreaks = static_cast<int>(std::count(tag, input.cur, '\n'));
    if (lineBreaks == 0) return {input.line, input.col - CountCharacters(tag, input.cur)};
    return {input.line - lineBreaks, ColumnOf(tag, input)};
  }

  static int CountCharacters(const xmlChar* begin, const xmlChar* end) {
    return static_cast<int>(std::count_if(begin, end, [](xmlChar byte) { return (byte & 0xC0U) != 0x80; }));
  }

  /// 0 when the library has given up the beginning of the line.
  static int ColumnOf(const xmlChar* place, const xmlParserInput& input) {
    const xmlChar* begin = place;
    while (begin != input.base && begin[-1] != '\n') --begin;
    return begin == input.base && input.consumed != 0 ? 0 : 1 + CountCharacters(begin, place);
  }

  XmlAttribute NamespaceAttribute(const xmlChar** declaration) {
    const xmlChar* const keyword = xmlDictLookup(m_context->dict, reinterpret_cast<const xmlChar*>("xmlns"), -1);
    const FieldName name = declaration[0] ? HoldName(keyword, declaration[0]) : HoldName(nullptr, keyword);
    const xmlChar* const text = declaration[1];
    return {name, text ? CopyText(m_document.m_arena, text, text + xmlStrlen(text)) : ""};
  }

  void Append(XmlElement* element) {
    if (m_open.empty()) {
      m_document.m_root = element;
    } else if (m_open.back().lastChild) {
      m_open.back().lastChild->nextSibling = element;
    } else {
      m_open.back().element->firstChild = element;
    }
    if (!m_open.empty()) {
      element->parent = m_open.back().element;
      m_open.back().lastChild = element;
      ++m_open.back().element->childCount;
    }
    m_open.push_back({element, nullptr});
  }

  XmlDocument& m_document;
  std::FILE* m_file;
  XmlOptions m_options;
  XmlError& m_error;
  xmlParserCtxtPtr m_context = nullptr;
  std::size_t m_bytesRead = 0;
  // Of what is being read, as far as is known.
  std::size_t m_markupBegin = 0;
  std::size_t m_growth = 0;
  int m_declarationCount = 0;
  bool m_refused = false;
  std::vector<OpenElement> m_open;
  std::unordered_map<const xmlChar*, FieldName> m_names;
  const HeldName* m_recent[RECENT_COUNT] = {};
};

std::unique_ptr<XmlDocument> XmlDocument::Load(const wchar_t* path, XmlError& error, const XmlOptions& options) {
  error = XmlError();
  const File file(path ? _wfopen(path, L"rb") : nullptr, &std::fclose);
  if (!file) {
    error.message = L"not readable";
    return nullptr;
  }
  std::setvbuf(file.get(), nullptr, _IOFBF, BLOCK_SIZE);
  std::unique_ptr<XmlDocument> document(new XmlDocument);
  if (!XmlTreeBuilder(*document, file.get(), options, error).Parse()) return nullptr;
  // What the library complained of and read all the same is no reason any more.
  error = XmlError();
  return document;
}

const XmlElement& XmlDocument::GetRoot() const { return *m_root; }

}  // namespace ZORVEL
