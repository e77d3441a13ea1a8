// What the buttons of message boxes are called.
#pragma once

namespace i18n {

// With access keys.
struct Answers {
  const char *ok, *yes, *no, *cancel;
};

// In the current language; English for a language that is not one of the three.
const Answers& AnswerTexts();

}  // namespace i18n
