#include "repository/XmlDocument.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <new>
#include <unordered_map>

namespace ZORVEL {

namespace {

const std::size_t BLOCK_SIZE = std::size_t{64} << 10;
const std::size_t LARGEST_FILE = std::size_t{256} << 20;
// The tree of a document without entities stays below sixteen times the bytes it was read from. What grows beyond twice
// that is an entity or a default attribute that was repeated to do harm.
const std::size_t LARGEST_GROWTH = 32;
const std::size_t FREE_GROWTH = std::size_t{1} << 20;
// Records look their fields up one by one, which only pays while they are few.
const int MOST_ATTRIBUTES = 10000;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
using ParserContext = std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxtPtr)>;

/// Writes the character that starts at `text`, and moves behind it. The library hands over valid UTF-8; `end` guards
/// against anything else.
wchar_t* decodeCharacter(const xmlChar*& text, const xmlChar* end, wchar_t* out) {
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
const wchar_t* copyWide(XmlArena& arena, const xmlChar* text, const xmlChar* end) {
  const std::size_t size = static_cast<std::size_t>(end - text) + 1;
  auto* const begin = static_cast<wchar_t*>(arena.Allocate(size * sizeof(wchar_t), alignof(wchar_t)));
  wchar_t* out = begin;
  while (text != end) {
    if (*text < 0x80) {
      *out++ = static_cast<wchar_t>(*text++);
    } else {
      out = decodeCharacter(text, end, out);
    }
  }
  *out = 0;
  return begin;
}

const wchar_t* copyWide(XmlArena& arena, const xmlChar* text) { return copyWide(arena, text, text + xmlStrlen(text)); }

void freeParser(xmlParserCtxtPtr context) {
  if (!context) return;
  xmlFreeDoc(context->myDoc);
  xmlFreeParserCtxt(context);
}

/// Encoding faults are reported outside any parser, by default on standard error.
class SilentErrors {
 public:
  SilentErrors() : m_context(xmlStructuredErrorContext), m_handler(xmlStructuredError) {
    xmlSetStructuredErrorFunc(nullptr, &ignore);
  }
  ~SilentErrors() { xmlSetStructuredErrorFunc(m_context, m_handler); }
  SilentErrors(const SilentErrors&) = delete;
  SilentErrors& operator=(const SilentErrors&) = delete;

 private:
  template <class Error>
  static void ignore(void* /*context*/, Error /*error*/) {}

  void* m_context;
  xmlStructuredErrorFunc m_handler;
};

}  // namespace

const wchar_t* XmlElement::FindAttribute(const wchar_t* attribute) const {
  for (int i = 0; i < attributeCount; ++i) {
    if (std::wcscmp(attributes[i].name.GetText(), attribute) == 0) return attributes[i].text;
  }
  return nullptr;
}

void XmlArena::addBlock(std::size_t size) {
  m_blockSize = size > BLOCK_SIZE ? size : BLOCK_SIZE;
  m_blocks.emplace_back(new char[m_blockSize]);
}

/// Receives what the library reports while it parses, and hangs it into the document's tree.
class XmlTreeBuilder {
 public:
  XmlTreeBuilder(XmlDocument& document, std::FILE* file, XmlError& error)
      : m_document(document), m_file(file), m_error(error) {}

