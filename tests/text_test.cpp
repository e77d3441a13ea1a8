#include "base/text.h"

#include <gtest/gtest.h>

#include "base/quietly.h"
#include "platform/code_page.h"

namespace base {
namespace {

TEST(Text, FoldCaseFoldsLettersOfSeveralAlphabetsAndNothingElse) {
  const std::pair<const char*, const char*> rows[] = {
      {"AZaz[`", "azaz[`"}, {"ÀÉÞ×ß÷", "àéþ×ß÷"}, {"ĀŁŽ", "āłž"},   {"ΑΩ", "αω"},
      {"АЯЁ", "аяё"},       {"日本😀", "日本😀"},   {"\xC3", "\xC3"}, {"\xFF\xC3(", "\xFF\xC3("}};
  for (const auto& [text, folded] : rows) EXPECT_EQ(FoldCase(text), folded);
}

TEST(Text, NumbersOfAnyOtherFormAreRefused) {
  const std::pair<const char*, int> good[] = {
      {"0", 0}, {" 255 ", 255}, {"-1", -1}, {"+5", 5}, {"1.5", 2}, {"2147483647", 2147483647}};
  for (const auto& [text, number] : good) EXPECT_EQ(ToInteger(text), number) << text;
  const char* const bad[] = {"",    " ",   "abc", "1 2", "12x", "0x10",      "1e2",
                             "inf", "nan", "\t1", "--1", ".",   "2147483648"};
  for (const auto* text : bad) EXPECT_ANY_THROW(ToInteger(text)) << text;
  EXPECT_EQ(ToByte(" 255 "), 255);
  for (const auto* text : {"", "256", "-1", "+1", "1.0", "x", "\t1"})
    EXPECT_ANY_THROW(ToByte(text)) << text;
  EXPECT_LT(ToNumber("-" + std::string(400, '9')), -1e300) << "a number all the same";
}

TEST(Quietly, EndsBothAndTellsOfAFaultThatIsNoFailure) {
  std::string told;
  OnFault() = [&](const std::string& what) { told += what; };
  EXPECT_FALSE(Quietly([] { throw Failure("a failure"); }));
  EXPECT_FALSE(Quietly([] { throw std::out_of_range("a fault"); }));
  OnFault() = nullptr;
  EXPECT_EQ(told, "a fault");
}

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
  for (const auto& [bytes, text] : rows) EXPECT_EQ(platform::DecodeCodePage(bytes), text);
  EXPECT_EQ(platform::DecodeLines("a\rb\r"), "a\r\nb\r\n");
}

TEST(CodePage, WhatIsWrittenReadsBack) {
  const struct {
    const char *text, *bytes;
  } rows[] = {
      {"ñ€®\r\nC:\\日本\\é\r\né", "\xF1\x80\xAE\r\nC:\\日本\\é\r\n\xE9"},
      // As bytes of the code page these would read as one character of UTF-8.
      {"Ã©\r\nâ‚¬ né", "Ã©\r\n\xE2\x82\xAC n\xE9"},
      {"\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ",
       "\x81\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8D\x8E\x8F\x90\x91\x92\x93\x94\x95"
       "\x96\x97\x98\x99\x9A\x9B\x9C\x9D\x9E\x9F"},
      // A mark that is no mark.
      {"\uFEFFone\r\n\uFEFF", "\xEF\xBB\xBF\xEF\xBB\xBFone\r\n\xEF\xBB\xBF"},
      {"ï»¿é", "\xEF\xBB\xBF\xEF\xBB\xBF\xE9"}};
  for (const auto& [text, bytes] : rows) {
    EXPECT_EQ(platform::EncodeCodePage(text), bytes);
    EXPECT_EQ(platform::DecodeCodePage(platform::EncodeCodePage(text)), text);
  }
}

}  // namespace
}  // namespace base
