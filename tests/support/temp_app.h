#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "startup/startup.h"

namespace support {

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
  static std::string read(std::string_view name);
  static void write(std::string_view name, std::string_view bytes);
  static void writeProgram(std::string_view name, std::string_view script);

  // The stand-in emulator, and how it is to misbehave.
  static void addEmulator(std::string_view fault = {});
  // An emulator that lists games of these names; the titles are the names in capitals.
  static void addGames(std::string_view names);

  static std::filesystem::path settingsFile();
  static std::string settings();

 private:
  std::filesystem::path root_, oldWorkingFolder_;
  std::string oldProgramFolder_;
};

// For its lifetime the rights of a plain user, also under root, and nobody may write to this file
// or folder.
class Unprivileged {
 public:
  explicit Unprivileged(std::filesystem::path locked = {});
  ~Unprivileged();
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  std::filesystem::path locked_;
};

}  // namespace support
