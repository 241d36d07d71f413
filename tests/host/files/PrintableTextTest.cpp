#include "host/files/PrintableText.h"

#include <gtest/gtest.h>

namespace {

using host::printable;

TEST(PrintableText, ShowsWhatWouldSteerATerminalOrAReaderAndLeavesTheRest) {
  const struct {
    std::string given;
    const char* shown;
  } cases[] = {{"", ""},
               {"Zoë Müller, 東京, 🙂, \"a\\b\" <c> \u200fשלום",
                "Zoë Müller, 東京, 🙂, \"a\\b\" <c> \u200fשלום"},
               {"a\tb\r\nc\x7f", "a\\x09b\\x0d\\x0ac\\x7f"},
               {std::string("nul\0!", 5), "nul\\x00!"},
               {"\x1b[31mred\x1b[0m", "\\x1b[31mred\\x1b[0m"},
               {"\u0085\u009b", "\\u0085\\u009b"},
               {"one\u2028two\u2029", "one\\u2028two\\u2029"},
               {"\u202aa\u202eb\u2066c\u2069", "\\u202aa\\u202eb\\u2066c\\u2069"},
               {"M\xfcller", "M\\xfcller"},
               {"cut \xe6\x9d", "cut \\xe6\\x9d"},
               {"overlong \xc0\xaf, surrogate \xed\xa0\x80, too high \xf4\x90\x80\x80",
                "overlong \\xc0\\xaf, surrogate \\xed\\xa0\\x80, too high \\xf4\\x90\\x80\\x80"}};
  for (const auto& one : cases) {
    EXPECT_EQ(printable(one.given), one.shown);
    EXPECT_EQ(printable(printable(one.given)), one.shown) << "twice is once";
  }
}

}  // namespace
