// Runs every file of tests/transcripts and tests/windows, and checks rules for the windows in the
// other languages.
#include <QRegularExpression>
#include <QSet>
#include <fstream>

#include "base/text.h"
#include "i18n/message_catalogue.h"
#include "support/transcript.h"

namespace {

using Path = std::filesystem::path;

class Transcript : public support::Transcript, public testing::WithParamInterface<Path> {};

TEST_P(Transcript, Holds) {
  const auto kept = support::ReadFile(GetParam()), now = run(GetParam());
  if (now == kept) return;
  if (std::getenv("UPDATE_TRANSCRIPTS")) {
    std::ofstream(GetParam(), std::ios::binary) << now;
    return;
  }
  const auto lines = [](const std::string& text) {
    const auto all = base::Split(text, "\n");
    return std::vector<std::string>(all.begin(), all.end());
  };
  ADD_FAILURE() << "- " << GetParam().filename().string() << ", + what happens now\n"
                << testing::internal::edit_distance::CreateUnifiedDiff(lines(kept), lines(now));
}

const auto kNameOf = [](const auto& file) { return file.param.stem().string(); };
INSTANTIATE_TEST_SUITE_P(Window, Transcript, testing::ValuesIn(support::FilesOf("windows")),
                         kNameOf);

INSTANTIATE_TEST_SUITE_P(, Transcript, testing::ValuesIn(support::FilesOf("transcripts")), kNameOf);

// Checks each window in the other languages: its texts are messages of that language or known
// words, and nothing is cut off or overlaps.
class Language : public support::Transcript,
                 public testing::WithParamInterface<std::tuple<Path, int>> {
 protected:
  static QString bare(const QString& text) {
    return QString(text).remove('&').replace('\n', ' ').simplified();
  }
  void look(const QWidget& window) override {
    static const QRegularExpression quoted("\"([^\"]*)\"");
    // Texts that are the same in all languages: names, keys, and what the emulator prints.
    static const QRegularExpression known(
        R"(A front-end for the Kestrivane emulator|Kestrivane( UI)?|v0\.9|0\.3a|ROMS|(Fragment|Vertex) Shader|DirectInput|XInput|Raw Input|MHz|OK|)"
        R"(Mouse|Joystick|ALT|F\d+|\b[A-Z]\b|\d*x\d*|a\.zip|<app>\S*|Error: there is no archive|)"
        "Resolution of the display in pixels");
    QStringList texts;
    for (int message = 0; message < static_cast<int>(i18n::kMessageCount); ++message) {
      auto text = bare(QString::fromStdString(i18n::Msg(static_cast<i18n::Message>(message))));
      texts << text << (text.endsWith(':') ? text.chopped(1) : text);
    }
    std::sort(texts.begin(), texts.end(),
              [](const auto& one, const auto& other) { return one.size() > other.size(); });
    for (const auto& control : support::SnapshotsOf(window)) {
      for (auto found = quoted.globalMatch(control.state + control.looks); found.hasNext();) {
        const auto shown = bare(support::Plain(found.next().captured(1)));
        auto rest = shown;
        for (const auto& text : texts)
          if (!text.isEmpty()) rest.replace(text, "|");
        rest.remove(known);
        // The advanced options are not translated.
        if (window.objectName() != "frmFF" && rest.contains(QRegularExpression("\\p{L}")))
          faults_.insert(control.name + " shows " + shown);
      }
      if (control.state.contains(QRegularExpression("CUT|NOT REPORTED|over (?!lblInfo|Label6)")))
        faults_.insert(control.name + ": " + control.state);
    }
  }

  QSet<QString> faults_;
};

TEST_P(Language, IsUsedForAllTextsAndTheyFit) {
  const auto& [file, language] = GetParam();
  writeConfig(";KVLLanguage=" + std::to_string(language));
  run(file);
  EXPECT_TRUE(faults_.isEmpty()) << qPrintable(faults_.values().join('\n'));
}

INSTANTIATE_TEST_SUITE_P(, Language,
                         testing::Combine(testing::ValuesIn(support::FilesOf("windows")),
                                          testing::Values(1, 2)),
                         [](const auto& test) {
                           return std::get<0>(test.param).stem().string() + "_" +
                                  std::to_string(std::get<1>(test.param));
                         });

}  // namespace
