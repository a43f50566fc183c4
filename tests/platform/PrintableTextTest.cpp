#include <gtest/gtest.h>

#include "platform/PrintableText.h"

namespace lurkwell {
namespace {

TEST(PrintableTextTest, HostileNamesAreShownAsWhatTheyAreOnOneLine) {
  EXPECT_EQ(PrintableText("plain <b>name</b> & more"), "plain <b>name</b> & more");
  EXPECT_EQ(PrintableText("Gr\xC3\xB6\xC3\x9F"
                          "e \xE2\x82\xAC \xF0\x9F\x98\x80"),
            "Gr\xC3\xB6\xC3\x9F"
            "e \xE2\x82\xAC \xF0\x9F\x98\x80");
  EXPECT_EQ(PrintableText("\x1B[31mred\r\n\t\x7F"), "\\033[31mred\\015\\012\\011\\177");
  EXPECT_EQ(PrintableText("a\xE2\x80\xAE"
                          "b"),
            "a\\342\\200\\256b")
      << "right-to-left override";
  EXPECT_EQ(PrintableText("\xC2\x9B"
                          "1m"),
            "\\302\\2331m")
      << "a control of eight bits";
  EXPECT_EQ(PrintableText("\xFF\xC3\xC3\xB6\xED\xA0\x80\xC0\xAF\xF5"),
            "\\377\\303\xC3\xB6\\355\\240\\200\\300\\257\\365");
  EXPECT_EQ(PrintableText(std::string_view("a\0b", 3)), "a\\000b");
  EXPECT_EQ(PrintableText(WithoutNewline("value\n\n")), "value\\012");
}

}  // namespace
}  // namespace lurkwell
