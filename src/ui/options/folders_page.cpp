#include "ui/options/folders_page.h"

#include <algorithm>
#include <vector>

#include "base/error_boundary.h"
#include "base/text.h"
#include "config/writable_names.h"
#include "core/profiles.h"
#include "i18n/message_catalogue.h"
#include "platform/files.h"
#include "platform/forms/form.h"
#include "platform/forms/message_box.h"

namespace ui {

using i18n::Message;
using i18n::Msg;

namespace {

constexpr int kFirstShaderList = 3;
constexpr int kMaxFolders = 3;
constexpr core::FolderList* kFolderLists[kFirstShaderList] = {
    &Module1::RomPaths, &Module1::SnapPaths, &Module1::IconPaths};
constexpr core::Slot kShaders[] = {core::option::FragmentShader, core::option::VertexShader};
// The hint is too long for the list's own font in some languages.
constexpr forms::FontStyle kHint{8.25, true, false, false, 95};
constexpr forms::Colour kRed{255, 0, 0};

}  // namespace

FoldersPage::FoldersPage(forms::Frame& frame) : frame_(frame) {
  File1.setVisible(false);
  Dir1.accepts = config::IsWritableName;
  File1.canBeChosen = [](const std::string& folder, const std::string& name) {
    return config::IsWritableName(name) && config::IsWritableValue(folder) &&
           config::IsWritableValue(name);
  };
  Drive1.selectFor(Module1::AppFolder);
  Dir1.setPath(Drive1.drive(), Module1::AppFolder);
  Drive1.onChange = [this] { Drive1_Change(); };
  File1.onDblClick = [this] { File1_DblClick(); };
  std::vector<const forms::Control*> order = {&Drive1, &Dir1, &File1};
  for (int index = 0; index < kLists; ++index) {
    // Otherwise a screen reader would speak a long label when it enters the page, although the list
    // has the same name.
    Label1[index].setRole(forms::Role::Decoration);
    cmdRemovePath[index].setEnabled(false);
    lstFolders[index].onClick = [this, index] { lstFolders_Click(index); };
    cmdAddPath[index].onClick = [this, index] { cmdAddPath_Click(index); };
    cmdRemovePath[index].onClick = [this, index] { cmdRemovePath_Click(index); };
    order.insert(order.end(), {&cmdAddPath[index], &cmdRemovePath[index], &lstFolders[index]});
  }
  forms::Form::setTabOrder(order);
}

void FoldersPage::Fill() {
  for (std::size_t slot = 1; slot <= kMaxFolders; ++slot) {
    for (int index = 0; index < kFirstShaderList; ++index) {
      const auto& folder = (*kFolderLists[index])[slot];
      if (folder.empty()) continue;
      lstFolders[index].add(folder);
      cmdRemovePath[index].setEnabled(true);
      lstFolders[index].select(0);
      if (slot == kMaxFolders) cmdAddPath[index].setEnabled(false);
    }
  }
  for (int index = kFirstShaderList; index < kLists; ++index) {
    const auto value = core::EffectiveValue(kShaders[index - kFirstShaderList]);
    if (value.empty()) continue;
    lstFolders[index].add(base::ReplaceIgnoringCase(value, "\"", ""));
    lstFolders[index].select(0);
    cmdAddPath[index].setEnabled(false);
    cmdRemovePath[index].setEnabled(true);
  }
  filled_ = true;
}

void FoldersPage::HideFolders() {
  for (int index = 0; index < kFirstShaderList; ++index) {
    forms::Control* const controls[] = {&Label1[index], &lstFolders[index], &cmdAddPath[index],
                                        &cmdRemovePath[index]};
    for (auto* control : controls) control->setVisible(false);
  }
}

void FoldersPage::Drive1_Change() { Dir1.setPath(Drive1.drive(), Drive1.drive()); }

void FoldersPage::lstFolders_Click(int index) {
  auto& list = lstFolders[index];
  list.setToolTip(list.text(list.selectedRow()));
}

void FoldersPage::cmdAddPath_Click(int index) {
  // If the load step ended early, the stored folders are not in the list yet. A save would drop
  // them.
  if (!filled_) Fill();
  if (!cmdAddPath[index].enabled()) return;
  if (index < kFirstShaderList)
    AddFolder(index);
  else
    StartFileChoice(index);
}

void FoldersPage::AddFolder(int index) {
  auto& list = lstFolders[index];
  const int row = list.add(Dir1.path());
  if (list.count() >= kMaxFolders) cmdAddPath[index].setEnabled(false);
  list.select(row);
  cmdRemovePath[index].setEnabled(true);
  list.setFocus();
}

void FoldersPage::StartFileChoice(int index) {
  File1.setPath(Dir1.path());
  File1.setAccessibleName(Label1[index].caption() + " " + Msg(Message::ShaderHintForKeys));
  if (File1.count() == 0) {
    forms::MsgBox(Msg(Message::FolderIsEmpty), forms::Buttons::Ok, forms::BoxIcon::Exclamation,
                  "Oops!");
    return;
  }
  ShaderTarget = index;
  cmdRemovePath[index].setEnabled(true);
  cmdAddPath[index].setEnabled(false);
  auto& list = lstFolders[index];
  list.setFont(kHint);
  list.setTextColour(kRed);
  list.setBackColour(forms::kWhite);  // red is unreadable on the background of a dark desktop
  list.clear();
  list.add(Msg(Message::ShaderHint));
  list.descriptionOf = [](int) { return Msg(Message::ShaderHintForKeys); };
  // The file list takes the focus before the button is disabled; else the focus would move to
  // lstFolders.
  File1.setVisible(true);
  File1.selectFirst();
  File1.setFocus();
  SetFolderPageEnabled(false);
}

void FoldersPage::File1_DblClick() {
  if (File1.selectedRow() < 0) return;
  auto& list = lstFolders[ShaderTarget];
  list.clear();
  list.descriptionOf = {};
  list.add(platform::Joined(File1.path(), File1.text(File1.selectedRow())));
  list.setFont({});
  list.resetColours();
  SetFolderPageEnabled(true);
  list.select(0);
  list.setFocus();
  File1.setVisible(false);
}

void FoldersPage::SetFolderPageEnabled(bool state) {
  Dir1.setVisible(state);
  Drive1.setVisible(state);
  if (onEnable) onEnable(state);
  for (int index = 0; index < kLists; ++index) {
    const auto entry = static_cast<std::size_t>(index);
    if (!state) {
      SavedAddEnabled[entry] = cmdAddPath[index].enabled();
      SavedRemoveEnabled[entry] = cmdRemovePath[index].enabled();
    }
    cmdAddPath[index].setEnabled(state && SavedAddEnabled[entry]);
    cmdRemovePath[index].setEnabled(state && SavedRemoveEnabled[entry]);
    if (index == ShaderTarget) continue;
    lstFolders[index].setEnabled(state);
    Label1[index].setEnabled(state);
  }
}

void FoldersPage::cmdRemovePath_Click(int index) {
  auto& list = lstFolders[index];
  const bool removed = base::RunGuarded([&] {
    const int row = list.selectedRow();
    list.remove(row);
    if (list.count() == 0)
      cmdRemovePath[index].setEnabled(false);
    else
      list.select(row <= 1 ? 0 : row - 1);
    cmdAddPath[index].setEnabled(true);
  });
  if (!removed)
    forms::MsgBox(Msg(Message::SelectAnItem), forms::Buttons::Ok, forms::BoxIcon::Critical,
                  "Error");
  list.setFocus();
}

void FoldersPage::StoreFolders() {
  for (int index = 0; index < kFirstShaderList; ++index) {
    if (!hasValueToStore(index)) continue;
    auto& table = *kFolderLists[index];
    std::fill(table.begin() + 1, table.begin() + 1 + kMaxFolders, std::string());
    for (int row = 0; row < lstFolders[index].count(); ++row)
      table[static_cast<std::size_t>(row) + 1] = lstFolders[index].text(row);
  }
}

std::vector<std::pair<core::Slot, std::string>> FoldersPage::StagedShaders() const {
  std::vector<std::pair<core::Slot, std::string>> staged;
  for (int index = kFirstShaderList; index < kLists; ++index) {
    const auto& list = lstFolders[index];
    if (hasValueToStore(index))
      staged.emplace_back(kShaders[index - kFirstShaderList],
                          list.count() > 0 ? '"' + list.text(0) + '"' : std::string());
  }
  return staged;
}

void FoldersPage::ApplyLanguage() {
  Label1[1].setCaption(Msg(Message::Snapshots));
  Label1[2].setCaption(Msg(Message::Icons));
  Drive1.setAccessibleName(Msg(Message::FoldersPage));
  Dir1.setAccessibleName(Msg(Message::FoldersPage));
  for (int index = 0; index < kLists; ++index) {
    const auto caption = Label1[index].caption();
    lstFolders[index].setAccessibleName(caption);
    cmdAddPath[index].setAccessibleName(caption + " +");
    cmdRemovePath[index].setAccessibleName(caption + " -");
  }
}

}  // namespace ui
