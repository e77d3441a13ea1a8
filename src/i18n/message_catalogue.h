#pragma once

#include <string>

namespace i18n {

// The text of a number in the current language; empty for a number or language not in the
// catalogue.
std::string Msg(unsigned char number);

}  // namespace i18n
