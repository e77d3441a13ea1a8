#include "i18n/message_catalogue.h"

#include <gtest/gtest.h>

#include "core/module1.h"

namespace i18n {
namespace {

TEST(MessageCatalogue, AnswersItsNumbersInThreeLanguagesAndNoOthers) {
  for (int number = 0; number < 256; ++number) {
    for (const int language : {0, 1, 2, 3, 4}) {
      Module1::CurrentLanguage = static_cast<unsigned char>(language);
      const bool known = number <= 18 || (number == 99 && language == 2) ||
                         (number >= 100 && number <= 164) || (number >= 170 && number <= 173);
      EXPECT_EQ(!Msg(static_cast<unsigned char>(number)).empty(), known && language < 3)
          << number << " " << language;
    }
  }
}

}  // namespace
}  // namespace i18n
