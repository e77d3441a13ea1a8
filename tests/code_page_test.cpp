#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(CodePage, EachLineIsReadAsWhatItIs) {
  const struct {
    const char *bytes, *text;
  } rows[] = {
      {"\xF1\x80\xAE\r\nC:\\日本\\é\r\né\r\n\xE9", "ñ€®\r\nC:\\日本\\é\r\né\r\né"},
      {"\xED\xA0\x80 \xC3\r\xF0\x9F\x8E\xAE", "í\u00A0€ Ã\r\n🎮"},
      {"\xEF\xBB\xBFone\r\n\xEF\xBB\xBFtwo", "one\r\n\uFEFFtwo"},
      {"\xEF\xBB\xBF", ""},
      {"one\ntwo\n\n", "one\r\ntwo\r\n\r\n"},
      {"one\ntwo\rthree\r\n\n", "one\ntwo\r\nthree\r\n\n"},
  };
  for (const auto& [bytes, text] : rows) EXPECT_EQ(DecodeCodePage(bytes), text);
  EXPECT_EQ(DecodeLines("a\nb"), "a\r\nb\r\n");
  EXPECT_EQ(DecodeLines("a\rb\r"), "a\r\nb\r\n");
  EXPECT_EQ(DecodeLines(""), "");
}

TEST(CodePage, WhatIsWrittenReadsBack) {
  const struct {
    const char *text, *bytes;
  } rows[] = {{"ñ€®\r\nC:\\日本\\é\r\né", "\xF1\x80\xAE\r\nC:\\日本\\é\r\n\xE9"},
              // As bytes of the code page these would read as one character of UTF-8.
              {"Ã©\r\nâ‚¬ né", "Ã©\r\n\xE2\x82\xAC n\xE9"},
              {"\u0081\u009D", "\x81\x9D"},
              // A mark that is no mark.
              {"\uFEFFone\r\n\uFEFF", "\xEF\xBB\xBF\xEF\xBB\xBFone\r\n\xEF\xBB\xBF"},
              {"ï»¿é", "\xEF\xBB\xBF\xEF\xBB\xBF\xE9"}};
  for (const auto& [text, bytes] : rows) {
    EXPECT_EQ(EncodeCodePage(text), bytes);
    EXPECT_EQ(DecodeCodePage(EncodeCodePage(text)), text);
  }
}

}  // namespace
}  // namespace platform
