#include "platform/code_page.h"

#include <gtest/gtest.h>

#include <random>

namespace platform {
namespace {

TEST(CodePage, ALineWithAForeignCharacterIsUtf8AndItsNeighboursAreNot) {
  const std::string text = "ñ€®\r\nC:\\日本\\é\r\né";
  const std::string bytes = "\xF1\x80\xAE\r\nC:\\日本\\é\r\n\xE9";
  EXPECT_EQ(EncodeCodePage(text), bytes);
  EXPECT_EQ(DecodeCodePage(bytes), text);
  // Well-formed, but every character is in the code page: these are single bytes.
  EXPECT_EQ(DecodeCodePage("\xC3\xA9"), "Ã©");
}

TEST(CodePage, AnyBytesComeBackAsTheyWere) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(EncodeCodePage(DecodeCodePage(bytes)), bytes);
  std::mt19937 random(7);
  // Rich in lead and continuation bytes and in line ends.
  const std::string alphabet = "a\r\n\x80\xBF\xC2\xC3\xE0\xE2\xED\xF0\xF4\xFF\xA0\x90";
  for (int round = 0; round < 3000; ++round) {
    bytes.resize(random() % 12);
    for (char& byte : bytes) byte = alphabet[random() % alphabet.size()];
    ASSERT_EQ(EncodeCodePage(DecodeCodePage(bytes)), bytes) << testing::PrintToString(bytes);
  }
}

}  // namespace
}  // namespace platform
