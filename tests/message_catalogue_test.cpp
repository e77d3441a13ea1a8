#include "i18n/message_catalogue.h"

#include <gtest/gtest.h>

#include "core/module1.h"

namespace i18n {
namespace {

std::string In(int language, int number) {
  Module1::CurrentLanguage = static_cast<unsigned char>(language);
  return Msg(static_cast<unsigned char>(number));
}

TEST(MessageCatalogue, AnswersItsNumbersInThreeLanguagesAndNoOthers) {
  for (int number = 0; number < 256; ++number) {
    for (int language = 0; language < 5; ++language) {
      const bool known = number <= 18 || (number == 99 && language == 2) ||
                         (number >= 100 && number <= 164) || (number >= 170 && number <= 173);
      EXPECT_EQ(!In(language, number).empty(), known && language < 3) << number << " " << language;
    }
  }
}

TEST(MessageCatalogue, KeepsBlanksAccentsAndAccessKeys) {
  EXPECT_EQ(In(0, 152) + In(1, 152) + In(2, 152), " IN GAME KEYSTECLAS EN JUEGO EM CHAVES DO JOGO");
  EXPECT_EQ(In(2, 1) + In(2, 129), "NÃO HÁ JOGOS DISPONÍVEISBalanço Tras./Front.:");
  for (int number = 100; number <= 114; ++number) {
    EXPECT_NE(In(0, number).find('&'), std::string::npos) << number;
    EXPECT_NE(In(1, number).find('&'), std::string::npos) << number;
    EXPECT_EQ(In(2, number).find('&'), std::string::npos) << number;
  }
}

}  // namespace
}  // namespace i18n
