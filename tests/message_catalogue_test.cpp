#include "i18n/message_catalogue.h"

#include <gtest/gtest.h>

#include <map>

#include "core/module1.h"

namespace i18n {
namespace {

TEST(MessageCatalogue, AnswersItsNumbersInThreeLanguagesAndInEnglishForOthers) {
  std::map<int, std::string> english;
  for (int number = 0; number < 256; ++number) {
    for (const int language : {0, 1, 2, 3, 4}) {
      Module1::CurrentLanguage = static_cast<unsigned char>(language);
      const bool known = number <= 18 || (number == 99 && language == 2) ||
                         (number >= 100 && number <= 164) || (number >= 170 && number <= 173);
      const auto text = Msg(static_cast<Message>(number));
      EXPECT_EQ(!text.empty(), known) << number << " " << language;
      if (language == 0) english[number] = text;
      EXPECT_TRUE(language <= 2 || text == english[number]) << number;
    }
  }
}

}  // namespace
}  // namespace i18n
