// The list of games, the filter under it, and the panel of the selected game.
#include <algorithm>
#include <string>

#include "base/error_boundary.h"
#include "base/text.h"
#include "core/game_catalogue.h"
#include "core/module1.h"
#include "i18n/message_catalogue.h"
#include "launch/play_launch.h"
#include "platform/files.h"
#include "ui/main/form1.h"
#include "ui/main/frm_gaming.h"

namespace ui {
namespace {

using forms::Picture;
using i18n::Message;
using i18n::Msg;

// The path of the game's archive, or if it is missing its name and the folders that were searched.
std::string ArchiveTip(const core::GameEntry& game) {
  auto tip = game.RomName + ".zip";
  if (game.Available)
    return platform::SystemPath(platform::Joined(Module1::RomPaths.at(game.RomFolder), tip));
  for (std::size_t slot = 0; slot < core::kSearchedFolders && !Module1::RomPaths[slot].empty();
       ++slot)
    tip += "\n" + platform::SystemPath(Module1::RomPaths[slot]);
  return tip;
}

std::string PlayTime(const std::string& seconds) {
  int number = 0;
  base::RunGuarded([&] { number = base::ToInteger(seconds); });
  return base::HoursMinutesSeconds(std::max(number, 0));
}

core::PlayRecord PlayStatsOf(const std::string& game) {
  core::PlayRecord stats{game, "0", "0"};
  for (const auto& record : Module1::PlayLog) {
    if (record.GameId.empty()) break;
    if (record.GameId == game) stats = record;
  }
  return stats;
}

std::string PlayStatsText(const core::PlayRecord& stats, const char* separator) {
  return Msg(Message::PlayCount) + stats.PlayCount + separator + Msg(Message::PlayTime) +
         PlayTime(stats.PlaySeconds);
}

}  // namespace

const core::GameEntry& Form1::GameOfRow(int row) const {
  return Module1::GameCatalog.at(static_cast<std::size_t>(lstGames.itemData(row)));
}

const core::GameEntry& Form1::SelectedGame() const { return GameOfRow(lstGames.selectedRow()); }

std::string Form1::ToolTipOf(int row) const { return ArchiveTip(GameOfRow(row)); }

// For screen readers. The figures of a game that was never played are left out, since they would
// only delay the reading of the list.
std::string Form1::DescriptionOf(int row) const {
  const auto& game = GameOfRow(row);
  std::string text = game.Available ? "" : Msg(Message::NotAvailable);
  if (const auto stats = PlayStatsOf(game.RomName); stats.PlayCount != "0")
    text += (text.empty() ? "" : ", ") + PlayStatsText(stats, ", ");
  return text;
}

void Form1::SelectGamesFilter() {
  const auto filter = Module1::GameListPref;
  Module1::GameListPref = core::kFilterBeingSet;
  optGames[filter].select();
  Module1::GameListPref = filter;
}

void Form1::RefreshGameList() {
  imgIcon.setPicture(icon_);
  imgGames.setPicture(imgDefault.picture());
  lblGameTitle.setCaption(Msg(Message::NoGamesAvailable));
  lblTP.setCaption({});
  lstGames.clear();

  int count = 0;
  for (std::size_t row = 0; row + 1 < Module1::GameCatalog.size(); ++row) {
    const auto& game = Module1::GameCatalog[row];
    if (game.Title.empty() || !(game.Available || optGames[0].selected())) continue;
    const int place = lstGames.add(game.Title);
    lstGames.setItemData(place, static_cast<int>(row));
    if (!game.Available) lstGames.makeQuiet(place);
    ++count;
  }
  if (count == 0) {
    lblInfo.setCaption({});
    cmdPlay.setEnabled(false);
    cmdPlay.setToolTip({});
    cmdConfGame.setEnabled(false);
    lstGames.setAccessibleName(lblGameTitle.caption());
    return;
  }
  lblInfo.setCaption(" " + std::to_string(count) +
                     Msg(count == 1 ? Message::GameListed : Message::GamesListed));
  lstGames.setAccessibleName(lblInfo.caption());
  lstGames.select(0);
  cmdConfGame.setEnabled(true);
}

void Form1::lstGames_Click() {
  const int row = lstGames.selectedRow();
  const int game = lstGames.itemData(row);
  lblGameTitle.setCaption(lstGames.text(row));
  ShowGameSnapshot(game);
  ShowGameIcon(game);
  ShowPlayStats();
  cmdPlay.setEnabled(SelectedGame().Available);
  cmdPlay.setToolTip(ToolTipOf(row));
}

void Form1::ShowGameSnapshot(int row) {
  base::RunGuarded([&] {
    const auto& name = Module1::GameCatalog.at(static_cast<std::size_t>(row)).RomName;
    const auto file = core::FirstFileIn(Module1::SnapPaths, name + ".jpg");
    const auto box = imgGames.box();
    imgGames.setPicture(file.empty() ? imgDefault.picture()
                                     : Picture::FromJpeg(file, box.width, box.height));
  });
}

void Form1::ShowGameIcon(int row) {
  base::RunGuarded([&] {
    const auto& name = Module1::GameCatalog.at(static_cast<std::size_t>(row)).RomName;
    const auto file = core::FirstFileIn(Module1::IconPaths, name + ".ico");
    imgIcon.setPicture(file.empty() ? icon_ : Picture::FromIcon(file, imgIcon.box().width));
  });
}

void Form1::ShowPlayStats() {
  lblTP.setCaption(PlayStatsText(PlayStatsOf(SelectedGame().RomName), "\r\n"));
}

void Form1::optGames_Click(int index) {
  if (Module1::GameListPref == core::kFilterBeingSet) return;
  Module1::GameListPref = static_cast<unsigned char>(index);
  RefreshGameList();
  lstGames.setFocus();
}

void Form1::cmdPlay_Click() {
  if (lstGames.selectedRow() < 0 || gaming_) return;
  launch::BuildLaunchRequest(SelectedGame());
  const auto figures = lblTP.caption();
  frmGaming gaming(*this, lblGameTitle.caption(), imgIcon.picture());
  gaming.centreOver(*this);
  gaming_ = &gaming;
  gaming.showModal(*this);
  gaming_ = nullptr;
  ShowPlayStats();
  // Orca 48 speaks no row that had the focus before the dialogs, if it was quick to notice their
  // end.
  if (lblTP.caption() != figures) lstGames.announceDescription();
}

}  // namespace ui
