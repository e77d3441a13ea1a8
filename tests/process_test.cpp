#include "platform/files.h"
#include "support/process_app.h"

namespace {

namespace fs = std::filesystem;
using Module1::AppFolder;

class Process : public support::ProcessApp {};

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
    if (fault == "flood") {
      EXPECT_EQ(run("Kestrivane -print-games"), 0) << "not held up by its output";
    }
  }
  addEmulator("deluge");
  EXPECT_EQ(capture("kestrivane.exe -print-games").size(), 16U << 20U);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));
}

}  // namespace
