#include "config/config_reader.h"

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
using core::MainForm;
using namespace Module1;

constexpr unsigned char kFilterBeingSet = 9;

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

void TakeFilter(std::string_view value, MainForm& form) {
  const auto filter = ToByte(value);
  if (filter > 1) return;
  GameListPref = kFilterBeingSet;
  form.SelectGamesFilter(filter);
  GameListPref = filter;
}

void TakeLanguage(std::string_view value, MainForm& form) {
  constexpr std::array<int, 3> kMenuIndex = {0, 2, 1};
  CurrentLanguage = ToByte(value);
  form.TickLanguage(CurrentLanguage < kMenuIndex.size() ? kMenuIndex.at(CurrentLanguage) : -1);
}

struct CommentKey {
  std::string_view key;
  void (*take)(std::string_view value, MainForm& form, bool& bannerSeen);
};

// The first key that a line contains decides, wherever in the line it stands.
constexpr std::array<CommentKey, 8> kCommentKeys = {{
    {";ROMpaths=", [](auto value, auto&, auto&) { TakePathList(value, RomPaths); }},
    {";SNAPpaths=", [](auto value, auto&, auto&) { TakePathList(value, SnapPaths); }},
    {";ICONpaths=", [](auto value, auto&, auto&) { TakePathList(value, IconPaths); }},
    {";GameTimeLog=", [](auto value, auto&, auto&) { TakePlayLog(value); }},
    {"Kestrivane UI®", [](auto, auto&, bool& bannerSeen) { bannerSeen = true; }},
    {";InputMethod=", [](auto value, auto&, auto&) { Profiles[1].InputMethod = ToByte(value); }},
    {";GameListPref=", [](auto value, auto& form, auto&) { TakeFilter(value, form); }},
    {";KVLLanguage=", [](auto value, auto& form, auto&) { TakeLanguage(value, form); }},
}};

void TakeSectionHeader(std::string_view body, std::size_t opening) {
  if (body != "[ Global ]") Profiles.emplace_back();
  const auto closing = body.find(" ]");
  if (closing == std::string_view::npos) throw std::invalid_argument("no closing bracket");
  // As many characters as stand before the closing bracket, less the two of an opening one in
  // column 1, wherever the opening one stands.
  const auto charsBefore = base::CharCount(body.substr(0, closing));
  if (charsBefore < 2) throw std::invalid_argument("brackets in the wrong order");
  const auto name = body.substr(opening + 2);
  Profiles.back().Name = base::Trim(name.substr(0, base::OffsetOfChar(name, charsBefore - 2)));
}

void TakeOption(std::string_view body) {
  const auto slot = core::OptionIndex(base::Trim(body.substr(0, body.find('='))));
  if (slot >= 0)
    Profiles.back().Slots.at(static_cast<std::size_t>(slot)).Value = ConfigValueOf(body);
}

void TakeLine(std::string_view line, MainForm& form, bool& bannerSeen) {
  // Every comment key holds ";" and the banner "®": most lines have neither.
  if (line.find_first_of(";\xC2") != std::string_view::npos) {
    for (const auto& [key, take] : kCommentKeys)
      if (base::ContainsIgnoringCase(line, key))
        return take(line.substr(base::OffsetOfChar(line, key.size())), form, bannerSeen);
  }
  const auto body = line.substr(0, line.find(';'));
  if (base::Trim(body).empty()) return;
  if (const auto opening = body.find("[ "); opening != std::string_view::npos)
    TakeSectionHeader(body, opening);
  else
    TakeOption(body);
}

}  // namespace

std::string_view ConfigValueOf(std::string_view body) {
  const auto equals = body.find('=');
  if (equals == std::string_view::npos || body.find('=', equals + 1) != std::string_view::npos)
    return {};
  return base::Trim(body.substr(equals + 1));
}

void ParseConfigText(std::string_view text, MainForm& form) {
  base::Quietly([&] {
    bool bannerSeen = false;
    auto lines = base::Split(text, base::kLineEnd);
    if (lines.size() >= 2) {
      lines.pop_back();
      constexpr std::size_t kMaxLines = std::size_t{std::numeric_limits<short>::max()} + 1;
      if (lines.size() > kMaxLines) throw std::length_error("too many lines");
      for (const auto line : lines) TakeLine(line, form, bannerSeen);
    }
    if (bannerSeen) return;
    const auto file = AppFolder + std::string(core::kConfigFile);
    platform::CopyFileBytes(file, file + ".bak");
  });
}

void LoadConfigFile(MainForm& form) {
  auto file = AppFolder + std::string(core::kConfigFile);
  if (launch::FileExists(file)) {
    std::string text;
    if (base::Quietly([&] { text = platform::ReadText(file); }))
      ParseConfigText(text, form);
    else
      core::ResetInputsToDefaults();
  } else {
    core::ResetInputsToDefaults();
  }
  core::LoadGameCatalog(form);
}

}  // namespace config
