#pragma once

#include <string>

namespace forms {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class BoxIcon { None, Question, Exclamation, Critical };
enum class Answer { Ok, Yes, No, Cancel };

// The captions of the buttons. "&" marks the access key.
struct AnswerCaptions {
  std::string ok, yes, no, cancel;
};

// Sets the captions for all later boxes.
void NameAnswers(AnswerCaptions captions);

// Shows a message over the active window and waits for the answer. Closing the box answers Cancel
// where there is such a button, else No or OK.
Answer MsgBox(const std::string& text, Buttons buttons, BoxIcon icon, const std::string& title);

}  // namespace forms
