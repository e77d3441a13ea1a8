#include "config/config_reader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <stdexcept>

#include "base/quietly.h"
#include "base/text.h"
#include "core/emulator_contract.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "core/option_catalogue.h"
#include "launch/process_capture.h"
#include "platform/files.h"

namespace config {
namespace {

using base::ToByte;
using namespace Module1;

void TakePathList(std::string_view value, std::array<std::string, 5>& paths) {
  std::size_t entry = 1;
  for (const auto path : base::Split(value, "*")) paths.at(entry++) = path;
}

void TakePlayLog(std::string_view value) {
  std::size_t row = 0;
  for (const auto element : base::Split(value, "*")) {
    auto& record = PlayLog.at(row++);
    const auto fields = base::Split(element, ",");
    record.GameId = fields.at(0);
    record.PlayCount = fields.at(1);
    record.PlaySeconds = fields.at(2);
  }
}

void TakeFilter(std::string_view value) {
  const auto filter = ToByte(value);
  if (filter <= 1) GameListPref = filter;
}

struct CommentKey {
  std::string_view key;
  void (*take)(std::string_view value, bool& bannerSeen);
};

// The first key that a line contains decides, wherever in the line it stands.
constexpr std::array<CommentKey, 8> kCommentKeys = {{
    {";ROMpaths=", [](auto value, auto&) { TakePathList(value, RomPaths); }},
    {";SNAPpaths=", [](auto value, auto&) { TakePathList(value, SnapPaths); }},
    {";ICONpaths=", [](auto value, auto&) { TakePathList(value, IconPaths); }},
    {";GameTimeLog=", [](auto value, auto&) { TakePlayLog(value); }},
    {"Kestrivane UI®", [](auto, bool& bannerSeen) { bannerSeen = true; }},
    {";InputMethod=", [](auto value, auto&) { Profiles[1].InputMethod = ToByte(value); }},
    {";GameListPref=", [](auto value, auto&) { TakeFilter(value); }},
    {";KVLLanguage=", [](auto value, auto&) { CurrentLanguage = ToByte(value); }},
}};

void TakeSectionHeader(std::string_view body, std::size_t opening) {
  if (body != "[ Global ]") {
    // What is beyond saving shares one row, so that a hostile file can't fill the memory.
    if (Profiles.size() <= core::kMaxProfiles)
      Profiles.emplace_back();
    else
      Profiles.back() = {};
  }
  const auto closing = body.find(" ]");
  if (closing == std::string_view::npos) throw std::invalid_argument("no closing bracket");
  // As many characters as stand before the closing bracket, less the two of an opening one in
  // column 1, wherever the opening one stands.
  const auto charsBefore = base::CharCount(body.substr(0, closing));
  if (charsBefore < 2) throw std::invalid_argument("brackets in the wrong order");
  const auto name = body.substr(opening + 2);
  Profiles.back().Name = base::Trim(name.substr(0, base::OffsetOfChar(name, charsBefore - 2)));
}

// What stands behind the "=" of an option line; empty unless there is exactly one.
std::string_view ConfigValueOf(std::string_view body) {
  const auto equals = body.find('=');
  if (equals == std::string_view::npos || body.find('=', equals + 1) != std::string_view::npos)
    return {};
  return base::Trim(body.substr(equals + 1));
}

void TakeOption(std::string_view body) {
  const auto slot = core::OptionIndex(base::Trim(body.substr(0, body.find('='))));
  if (slot >= 0) Profiles.back().Slots[static_cast<std::size_t>(slot)].Value = ConfigValueOf(body);
}

// The next place of one character in a text that is walked from front to back. Most lines hold
// none, and learn so without being searched.
class NextMark {
 public:
  NextMark(std::string_view text, char mark) : text_(text), mark_(mark), at_(text.find(mark)) {}

  // Its place in the line that takes these positions of the text, or npos.
  std::size_t in(std::size_t begin, std::size_t end) {
    if (at_ < begin) at_ = text_.find(mark_, begin);
    return at_ < end ? at_ - begin : std::string_view::npos;
  }

 private:
  std::string_view text_;
  char mark_;
  std::size_t at_;
};

class Parser {
 public:
  explicit Parser(std::string_view text)
      : text_(text), comments_(text, ';'), banners_(text, '\xC2'), headers_(text, '[') {}

  bool bannerSeen() const { return bannerSeen_; }

  // All lines but the piece behind the last line end.
  void takeLines() {
    for (std::size_t begin = 0, end = 0;
         (end = text_.find(base::kLineEnd, begin)) != std::string_view::npos;
         begin = end + base::kLineEnd.size())
      takeLine(begin, end);
  }

 private:
  void takeLine(std::size_t begin, std::size_t end) {
    const auto line = text_.substr(begin, end - begin);
    const auto comment = comments_.in(begin, end);
    // Every comment key holds ";" and the banner "®".
    if (comment != std::string_view::npos || banners_.in(begin, end) != std::string_view::npos) {
      for (const auto& [key, take] : kCommentKeys)
        if (base::ContainsIgnoringCase(line, key))
          return take(line.substr(base::OffsetOfChar(line, key.size())), bannerSeen_);
    }
    const auto body = line.substr(0, comment);
    if (body.find_first_not_of(' ') == std::string_view::npos) return;
    const auto opening = headers_.in(begin, end) == std::string_view::npos ? std::string_view::npos
                                                                           : body.find("[ ");
    if (opening != std::string_view::npos)
      TakeSectionHeader(body, opening);
    else
      TakeOption(body);
  }

  std::string_view text_;
  NextMark comments_, banners_, headers_;
  bool bannerSeen_ = false;
};

bool HasTooManyLines(std::string_view text) {
  constexpr std::size_t kMaxLines = std::size_t{std::numeric_limits<short>::max()} + 1;
  // Counting one character is quick, and there are at least as many as line ends.
  if (static_cast<std::size_t>(std::count(text.begin(), text.end(), '\r')) <= kMaxLines)
    return false;
  return base::Split(text, base::kLineEnd).size() > kMaxLines + 1;
}

}  // namespace

void ParseConfigText(std::string_view text) {
  base::Quietly([&] {
    if (HasTooManyLines(text)) throw std::length_error("too many lines");
    Parser parser(text);
    parser.takeLines();
    if (parser.bannerSeen()) return;
    const auto file = AppFolder + std::string(core::kConfigFile);
    platform::CopyFileBytes(file, file + ".bak");
  });
}

std::optional<unsigned char> LoadConfigFile() {
  auto file = AppFolder + std::string(core::kConfigFile);
  if (launch::FileExists(file)) {
    std::string text;
    if (base::Quietly([&] { text = platform::ReadText(file); }))
      ParseConfigText(text);
    else
      core::ResetInputsToDefaults();
  } else {
    core::ResetInputsToDefaults();
  }
  return core::LoadGameCatalog();
}

}  // namespace config