  bool Parse() {
    const SilentErrors silence;
    xmlSAXHandler handler = makeHandler();
    const ParserContext context(xmlCreateIOParserCtxt(&handler, this, &readFile, nullptr, this, XML_CHAR_ENCODING_NONE),
                                &freeParser);
    if (!context) return refuse(L"not readable");
    m_context = context.get();
    // With entities substituted, "&amp;" in an attribute arrives as one character. Which ones there are to substitute,
    // the handler decides.
    xmlCtxtUseOptions(m_context, XML_PARSE_NOENT | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    xmlParseDocument(m_context);
    if (m_refused) return false;
    const bool wellFormed = m_context->wellFormed && m_context->nsWellFormed && m_document.m_root && isAtEnd();
    return wellFormed || refuse(L"not well formed");
  }

 private:
  using HeldName = std::pair<const xmlChar* const, FieldName>;
  static const std::size_t RECENT_COUNT = 256;

  struct OpenElement {
    XmlElement* element;
    XmlElement* lastChild;
  };

  /// The library takes a zero character behind the document for the end of the file.
  bool isAtEnd() const {
    const xmlParserInput* input = m_context->input;
    return input && input->cur == input->end && std::fgetc(m_file) == EOF;
  }

  static XmlTreeBuilder& self(void* data) { return *static_cast<XmlTreeBuilder*>(data); }

  static xmlSAXHandler makeHandler() {
    xmlSAXHandler handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = &startElement;
    handler.endElementNs = &endElement;
    handler.serror = &reportError;
    handler.startDocument = [](void* data) { xmlSAX2StartDocument(self(data).m_context); };
    handler.internalSubset = [](void* data, const xmlChar* name, const xmlChar* externalId, const xmlChar* systemId) {
      xmlSAX2InternalSubset(self(data).m_context, name, externalId, systemId);
    };
    handler.entityDecl = [](void* data, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                            xmlChar* content) {
      xmlSAX2EntityDecl(self(data).m_context, name, type, publicId, systemId, content);
    };
    handler.getEntity = [](void* data, const xmlChar* name) {
      return internalOnly(xmlSAX2GetEntity(self(data).m_context, name));
    };
    handler.getParameterEntity = [](void* data, const xmlChar* name) {
      return internalOnly(xmlSAX2GetParameterEntity(self(data).m_context, name));
    };
    return handler;
  }

  /// An external entity counts as not declared, so there is nothing that the library could load.
  static xmlEntityPtr internalOnly(xmlEntityPtr entity) {
    if (!entity) return nullptr;
    const bool internal = entity->etype == XML_INTERNAL_GENERAL_ENTITY ||
                          entity->etype == XML_INTERNAL_PARAMETER_ENTITY ||
                          entity->etype == XML_INTERNAL_PREDEFINED_ENTITY;
    return internal ? entity : nullptr;
  }

  static int readFile(void* data, char* buffer, int size) {
    XmlTreeBuilder& builder = self(data);
    const std::size_t count = std::fread(buffer, 1, static_cast<std::size_t>(size), builder.m_file);
    builder.m_bytesRead += count;
    if (builder.m_bytesRead > LARGEST_FILE) builder.refuse(L"too large");
    if (std::ferror(builder.m_file)) builder.refuse(L"not readable");
    return builder.m_refused ? -1 : static_cast<int>(count);
  }

  static void startElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* /*uri*/,
                           int namespaceCount, const xmlChar** namespaces, int attributeCount, int /*defaulted*/,
                           const xmlChar** attributes) {
    XmlTreeBuilder& builder = self(data);
    if (builder.m_refused) return;
    try {
      builder.addElement(builder.heldName(prefix, name), namespaceCount, namespaces, attributeCount, attributes);
    } catch (const std::bad_alloc&) {
      builder.refuse(L"out of memory");
    }
  }

  static void endElement(void* data, const xmlChar* /*name*/, const xmlChar* /*prefix*/, const xmlChar* /*uri*/) {
    XmlTreeBuilder& builder = self(data);
    if (!builder.m_refused) builder.m_open.pop_back();
  }

  /// The library's type of an error is constant in some versions and not in others.
  template <class Error>
  static void reportError(void* data, Error error) {
    XmlTreeBuilder& builder = self(data);
    if (error->level < XML_ERR_ERROR || !builder.m_error.message.empty()) return;
    XmlArena arena;
    const auto* const message = reinterpret_cast<const xmlChar*>(error->message ? error->message : "");
    builder.m_error.message = copyWide(arena, message);
    while (!builder.m_error.message.empty() && builder.m_error.message.back() == L'\n') {
      builder.m_error.message.pop_back();
    }
    builder.m_error.line = error->line;
    builder.m_error.column = error->int2;
  }

  bool refuse(const wchar_t* reason) {
    m_refused = true;
    if (m_error.message.empty()) m_error.message = reason;
    if (m_context) xmlStopParser(m_context);
    return false;
  }

