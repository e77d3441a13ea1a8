#include "config/config_reader.h"

#include <array>
#include <vector>

#include "base/error_boundary.h"
#include "base/failure.h"
#include "base/text.h"
#include "config/comment_keys.h"
#include "core/emulator_contract.h"
#include "core/option_catalogue.h"
#include "core/profiles.h"
#include "platform/code_page.h"
#include "platform/files.h"

namespace config {
namespace {

using base::Failure;
using base::ToByte;

constexpr std::size_t kMaxLines = 32768;

void TakePathList(std::string_view value, core::FolderList& paths) {
  std::size_t entry = 1;
  for (const auto path : base::Split(value, "*")) {
    if (entry == paths.size()) throw Failure("too many folders");
    paths[entry++] = path;
  }
}

void TakePlayLog(std::string_view value, core::PlayRecords& records) {
  std::size_t row = 0;
  for (const auto element : base::Split(value, "*")) {
    if (row == records.size()) throw Failure("too many records");
    auto& record = records[row++];
    const auto fields = base::Split(element, ",");
    std::string* const places[] = {&record.GameId, &record.PlayCount, &record.PlaySeconds};
    for (std::size_t field = 0; field < std::size(places); ++field) {
      if (field == fields.size()) throw Failure("too few fields");
      *places[field] = fields[field];
    }
  }
}

struct Target {
  Configuration& configuration;
  ParseResult& result;
};

struct CommentKey {
  std::string_view key;
  void (*take)(std::string_view value, const Target& to);
};

// The first key of this table that a line contains decides. The key may stand anywhere in the
// line, but as many characters as it has are always cut from the front of the line, and the rest
// is the value. So the value is the text behind the key only if the line begins with the key.
constexpr std::array<CommentKey, 8> kCommentKeys = {{
    {kPathKeys[0], [](auto value, auto& to) { TakePathList(value, to.configuration.RomPaths); }},
    {kPathKeys[1], [](auto value, auto& to) { TakePathList(value, to.configuration.SnapPaths); }},
    {kPathKeys[2], [](auto value, auto& to) { TakePathList(value, to.configuration.IconPaths); }},
    {kPlayLogKey, [](auto value, auto& to) { TakePlayLog(value, to.configuration.PlayLog); }},
    {kFrontEndMark, [](auto, auto& to) { to.result.markSeen = true; }},
    {kInputMethodKey,
     [](auto value, auto& to) { to.configuration.Profiles[1].InputMethod = ToByte(value); }},
    {kListFilterKey,
     [](auto value, auto& to) {
       if (const auto filter = ToByte(value); filter <= 1) to.configuration.GameListPref = filter;
     }},
    {kLanguageKey, [](auto value, auto& to) { to.configuration.CurrentLanguage = ToByte(value); }},
}};

void TakeSectionHeader(std::string_view body, std::size_t opening,
                       std::vector<core::Profile>& profiles) {
  if (body != "[ Global ]") {
    // All sections beyond the limit share one row, so that a hostile file can't fill the memory.
    if (profiles.size() <= core::kMaxProfiles)
      profiles.emplace_back();
    else
      profiles.back() = {};
  }
  const auto closing = body.find(" ]");
  if (closing == std::string_view::npos) throw Failure("no closing bracket");
  // The name's length is the number of characters before the closing bracket, less two for an
  // opening bracket in column 1. It is the same if the opening bracket stands further right.
  const auto charsBefore = base::CharCount(body.substr(0, closing));
  if (charsBefore < 2) throw Failure("brackets in the wrong order");
  const auto name = body.substr(opening + 2);
  profiles.back().Name = base::Trim(name.substr(0, base::OffsetOfChar(name, charsBefore - 2)));
}

// The text behind the "=" of an option line; empty unless the line has exactly one "=".
std::string_view ConfigValueOf(std::string_view body) {
  const auto pieces = base::Split(body, "=");
  return pieces.size() == 2 ? base::Trim(pieces[1]) : std::string_view();
}

void TakeOption(std::string_view body, core::Profile& profile) {
  const auto slot = core::OptionIndex(base::Trim(body.substr(0, body.find('='))));
  if (slot >= 0) profile.Slots[slot].Value = ConfigValueOf(body);
}

void TakeLine(std::string_view line, const Target& to) {
  // Most lines need no search for the keys: each key contains ";", or "®" (C2 AE in UTF-8).
  constexpr auto kNotFound = std::string_view::npos;
  const bool mayHoldKey = line.find(';') != kNotFound || line.find('\xC2') != kNotFound;
  for (const auto& [key, take] : kCommentKeys)
    if (mayHoldKey && base::ContainsIgnoringCase(line, key))
      return take(line.substr(base::OffsetOfChar(line, key.size())), to);
  const auto body = line.substr(0, line.find(';'));
  if (base::Trim(body).empty()) return;
  auto& profiles = to.configuration.Profiles;
  if (const auto opening = body.find("[ "); opening != std::string_view::npos)
    TakeSectionHeader(body, opening, profiles);
  else
    TakeOption(body, profiles.back());
}

}  // namespace

ParseResult ParseConfigText(std::string_view text, Configuration& configuration) {
  ParseResult result;
  result.complete = base::RunGuarded([&] {
    auto lines = base::Split(text, base::kLineEnd);
    if (lines.size() < 2) return;
    lines.pop_back();  // the empty piece behind the last line end
    if (lines.size() > kMaxLines) throw Failure("too many lines");
    for (const auto line : lines) {
      TakeLine(line, {configuration, result});
      if (line.starts_with(';') && base::ContainsIgnoringCase(line, kLastHeading))
        ++result.lastHeadings;
    }
  });
  return result;
}

Configuration LoadConfigFile(const std::string& appFolder) {
  auto configuration = Defaults(appFolder);
  const auto file = platform::Joined(appFolder, core::kConfigFile);
  std::string bytes;
  const bool isThere = platform::LookForFile(file) == platform::Existence::There;
  if (!isThere ||
      !base::RunGuarded([&] { bytes = platform::ReadBytes(file, platform::kLargestText); })) {
    core::ResetInputsToDefaults(configuration.Profiles);
    return configuration;
  }
  // A power cut may leave zeros at the end of the file, where data did not reach the disk.
  const auto text = std::string_view(bytes).substr(0, bytes.find_last_not_of('\0') + 1);
  const auto parse = ParseConfigText(platform::DecodeLines(text), configuration);
  // A save that was cut short leaves a file of ours without the last heading, or with that of the
  // old text as well as that of the new one.
  bool mayBeReplaced = parse.complete && (parse.lastHeadings == 1 || !parse.markSeen);
  if (parse.complete && !parse.markSeen)
    mayBeReplaced = base::RunGuarded([&] { platform::CopyFileBytes(file, file + ".bak"); });
  if (mayBeReplaced) configuration.KnownConfigFile = std::move(bytes);
  configuration.ConfigFileHasMoreRows = configuration.Profiles.size() > core::kMaxProfiles;
  return configuration;
}

}  // namespace config
