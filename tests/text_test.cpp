#include "base/text.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace base
