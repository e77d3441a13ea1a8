#include "i18n/answers.h"

#include <array>

#include "core/module1.h"

namespace i18n {
namespace {

constexpr std::array<Answers, 3> kAnswers = {{{"OK", "&Yes", "&No", "Cancel"},
                                              {"Aceptar", "&Sí", "&No", "Cancelar"},
                                              {"OK", "&Sim", "&Não", "Cancelar"}}};

}  // namespace

const Answers& AnswerTexts() {
  const auto language = Module1::CurrentLanguage;
  return kAnswers[language < kAnswers.size() ? language : 0];
}

}  // namespace i18n