  /// Names are few, and the library holds each of them in one place: that place finds the name.
  FieldName heldName(const xmlChar* prefix, const xmlChar* name) {
    const xmlChar* const key = prefix ? xmlDictQLookup(m_context->dict, prefix, name) : name;
    const HeldName*& recent = m_recent[reinterpret_cast<std::uintptr_t>(key) / alignof(void*) % RECENT_COUNT];
    if (!recent || recent->first != key) recent = &findName(key);
    return recent->second;
  }

  const HeldName& findName(const xmlChar* key) {
    const auto held = m_names.find(key);
    if (held != m_names.end()) return *held;
    XmlArena arena;
    return *m_names.emplace(key, FieldName(copyWide(arena, key))).first;
  }

  void addElement(FieldName name, int namespaceCount, const xmlChar** namespaces, int attributeCount,
                  const xmlChar** attributes) {
    XmlArena& arena = m_document.m_arena;
    const int count = namespaceCount + attributeCount;
    if (count > MOST_ATTRIBUTES) {
      refuse(L"too many attributes");
      return;
    }
    auto* const list = static_cast<FieldText*>(
        arena.Allocate(static_cast<std::size_t>(count) * sizeof(FieldText), alignof(FieldText)));
    FieldText* next = list;
    for (int i = 0; i < namespaceCount; ++i, namespaces += 2) new (next++) FieldText(namespaceAttribute(namespaces));
    // Five pointers each: name, prefix, namespace, begin and end of the value.
    for (int i = 0; i < attributeCount; ++i, attributes += 5) {
      const FieldName attribute = heldName(attributes[1], attributes[0]);
      new (next++) FieldText{attribute, copyWide(arena, attributes[3], attributes[4])};
    }
    void* const memory = arena.Allocate(sizeof(XmlElement), alignof(XmlElement));
    append(new (memory) XmlElement{name.GetText(), list, count, m_context->input->line, 0, nullptr, nullptr});
    if (arena.GetSize() > FREE_GROWTH + LARGEST_GROWTH * m_bytesRead) refuse(L"entities grow beyond all bounds");
  }

  FieldText namespaceAttribute(const xmlChar** declaration) {
    const xmlChar* const keyword = xmlDictLookup(m_context->dict, reinterpret_cast<const xmlChar*>("xmlns"), -1);
    const FieldName name = declaration[0] ? heldName(keyword, declaration[0]) : heldName(nullptr, keyword);
    return {name, declaration[1] ? copyWide(m_document.m_arena, declaration[1]) : L""};
  }

  void append(XmlElement* element) {
    if (m_open.empty()) {
      m_document.m_root = element;
    } else if (m_open.back().lastChild) {
      m_open.back().lastChild->nextSibling = element;
    } else {
      m_open.back().element->firstChild = element;
    }
    if (!m_open.empty()) {
      m_open.back().lastChild = element;
      ++m_open.back().element->childCount;
    }
    m_open.push_back({element, nullptr});
  }

  XmlDocument& m_document;
  std::FILE* m_file;
  XmlError& m_error;
  xmlParserCtxtPtr m_context = nullptr;
  std::size_t m_bytesRead = 0;
  bool m_refused = false;
  std::vector<OpenElement> m_open;
  std::unordered_map<const xmlChar*, FieldName> m_names;
  const HeldName* m_recent[RECENT_COUNT] = {};
};

std::unique_ptr<XmlDocument> XmlDocument::Load(const wchar_t* path, XmlError& error) {
  error = XmlError();
  const File file(path ? _wfopen(path, L"rb") : nullptr, &std::fclose);
  if (!file) {
    error.message = L"not readable";
    return nullptr;
  }
  std::setvbuf(file.get(), nullptr, _IOFBF, BLOCK_SIZE);
  std::unique_ptr<XmlDocument> document(new XmlDocument);
  if (!XmlTreeBuilder(*document, file.get(), error).Parse()) return nullptr;
  // What the library complained of and read all the same is no reason any more.
  error = XmlError();
  return document;
}

const XmlElement& XmlDocument::GetRoot() const { return *m_root; }

}  // namespace ZORVEL
