#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "core/module1.h"
#include "startup/startup.h"

namespace support {

// UTF-8 to a path and back, whatever the system's own texts are.
std::filesystem::path ToPath(std::string_view text);
std::string ToText(const std::filesystem::path& path);

// The bytes of a file; none where there is no such file.
std::string ReadFile(const std::filesystem::path& path);

// A new folder of a name that no other has.
std::filesystem::path NewFolder();

// A fresh AppFolder, whose path holds a blank and letters outside ASCII, as program and working
// folder, with the shared state as at a program's start. The settings store is a file of the
// test run's own. All of it is gone afterwards.
class TempApp : public testing::Test {
 protected:
  TempApp();
  ~TempApp() override;

  // What a start loads, into the shared state; the message with which it would end.
  static std::optional<i18n::Message> load();

  // Files by their names in AppFolder. Writing makes missing folders.
  static std::filesystem::path path(std::string_view name);
  static bool exists(std::string_view name) { return std::filesystem::exists(path(name)); }
  static std::string read(std::string_view name) { return ReadFile(path(name)); }
  static void write(std::string_view name, std::string_view bytes);
  // On POSIX systems only.
  static void writeProgram(std::string_view name, std::string_view script);

  // The stand-in emulator, and how it is to misbehave.
  static void addEmulator(std::string_view fault = {});
  // An emulator that lists games of these names; the titles are the names in capitals.
  static void addGames(const std::string& names) { addEmulator("games=" + names); }

  // The output of a program in AppFolder, and the exit status at the end of one.
  static std::string capture(const std::string& command);
  static int run(const std::string& command);

  // Lines such as "name=value"; a value with a comma stands in quotes.
  static std::string settings();

 private:
  static void clearSettings();

  std::filesystem::path root_;
};

// Also what other functions find too long.
void RemoveAll(const std::filesystem::path& folder);

// Whether the system has scripts, links, and files that some can't read.
#ifdef _WIN32
inline constexpr bool kPosix = false;
#else
inline constexpr bool kPosix = true;
#endif

// Waits until a program that this one started has ended.
void WaitForChild();

// For its lifetime the rights of a plain user, also under root, and nobody may write to this file
// or folder. On Windows another program has the file, or all files in the folder, open.
class Unprivileged {
 public:
  explicit Unprivileged(const std::filesystem::path& locked = {});
  ~Unprivileged() { undo_(); }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  std::function<void()> undo_;
};

}  // namespace support
