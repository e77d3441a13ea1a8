#include "platform/process.h"

#include <chrono>
#include <thread>

#include "core/module1.h"
#include "launch/process_capture.h"
#include "platform/files.h"
#include "support/temp_app.h"

namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class Process : public support::TempApp {
 protected:
  static std::string capture(const std::string& command) {
    return launch::ShellExecuteCapture(AppFolder + "\\" + command, false);
  }
  static int run(const char* command) {
    platform::StartedProcess process(command);
    while (process.ExitStatus() == platform::kStillActive)
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return process.ExitStatus();
  }
};

TEST_F(Process, CommandLineIsCutIntoProgramAndArguments) {
  for (const auto* file :
       {"Kestrivane.exe", "two words/Tool.exe", "two.exe", "x/Kestrivane.exe", "ROMs/My Game.zip"})
    write(file, "");
  fs::current_path(path("x"));
  const struct {
    std::string line, program;  // no program: none is found
    std::vector<std::string> arguments;
  } rows[] = {{AppFolder + "\\kestrivane.exe -print-games", "Kestrivane.exe", {"-print-games"}},
              {"Kestrivane \"" + AppFolder + "\\roms\\my game.zip\" -input-system=xinput",
               "Kestrivane.exe",
               {platform::SystemPath(AppFolder + "\\roms\\my game.zip"), "-input-system=xinput"}},
              {"  kestrivane   a\"b  c\"d  \"\" ", "Kestrivane.exe", {"ab  cd", ""}},
              {"\"" + AppFolder + "\\two words\\tool\" x", "two words/Tool.exe", {"x"}},
              // The longest piece that names a program wins.
              {AppFolder + "\\two words\\tool x", "two words/Tool.exe", {"x"}},
              {AppFolder + "\\two words x", "two.exe", {"words", "x"}},
              {"two  words", "two.exe", {"words"}},
              {AppFolder + "\\missing.exe -print-games", "", {}},
              {"sh -c true", "", {}},
              {"", "", {}}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.line);
    const auto command = platform::FindCommand(row.line);
    ASSERT_EQ(command.has_value(), !row.program.empty());
    if (!command) continue;
    EXPECT_TRUE(fs::equivalent(support::ToPath(command->program), path(row.program)));
    EXPECT_EQ(command->arguments, row.arguments);
  }
}

TEST_F(Process, CaptureTakesMuchOutputAndDoesNotWaitForAGrandchild) {
  const auto start = std::chrono::steady_clock::now();
  for (const std::string fault : {"flood", "killed", "grandchild"}) {
    addEmulator(fault);
    const auto output = capture("kestrivane.exe -print-games");
    EXPECT_EQ(output.size() > 4194304, fault == "flood") << fault;
    EXPECT_TRUE(output.ends_with("Nimblewick's Parade\r\n")) << fault;
  }
  addEmulator("deluge");
  EXPECT_EQ(capture("kestrivane.exe -print-games").size(), 16U << 20U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));
}

TEST_F(Process, StartedProgramIsNotHeldUpByItsOutput) {
  addEmulator("flood");
  EXPECT_EQ(run("Kestrivane -print-games"), 0);
  write("standin.mode", "nonsense");
  EXPECT_EQ(run("Kestrivane -print-games"), 2);
}

}  // namespace
