#include "repository/XmlDocument.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "host/files/Paths.h"
#include "tests/support/TemporaryFolder.h"

namespace ZORVEL {

class XmlDocumentTest : public ::testing::Test {
 protected:
  void SetUp() override { ::testing::internal::CaptureStderr(); }
  void TearDown() override { EXPECT_EQ(::testing::internal::GetCapturedStderr(), "") << "the library has spoken"; }

  std::unique_ptr<XmlDocument> load(const std::string& content) {
    const std::wstring path = host::toWide(folder_.write("d.xml", content).string());
    auto document = XmlDocument::Load(path.c_str(), error_);
    EXPECT_EQ(document == nullptr, !error_.message.empty()) << host::toUtf8(error_.message);
    return document;
  }
  std::wstring rootAttribute(const std::string& content, const wchar_t* name = L"a") {
    const auto document = load(content);
    const XmlAttribute* value = document ? document->GetRoot().FindAttribute(name) : nullptr;
    return value ? value->GetText() : L"(missing)";
  }
  static std::string utf16(const std::u16string& text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
      bytes += static_cast<char>(unit & 0xFF);
      bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
  }

  static std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
  }

  support::TemporaryFolder folder_;
  XmlError error_;
};

TEST_F(XmlDocumentTest, KeepsElementsAttributesAndLinesAndLeavesTheRestOut) {
  const auto document =
      load("<?xml version='1.0'?>\n<!-- c --><r a='1' b=''>text<?pi x?>\n<e/><![CDATA[<no/>]]>\n<f><g/></f></r>");
  ASSERT_NE(document, nullptr);
  const XmlElement& root = document->GetRoot();
  EXPECT_STREQ(root.name, L"r");
  ASSERT_EQ(root.attributeCount, 2);
  EXPECT_STREQ(root.attributes[1].name.GetText(), L"b");
  EXPECT_STREQ(root.attributes[1].text, "");
  ASSERT_EQ(root.childCount, 2);
  EXPECT_EQ(root.firstChild->line, 3);
  EXPECT_STREQ(root.firstChild->nextSibling->firstChild->name, L"g");
  EXPECT_EQ(root.firstChild->nextSibling->line, 4);
  EXPECT_EQ(root.firstChild->nextSibling->nextSibling, nullptr);
}

TEST_F(XmlDocumentTest, TellsWhereEveryStartTagBegins) {
  const std::string content =
      "\xEF\xBB\xBF<!DOCTYPE r [<!ENTITY e '<x/>'>]><r>\n"
      "\t<a t='\xC3\xA4 > /'/><b/><c\n  t='1'\n/>&e;>\r\n"
      " \xC3\xA4 <d t='&amp;'\n></d></r>";
  const auto document = load(content);
  ASSERT_NE(document, nullptr);
  const std::pair<int, int> places[] = {{2, 2}, {2, 16}, {2, 20}, {4, 6}, {5, 4}};
  const XmlElement* element = document->GetRoot().firstChild;
  for (const auto& place : places) {
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(std::make_pair(element->line, element->column), place) << host::toUtf8(element->name);
    element = element->nextSibling;
  }
  EXPECT_EQ(document->GetRoot().line, 1);

  std::string oneLine = "<r>";
  for (int i = 0; i < 5000; ++i) oneLine += "<e \xC3\xA4=''/>";
  const auto wide = load(oneLine + "</r>");
  int column = 4;
  for (element = wide->GetRoot().firstChild; element; element = element->nextSibling, column += 9) {
    ASSERT_EQ(element->column, column);
  }
}

