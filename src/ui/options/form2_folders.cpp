// The folders page: the user's folders, the shader files, and the choice of such a file.
#include "base/quietly.h"
#include "base/text.h"
#include "core/option_catalogue.h"
#include "i18n/message_catalogue.h"
#include "platform/forms/message_box.h"
#include "ui/options/form2.h"

namespace ui {

using i18n::Msg;
using namespace Module1;

namespace {

constexpr int kFirstShaderList = 3;
constexpr int kMaxFolders = 3;
constexpr forms::FontStyle kHint{7.5, true};  // fits the list in every language
constexpr forms::Colour kRed{255, 0, 0};

}  // namespace

void Form2::WireFolders() {
  File1.setVisible(false);
  Drive1.selectFor(AppFolder);
  Dir1.setPath(Drive1.drive(), AppFolder);
  Drive1.onChange = [this] { Drive1_Change(); };
  File1.onDblClick = [this] { File1_DblClick(); };
  std::vector<const forms::Control*> order = {&Drive1, &Dir1, &File1};
  for (int index = 0; index < kLists; ++index) {
    cmdRemovePath[index].setEnabled(false);
    lstFolders[index].onClick = [this, index] { lstFolders_Click(index); };
    cmdAddPath[index].onClick = [this, index] { cmdAddPath_Click(index); };
    cmdRemovePath[index].onClick = [this, index] { cmdRemovePath_Click(index); };
    order.insert(order.end(), {&cmdAddPath[index], &cmdRemovePath[index], &lstFolders[index]});
  }
  setTabOrder(order);
}

void Form2::FillFolderLists() {
  const std::array<std::string, 5>* const tables[] = {&RomPaths, &SnapPaths, &IconPaths};
  for (std::size_t slot = 1; slot <= kMaxFolders; ++slot) {
    for (int index = 0; index < kFirstShaderList; ++index) {
      const auto& folder = tables[index]->at(slot);
      if (folder.empty()) continue;
      lstFolders[index].add(folder);
      cmdRemovePath[index].setEnabled(true);
      lstFolders[index].select(0);
      if (slot == kMaxFolders) cmdAddPath[index].setEnabled(false);
    }
  }
  const char* const shaders[] = {"FragmentShader", "VertexShader"};
  for (int index = kFirstShaderList; index < kLists; ++index) {
    const auto slot = core::OptionIndex(shaders[index - kFirstShaderList]);
    const auto value = core::EffectiveValue(static_cast<unsigned char>(slot));
    if (value.empty()) continue;
    lstFolders[index].add(base::ReplaceIgnoringCase(value, "\"", ""));
    lstFolders[index].select(0);
    cmdAddPath[index].setEnabled(false);
    cmdRemovePath[index].setEnabled(true);
  }
}

void Form2::Drive1_Change() { Dir1.setPath(Drive1.drive(), Drive1.drive()); }

void Form2::lstFolders_Click(int index) {
  auto& list = lstFolders[index];
  list.setToolTip(list.text(list.selectedRow()));
}

void Form2::cmdAddPath_Click(int index) {
  if (index < kFirstShaderList)
    AddFolder(index);
  else
    StartFileChoice(index);
}

void Form2::AddFolder(int index) {
  auto& list = lstFolders[index];
  const int row = list.add(Dir1.path());
  if (list.count() >= kMaxFolders) cmdAddPath[index].setEnabled(false);
  list.select(row);
  cmdRemovePath[index].setEnabled(true);
  list.setFocus();
}

void Form2::StartFileChoice(int index) {
  File1.setPath(Dir1.path());
  File1.setAccessibleName(Label1[index].caption());
  if (File1.count() == 0) {
    forms::MsgBox(Msg(8), forms::Buttons::Ok, forms::BoxIcon::Exclamation, "Oops!");
    return;
  }
  ShaderTarget = index;
  cmdRemovePath[index].setEnabled(true);
  cmdAddPath[index].setEnabled(false);
  auto& list = lstFolders[index];
  list.setFont(kHint);
  list.setTextColour(kRed);
  list.clear();
  list.add(Msg(7));
  SetFolderPageEnabled(false);
  File1.setVisible(true);
  File1.select(0);
  File1.setFocus();
}

void Form2::File1_DblClick() {
  auto& list = lstFolders[ShaderTarget];
  const auto folder = File1.path();
  const auto* const separator = folder.ends_with('\\') || folder.ends_with('/') ? "" : "\\";
  list.clear();
  list.add(folder + separator + File1.text(File1.selectedRow()));
  list.setFont({});
  list.resetColours();
  SetFolderPageEnabled(true);
  list.select(0);
  list.setFocus();
  File1.setVisible(false);
}

void Form2::SetFolderPageEnabled(bool state) {
  Dir1.setVisible(state);
  Drive1.setVisible(state);
  cmdSave.setEnabled(state);
  btnCancel.setEnabled(state);
  for (int index = 0; index < kLists; ++index) {
    const auto entry = static_cast<std::size_t>(index);
    optOPT[index].setEnabled(state);
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

void Form2::cmdRemovePath_Click(int index) {
  auto& list = lstFolders[index];
  const bool removed = base::Quietly([&] {
    const int row = list.selectedRow();
    list.remove(row);
    if (list.count() == 0)
      cmdRemovePath[index].setEnabled(false);
    else
      list.select(row <= 1 ? 0 : row - 1);
    cmdAddPath[index].setEnabled(true);
  });
  if (!removed) forms::MsgBox(Msg(9), forms::Buttons::Ok, forms::BoxIcon::Critical, "Error");
  list.setFocus();
}

}  // namespace ui
