#include "base/quietly.h"
#include "core/module1.h"
#include "platform/app_folder.h"
#include "platform/forms/application.h"
#include "ui/main/form1.h"

int main() {
  forms::Application application;
  base::Quietly([] {
    Module1::AppFolder = platform::ProgramFolder();
    // The emulator inherits it.
    platform::SetWorkingFolder(Module1::AppFolder);
  });
  ui::Form1 form;
  form.Form_Load();
  application.run();
}