TEST_F(XmlDocumentTest, AttributesArriveAsTheyAreMeant) {
  EXPECT_EQ(rootAttribute("<r a='&amp;&lt;&#38;&quot;&#x1F600; x'/>"), L"&<&\"\U0001F600 x");
  EXPECT_EQ(rootAttribute("<r a='x\n\ty'/>"), L"x  y");
  EXPECT_EQ(rootAttribute("<!DOCTYPE r [<!ENTITY e 'in&amp;side'>]><r a='&e;!'/>"), L"in&side!");
  EXPECT_EQ(rootAttribute("<!DOCTYPE r [<!ATTLIST r a CDATA 'default'>]><r/>"), L"default");
  EXPECT_EQ(rootAttribute("<r xmlns='u' xmlns:p='v' p:a='1'/>", L"p:a"), L"1");
  EXPECT_EQ(rootAttribute("<r xmlns='u'/>", L"xmlns"), L"u");
  EXPECT_EQ(rootAttribute("<r xmlns:p='v'/>", L"xmlns:p"), L"v");
  const auto document = load("<!DOCTYPE r [<!ENTITY e '<x/><y/>'>]><r>&e;&e;</r>");
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(document->GetRoot().childCount, 4);
}

TEST_F(XmlDocumentTest, ReadsEveryDeclaredEncoding) {
  EXPECT_EQ(rootAttribute("\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?><r a='\xC3\xA4'/>"), L"\u00E4");
  EXPECT_EQ(rootAttribute("<?xml version='1.0' encoding='windows-1252'?><r a='\x80\xE4'/>"), L"\u20AC\u00E4");
  EXPECT_EQ(rootAttribute("<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xE4'/>"), L"\u00E4");
  EXPECT_EQ(rootAttribute(utf16(u"<?xml version='1.0' encoding='UTF-16'?>\r\n<r a='\u00E4\U0001F600'/>")),
            L"\u00E4\U0001F600");
  EXPECT_EQ(rootAttribute(utf16(u"<r a='\u4EBA'/>")), L"\u4EBA");
}

TEST_F(XmlDocumentTest, RefusesWhatIsNotWellFormedAndTellsWhere) {
  EXPECT_EQ(load("<r>\n  <e>\n</r>"), nullptr);
  EXPECT_EQ(error_.line, 3);
  EXPECT_EQ(error_.fault, XmlFault::NotWellFormed);
  EXPECT_EQ(load("<r a='\xFF'/>"), nullptr);
  EXPECT_EQ(error_.message.find(L'\n'), std::wstring::npos) << "one line";
  const std::string broken[] = {"",
                                " ",
                                "text",
                                "<r>",
                                "<r/><r/>",
                                "<r/>x",
                                "<r a='1' a='2'/>",
                                "<r a=1/>",
                                "<r a='<'/>",
                                "<r a='&e;'/>",
                                "<r>&e;</r>",
                                "<r a='&#0;'/>",
                                "<p:r/>",
                                "<r>\x01</r>",
                                "<r a='\xE4'/>",
                                "<?xml version='1.0' encoding='UTF-8'?><r a='\xFF'/>",
                                "<?xml version='1.0' encoding='no-such'?><r/>",
                                utf16(u"<r a='x'") + "\xD8",
                                std::string("<r/>\0", 5),
                                std::string("<r/>\0<x", 7),
                                "<r>" + std::string("\xFF\xFE", 2) + "</r>",
                                std::string("\0\0\0\0", 4)};
  for (const std::string& content : broken) EXPECT_EQ(load(content), nullptr) << content;
}

TEST_F(XmlDocumentTest, RefusesWhatCannotBeOpened) {
  EXPECT_EQ(XmlDocument::Load(nullptr, error_), nullptr);
  EXPECT_EQ(XmlDocument::Load(folder_.wide().c_str(), error_), nullptr);
  EXPECT_EQ(XmlDocument::Load((folder_.wide() + L"\\none").c_str(), error_), nullptr);
  EXPECT_EQ(error_.message, L"not readable");
}

