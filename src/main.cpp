#include <utility>

#include "base/error_boundary.h"
#include "core/module1.h"
#include "platform/app_folder.h"
#include "platform/console.h"
#include "platform/forms/application.h"
#include "platform/program_start.h"
#include "startup/arguments.h"
#include "startup/startup.h"
#include "ui/main/form1.h"

int main(int argc, char** argv) {
  platform::PrepareProgram();
  const auto answer = startup::AnswerTo(platform::ProgramArguments(argc, argv));
  if (!answer.complaint.empty()) platform::PrintError(answer.complaint);
  if (!answer.output.empty()) return platform::PrintOutput(answer.output) ? 0 : 1;
  base::RunGuarded([] {
    Module1::AppFolder = platform::ProgramFolder();
    // The emulator inherits the working folder.
    platform::SetWorkingFolder(Module1::AppFolder);
  });
  startup::FillSharedState();
  // Reading files and running the emulator overlap with the start of the toolkit.
  auto loading = startup::BeginLoading(Module1::AppFolder);
  forms::Application application;
  ui::Form1 form;
  form.Form_Load(std::move(loading));
  application.run();
}
