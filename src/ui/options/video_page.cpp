#include "ui/options/video_page.h"

#include "core/module1.h"
#include "core/profiles.h"
#include "i18n/message_catalogue.h"

namespace ui {
namespace {

using i18n::Message;
using i18n::Msg;

constexpr auto kOfferedResolutions = Module1::ResolutionList.size() - 1;

}  // namespace

VideoPage::VideoPage(forms::Frame& frame) : frame_(frame) {
  Label7.setToolTip("Resolution of the display in pixels");
  tbxCustRes[0].setEnabled(false);
  tbxCustRes[1].setEnabled(false);
  lblCustRes.setEnabled(false);
  chkFullscreen.onClick = [this] { chkFullscreen_Click(); };
  chkCustRes.onClick = [this] { chkCustRes_Click(); };
}

void VideoPage::FillResolutions() {
  for (std::size_t row = 0; row < kOfferedResolutions; ++row) {
    const auto& [width, height] = Module1::ResolutionList[row];
    cmbRes.add(std::to_string(width) + "x" + std::to_string(height));
  }
  cmbRes.select(0);
}

bool VideoPage::SelectResolution() {
  return cmbRes.selectText(core::EffectiveValue(core::option::XResolution) + "x" +
                           core::EffectiveValue(core::option::YResolution));
}

void VideoPage::FillCustomResolution() {
  tbxCustRes[0].setText(core::EffectiveValue(core::option::XResolution));
  tbxCustRes[1].setText(core::EffectiveValue(core::option::YResolution));
  chkCustRes.setValue(1);
  shown_ = {tbxCustRes[0].text(), tbxCustRes[1].text()};
}

std::pair<std::string, std::string> VideoPage::StagedResolution() const {
  if (chkCustRes.value() != 0) {
    // A box shows four characters. An option that is longer must not be cut by a save.
    const auto staged = [](const forms::TextBox& box, const std::string& shown, core::Slot option) {
      return box.text() == shown && !shown.empty() ? core::EffectiveValue(option) : box.text();
    };
    return {staged(tbxCustRes[0], shown_.first, core::option::XResolution),
            staged(tbxCustRes[1], shown_.second, core::option::YResolution)};
  }
  const auto& [width, height] =
      Module1::ResolutionList.at(static_cast<std::size_t>(cmbRes.selectedRow()));
  return {std::to_string(width), std::to_string(height)};
}

std::vector<OptionControl> VideoPage::options() {
  auto showFrameRate = ForOption(core::option::ShowFrameRate, chkFPS);
  showFrameRate.staged = [this] {
    return chkFullscreen.value() == 0 ? std::to_string(chkFPS.value()) : "0";
  };
  return {showFrameRate, ForOption(core::option::FullScreen, chkFullscreen),
          ForOption(core::option::WideScreen, chkWidescreen),
          ForOption(core::option::Vsync, chkVsync), ForOption(core::option::Throttle, chkThrottle)};
}

void VideoPage::DisableWhatOldEmulatorsLack() {
  chkWidescreen.setEnabled(false);
  chkVsync.setEnabled(false);
}

void VideoPage::chkFullscreen_Click() { chkFPS.setEnabled(chkFullscreen.value() == 0); }

void VideoPage::chkCustRes_Click() {
  const bool custom = chkCustRes.value() != 0;
  cmbRes.setEnabled(!custom);
  tbxCustRes[0].setEnabled(custom);
  tbxCustRes[1].setEnabled(custom);
  lblCustRes.setEnabled(custom);
}

void VideoPage::ApplyLanguage() {
  Label7.setCaption(Msg(Message::Resolution));
  chkCustRes.setCaption(Msg(Message::Custom));
  chkFullscreen.setCaption(Msg(Message::Fullscreen));
  chkWidescreen.setCaption(Msg(Message::Widescreen));
  chkThrottle.setCaption(Msg(Message::Throttle));
  chkFPS.setCaption(Msg(Message::ShowFps));
  chkVsync.setCaption(Msg(Message::Vsync));
  cmbRes.setAccessibleName(Label7.caption());
  tbxCustRes[0].setAccessibleName(chkCustRes.caption() + " X");
  tbxCustRes[1].setAccessibleName(chkCustRes.caption() + " Y");
}

}  // namespace ui
