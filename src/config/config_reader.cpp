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

struct Parse {
  Configuration& configuration;
  ParseResult& result;
};

struct CommentKey {
  std::string_view key;
  void (*take)(std::string_view value, const Parse& to);
};

// The first key of this table that a line contains decides. It may stand anywhere in the line, but
// the value is always what is left when as many characters as the key has are cut from the front of
// the line. So the value is what stands behind the key only where the key begins the line.
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
    // What is beyond saving shares one row, so that a hostile file can't fill the memory.
    if (profiles.size() <= core::kMaxProfiles)
      profiles.emplace_back();
    else
      profiles.back() = {};
  }
  const auto closing = body.find(" ]");
  if (closing == std::string_view::npos) throw Failure("no closing bracket");
  // As many characters as stand before the closing bracket, less the two of an opening one in
  // column 1, wherever the opening one stands.
  const auto charsBefore = base::CharCount(body.substr(0, closing));
  if (charsBefore < 2) throw Failure("brackets in the wrong order");
  const auto name = body.substr(opening + 2);
  profiles.back().Name = base::Trim(name.substr(0, base::OffsetOfChar(name, charsBefore - 2)));
}

// What stands behind the "=" of an option line; empty unless there is exactly one.
std::string_view ConfigValueOf(std::string_view body) {
  const auto pieces = base::Split(body, "=");
  return pieces.size() == 2 ? base::Trim(pieces[1]) : std::string_view();
}

void TakeOption(std::string_view body, core::Profile& profile) {
  const auto slot = core::OptionIndex(base::Trim(body.substr(0, body.find('='))));
  if (slot >= 0) profile.Slots[slot].Value = ConfigValueOf(body);
}

void TakeLine(std::string_view line, const Parse& to) {
  // Every comment key holds ";", and the mark of our files a letter beyond ASCII.
  constexpr auto kNone = std::string_view::npos;
  const bool mayHoldKey = line.find(';') != kNone || line.find('\xC2') != kNone;
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
    lines.pop_back();  // the piece behind the last line end
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
  // A power cut leaves zeros for what did not come to the disk.
  const auto text = std::string_view(bytes).substr(0, bytes.find_last_not_of('\0') + 1);
  const auto parse = ParseConfigText(platform::DecodeLines(text), configuration);
  // Of a save that was cut short a file of ours lacks its end, or has that of the old text too.
  bool isKept = parse.complete && (parse.lastHeadings == 1 || !parse.markSeen);
  if (parse.complete && !parse.markSeen)
    isKept = base::RunGuarded([&] { platform::CopyFileBytes(file, file + ".bak"); });
  if (isKept) configuration.KnownConfigFile = std::move(bytes);
  configuration.ConfigFileHasMoreRows = configuration.Profiles.size() > core::kMaxProfiles;
  return configuration;
}

}  // namespace config
