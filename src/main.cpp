#include <utility>

#include "base/quietly.h"
#include "config/loading.h"
#include "core/module1.h"
#include "platform/app_folder.h"
#include "platform/forms/application.h"
#include "ui/main/form1.h"

int main() {
  base::Quietly([] {
    Module1::AppFolder = platform::ProgramFolder();
    // The emulator inherits it.
    platform::SetWorkingFolder(Module1::AppFolder);
  });
  // Files and the emulator are waited for while the toolkit starts.
  auto loading = config::StartLoading();
  forms::Application application;
  ui::Form1 form;
  form.Form_Load(std::move(loading));
  application.run();
}