TEST_F(XmlDocumentTest, RefusesWhatStopsBeingReadable) {
  // A file of the system that can be opened and not be read.
  std::filesystem::create_symlink("/proc/self/mem", folder_.path() / "mem");
  EXPECT_EQ(XmlDocument::Load((folder_.wide() + L"\\mem").c_str(), error_), nullptr);
  EXPECT_EQ(error_.message, L"not readable");
  EXPECT_EQ(error_.fault, XmlFault::NotReadable);

  const std::size_t limit = 20000;
  const auto withText = [](std::size_t size) { return "<r><e>" + std::string(size - 15, 'x') + "</e></r>\n"; };
  for (const std::size_t size : {limit, limit + 1, 10 * limit}) {
    const std::wstring path = host::toWide(folder_.write("d.xml", withText(size)).string());
    XmlOptions options;
    options.largestFile = limit;
    EXPECT_EQ(XmlDocument::Load(path.c_str(), error_, options) != nullptr, size == limit);
    EXPECT_EQ(error_.message, size == limit ? L"" : L"too large");
  }
  EXPECT_EQ(error_.fault, XmlFault::BeyondLimits);
}

TEST_F(XmlDocumentTest, RefusesDepthAndGrowthBeyondBounds) {
  std::string deep;
  for (int i = 0; i < 100000; ++i) deep += "<e>";
  for (int i = 0; i < 100000; ++i) deep += "</e>";
  EXPECT_EQ(load(deep), nullptr);

  std::string laughs = "<!DOCTYPE r [<!ENTITY a0 'ha'>";
  std::string elements = "<!DOCTYPE r [<!ENTITY a0 '<x/>'>";
  for (int i = 1; i < 30; ++i) {
    const std::string reference = "&a" + std::to_string(i - 1) + ";";
    const std::string declaration = "<!ENTITY a" + std::to_string(i) + " '" + reference + reference + reference + "'>";
    laughs += declaration;
    elements += declaration;
  }
  EXPECT_EQ(load(laughs + "]><r a='&a29;'/>"), nullptr);
  EXPECT_EQ(load(laughs + "]><r>&a29;</r>"), nullptr) << "in text";
  EXPECT_EQ(load(elements + "]><r>&a29;</r>"), nullptr) << "as elements";

  // Small in itself, and repeated: as elements, as text, in a value, in another entity, or as nothing at all.
  for (const char* content : {"<x/><x/><x/><x/>", "text of some length", "<!-- comment -->", " "}) {
    std::string one = "<!DOCTYPE r [<!ENTITY e '";
    std::string references;
    for (int i = 0; i < 500; ++i) one += content;
    for (int i = 0; i < 5000; ++i) references += "&e;";
    EXPECT_EQ(load(one + "'>]><r>" + references + "</r>"), nullptr) << content;
    EXPECT_EQ(error_.fault, XmlFault::BeyondLimits);
    EXPECT_EQ(load(one + "'><!ENTITY f '" + references + "'>]><r>&f;</r>"), nullptr) << content;
    EXPECT_EQ(load(one + "'>]><r a='" + references + "'/>"), nullptr) << content;
  }
  // Those that every document has are no growth, nor are a few of its own.
  std::string standard = "<!DOCTYPE r [<!ENTITY e 'studio'>]><r a='&e;'>";
  for (int i = 0; i < 1000000; ++i) standard += "&amp;&#65;";
  EXPECT_NE(load(standard + "&e;</r>"), nullptr);

  std::string defaulted = "<!DOCTYPE r [<!ATTLIST e a CDATA '" + std::string(100000, 'x') + "'>]><r>";
  for (int i = 0; i < 5000; ++i) defaulted += "<e/>";
  EXPECT_EQ(load(defaulted + "</r>"), nullptr);

  std::string wide = "<r";
  for (int i = 0; i < 10000; ++i) wide += " a" + std::to_string(i) + "=''";
  EXPECT_NE(load(wide + "/>"), nullptr);
  EXPECT_EQ(load(wide + " one='more'/>"), nullptr);
  EXPECT_EQ(error_.message, L"too many attributes");
}

