#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "core/module1.h"
#include "startup/startup.h"

namespace support {

// Convert between UTF-8 and a path.
std::filesystem::path ToPath(std::string_view text);
std::string ToText(const std::filesystem::path& path);

// The bytes of a file; empty if there is no such file.
std::string ReadFile(const std::filesystem::path& path);

// A new folder with a random name.
std::filesystem::path NewFolder();

// A fresh AppFolder as program and working folder, with the shared state of a program's start. Its
// path contains a blank and letters outside ASCII. The settings store is the test run's own. All of
// it is removed afterwards.
class TempApp : public testing::Test {
 protected:
  TempApp();
  ~TempApp() override;

  // Loads what a start loads into the shared state. Returns the message if the start would fail.
  static std::optional<i18n::Message> load();

  // Access to files by their names in AppFolder. `write` creates missing folders.
  static std::filesystem::path path(std::string_view name);
  static bool exists(std::string_view name) { return std::filesystem::exists(path(name)); }
  static std::string read(std::string_view name) { return ReadFile(path(name)); }
  static void write(std::string_view name, std::string_view bytes);
  // On POSIX systems only.
  static void writeProgram(std::string_view name, std::string_view script);

  // Adds the stand-in emulator, with a fault of its listing (see standin/listing.h).
  static void addEmulator(std::string_view fault = {});
  // Adds an emulator that lists games with these names; the titles are the names in capitals.
  static void addGames(const std::string& names) { addEmulator("games=" + names); }

  // Run a program in AppFolder to its end and return its output, or its exit status.
  static std::string capture(const std::string& command);
  static int run(const std::string& command);

  // The settings store as lines "name=value"; a value with a comma is in quotes.
  static std::string settings();

 private:
  static void clearSettings();

  std::filesystem::path root_;
};

// Removes a folder, even one with paths too long for std::filesystem.
void RemoveAll(const std::filesystem::path& folder);

// Whether the system has scripts, links, and permission bits.
#ifdef _WIN32
inline constexpr bool kPosix = false;
#else
inline constexpr bool kPosix = true;
#endif

// Waits until a program that this one started has ended.
void WaitForChild();

// While it exists, the test has the rights of an ordinary user, even if root runs it, and nobody
// may write to this file or folder. On Windows, another program has the file, or all files in the
// folder, open.
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
