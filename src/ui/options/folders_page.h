// The page of Form2 with the user's folders and the shader files.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "config/writable_names.h"
#include "core/module1.h"
#include "platform/forms/command_button.h"
#include "platform/forms/drive_list.h"
#include "platform/forms/file_list.h"
#include "platform/forms/folder_tree.h"
#include "platform/forms/frame.h"
#include "platform/forms/label.h"
#include "platform/forms/list_box.h"
#include "ui/shared/page_fonts.h"

namespace ui {

class FoldersPage {
 public:
  explicit FoldersPage(forms::Frame& frame);

  // Shows the folders of the shared state and the effective shader options.
  void Fill();
  // Hides the folder lists, which a game's options don't have.
  void HideFolders();
  // Store or return the contents of the lists. Lists that were neither filled nor changed are left
  // out.
  void StoreFolders();
  std::vector<std::pair<core::Slot, std::string>> StagedShaders() const;
  void ApplyLanguage();

  // Called with false when the choice of a shader file begins, which locks the rest of the dialog,
  // and with true when it ends.
  std::function<void(bool enabled)> onEnable;

 private:
  static constexpr int kLists = 5;

  void cmdAddPath_Click(int index);
  void cmdRemovePath_Click(int index);
  void AddFolder(int index);
  void StartFileChoice(int index);
  void File1_DblClick();
  void Drive1_Change();
  void lstFolders_Click(int index);
  void SetFolderPageEnabled(bool state);
  bool hasValueToStore(int index) const { return filled_ || lstFolders[index].count() > 0; }

  forms::Frame& frame_;
  bool filled_ = false;
  int ShaderTarget = 0;
  std::array<bool, kLists> SavedAddEnabled{};
  std::array<bool, kLists> SavedRemoveEnabled{};

  forms::DriveList Drive1{frame_, "Drive1", {120, 240, 3015, 315}, config::IsWritablePath};
  forms::FolderTree Dir1{frame_, "Dir1", {120, 600, 3015, 3465}};
  forms::FileList File1{frame_, "File1", {120, 300, 3015, 3795}};
  forms::Label Label1[kLists] = {
      {frame_, "Label1(0)", {3240, 240, 3735, 225}, "ROMS:", kSmallBold},
      {frame_, "Label1(1)", {3240, 1125, 3735, 225}, "Snapshots:", kSmallBold},
      {frame_, "Label1(2)", {3240, 2010, 3735, 225}, "Icons:", kSmallBold},
      {frame_, "Label1(3)", {3240, 3120, 3735, 225}, "Fragment Shader:", kSmallBold},
      {frame_, "Label1(4)", {3240, 3600, 3735, 225}, "Vertex Shader:", kSmallBold}};
  forms::ListBox lstFolders[kLists] = {{frame_, "lstFolders(0)", {3240, 480, 4335, 645}},
                                       {frame_, "lstFolders(1)", {3240, 1365, 4335, 645}},
                                       {frame_, "lstFolders(2)", {3240, 2250, 4335, 645}},
                                       {frame_, "lstFolders(3)", {3240, 3360, 4335, 255}},
                                       {frame_, "lstFolders(4)", {3240, 3840, 4335, 255}}};
  forms::CommandButton cmdAddPath[kLists] = {
      {frame_, "cmdAddPath(0)", {7050, 225, 255, 255}, "+", kSmallBold},
      {frame_, "cmdAddPath(1)", {7050, 1110, 255, 255}, "+", kSmallBold},
      {frame_, "cmdAddPath(2)", {7050, 1995, 255, 255}, "+", kSmallBold},
      {frame_, "cmdAddPath(3)", {7050, 3120, 255, 255}, "+", kSmallBold},
      {frame_, "cmdAddPath(4)", {7050, 3600, 255, 255}, "+", kSmallBold}};
  forms::CommandButton cmdRemovePath[kLists] = {
      {frame_, "cmdRemovePath(0)", {7305, 225, 255, 255}, "-", kSmallBold},
      {frame_, "cmdRemovePath(1)", {7305, 1110, 255, 255}, "-", kSmallBold},
      {frame_, "cmdRemovePath(2)", {7305, 1995, 255, 255}, "-", kSmallBold},
      {frame_, "cmdRemovePath(3)", {7305, 3120, 255, 255}, "-", kSmallBold},
      {frame_, "cmdRemovePath(4)", {7305, 3600, 255, 255}, "-", kSmallBold}};
};

}  // namespace ui