TEST_F(XmlDocumentTest, RefusesWhatIsLongOrCostsMoreThanItMay) {
  XmlOptions options;
  options.longestName = 30;
  options.longestText = 40;
  options.longestMarkup = 100000;
  options.mostNames = 5;
  options.costOf = [](const XmlElement& element) { return std::size_t{element.parent ? 100U : 0U}; };
  options.budgetFor = [](std::size_t bytes) { return std::max<std::size_t>(1000, 2 * bytes); };
  const std::string long30(30, 'n');
  const std::string long40(40, 't');
  const struct {
    std::string content;
    const wchar_t* refusal;
  } cases[] = {{"<r><" + long30 + "/><e a='" + long40 + "'/></r>", L""},
               {"<r><" + long30 + "n/></r>", L"a name is too long"},
               {"<r " + long30 + "n=''/>", L"a name is too long"},
               {"<r xmlns:" + long30 + "='u'/>", L"a name is too long"},
               {"<r a='" + long40 + "t'/>", L"an attribute is too long"},
               {"<r a='' b='' c='' d=''/>", L""},
               {"<r a='' b='' c='' d='' e=''/>", L"too many different names"},
               {"<r><!--" + std::string(200000, 'c') + "--></r>", L"a tag or comment is too long"},
               {"<r>" + repeated("<!-- c -->", 100000) + "</r>", L""},
               {"<r>" + repeated("<?p c?>", 100000) + "</r>", L""},
               {"<r>" + repeated("<e/>", 10) + "</r>", L""},
               {"<r>" + repeated("<e/>", 11) + "</r>", L"too large"},
               {"<r>" + repeated(std::string(60, ' ') + "<e/>", 1000) + "</r>", L""}};
  for (const auto& one : cases) {
    const std::wstring path = host::toWide(folder_.write("d.xml", one.content).string());
    EXPECT_EQ(XmlDocument::Load(path.c_str(), error_, options) != nullptr, *one.refusal == 0);
    EXPECT_EQ(error_.message, one.refusal) << one.content.substr(0, 80);
    EXPECT_TRUE(error_.message.empty() || error_.fault == XmlFault::BeyondLimits);
  }
}

TEST_F(XmlDocumentTest, TakesLargeTextAndManyElements) {
  const auto document = load("<r a='" + std::string(5000000, 'x') + "'>" + std::string(20000000, 'y') + "</r>");
  ASSERT_NE(document, nullptr);
  EXPECT_EQ(std::string(document->GetRoot().attributes[0].text).size(), 5000000U);
  std::string many = "<r>";
  for (int i = 0; i < 200000; ++i) many += "<a/>";
  const auto flat = load(many + "</r>");
  ASSERT_NE(flat, nullptr);
  EXPECT_EQ(flat->GetRoot().childCount, 200000);
}

TEST_F(XmlDocumentTest, NeverTouchesAnotherFile) {
  const std::string secret = folder_.write("secret.txt", "<s/>").string();
  const std::string dtd = folder_.write("d.dtd", "<!ENTITY e 'from the DTD'>").string();
  for (const std::string& target : {"file://" + secret, secret, std::string("http://127.0.0.1:9/x")}) {
    const std::string declaration = "<!DOCTYPE r [<!ENTITY e SYSTEM '" + target + "'>";
    EXPECT_EQ(load(declaration + "]><r>&e;</r>"), nullptr);
    EXPECT_EQ(load(declaration + "]><r a='&e;'/>"), nullptr);
    EXPECT_NE(load(declaration + "]><r/>"), nullptr) << "declared, but not used";
    EXPECT_EQ(load("<!DOCTYPE r [<!ENTITY % p SYSTEM '" + target + "'> %p;]><r/>"), nullptr);
  }
  EXPECT_EQ(rootAttribute("<!DOCTYPE r SYSTEM '" + dtd + "'><r a='x&e;'/>"), L"x");
  EXPECT_NE(load("<!DOCTYPE r SYSTEM 'http://127.0.0.1:9/x.dtd'><r/>"), nullptr);
}

}  // namespace ZORVEL
