// Every window in every language: what it shows, what a screen reader is told, and its keys.
#include "support/fake_clock.h"
#include "support/ui_test.h"

namespace {

class Accessibility : public support::UiTest {};

TEST_F(Accessibility, EveryWindowShowsAndTellsAllInEveryLanguage) {
  start();
  const char* const about[] = {"mAbout{=Esc}", "mAbout{Image1@@}", "mAbout{lblCredits@@}"};
  for (int language = 0; language < 3; ++language) {
    use(QString("lstGames@1 cmdConfGame=Tab mLang(%1) cmdConfGame{=Right =Right =Right} "
                "mConfig{=Right =Right =Right =Right optOPT(2) lstInput(1)=Down "
                "lstInput(1)=F2{=Esc} %2lblAdvOpts{optADV(1)}} %3")
            .arg(language)
            .arg(QString("cmbInputType=Down ").repeated(language), about[language]));
  }
}

TEST_F(Accessibility, ValuesAndStatesAreTold) {
  support::FakeClock clock;
  write("roms/a.zip", "seconds=0\nend=error\n");
  startWith("Balance = 30|;KVLLanguage=1|");
  use("mConfig{=Right hslVolume(1)=Left optOPT(2) lblLoadDefaults{} =Alt+G}");  // the key of Save
  clock.onSleep = [&] {
    if (clock.sleeps.size() == 1) see(*QApplication::activeModalWidget());
  };
  use("cmdPlay{}");
}

}  // namespace
