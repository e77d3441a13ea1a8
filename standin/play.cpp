#include "play.h"

#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <system_error>
#include <thread>

#include "ini.h"
#include "text.h"

namespace standin {

namespace fs = std::filesystem;

namespace {

volatile std::sig_atomic_t QuitRequested = 0;

void OnQuitSignal(int) { QuitRequested = 1; }

struct Script {
  int seconds = 5;
  std::string end = "good";
};

Script ReadScript(const fs::path& archive) {
  Script script;
  for (const std::string& line : ReadLines(archive, 4096)) {
    const auto [key, value] = SplitKeyValue(line);
    if (key == "end") script.end = value;
    if (key == "seconds") {
      unsigned short seconds = 0;
      const char* const last = value.data() + value.size();
      const auto read = std::from_chars(value.data(), last, seconds);
      if (read.ec == std::errc() && read.ptr == last) script.seconds = seconds;
    }
  }
  return script;
}

// Sleeps for the time of the play. Returns false if the player quit before its end.
bool RunFor(int seconds) {
  std::signal(SIGTERM, OnQuitSignal);
  std::signal(SIGINT, OnQuitSignal);
  using std::chrono::steady_clock;
  const auto end = steady_clock::now() + std::chrono::seconds(seconds);
  while (QuitRequested == 0 && steady_clock::now() < end) {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  return QuitRequested == 0;
}

struct CommandLine {
  std::string archive;
  std::string inputSystem = "dinput";
  std::string unknown;
};

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
  CommandLine command;
  const std::string inputKey = "-input-system=";
  for (const std::string& argument : arguments) {
    if (argument.starts_with(inputKey)) {
      command.inputSystem = argument.substr(inputKey.size());
    } else if (command.archive.empty() && !argument.starts_with('-')) {
      command.archive = argument;
    } else {
      command.unknown = argument;
    }
  }
  return command;
}

// The log's fixed header: seven lines.
std::string LogHeader(const std::vector<std::string>& arguments, const CommandLine& command,
                      const std::string& version) {
  const std::time_t now = std::time(nullptr);
  std::ostringstream header;
  header << "Kestrivane\r\n"
         << "Version " << version << "\r\n"
         << "Started " << std::put_time(std::localtime(&now), "%Y-%m-%d %H:%M:%S") << "\r\n"
         << "Command line: Kestrivane";
  for (const std::string& argument : arguments) header << ' ' << std::quoted(argument);
  header << "\r\n"
         << "Folder: " << ToText(fs::current_path()) << "\r\n"
         << "Archive: " << command.archive << "\r\n"
         << "----------------------------------------\r\n";
  return header.str();
}

void WriteLog(const std::string& text) { std::ofstream("error.log", std::ios::binary) << text; }

}  // namespace

int Play(const std::vector<std::string>& arguments, const std::string& version) {
  std::error_code error;
  fs::remove("error.log", error);

  const CommandLine command = ReadCommandLine(arguments);
  std::string log = LogHeader(arguments, command, version);
  if (!command.unknown.empty()) {
    WriteLog(log + "Error: unknown argument " + command.unknown + "\r\n");
    return 1;
  }
  const fs::path archive = ToPath(command.archive);
  if (!fs::is_regular_file(archive, error)) {
    WriteLog(log + "Error: there is no archive " + command.archive + "\r\n");
    return 1;
  }

  log += "Input system: " + command.inputSystem + "\r\n";
  for (const Option& option : OptionsInForce(ToText(archive.stem()))) {
    log += option.name + " = " + option.value + "\r\n";
  }

  const Script script = ReadScript(archive);
  const bool playedOut = RunFor(script.seconds);
  if (playedOut && script.end == "crash") std::abort();
  if (playedOut && script.end == "nolog") return 0;
  if (playedOut && script.end == "error") {
    WriteLog(log +
             "Error: the sound board stopped answering at address 00F0A31C.\r\n"
             "Error: 3 of 16 program images have a wrong checksum:\r\n"
             "    mb-0417.21, mb-0418.22, mb-0421.25\r\n"
             "The game can't go on.\r\n");
    return 1;
  }
  WriteLog(log + "Program terminated normally.\r\n");
  return 0;
}

}  // namespace standin
