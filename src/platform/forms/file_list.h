#pragma once

#include <functional>
#include <string>

#include "platform/forms/list_box.h"

namespace forms {

// The files of one folder, sorted ignoring case. Enter in it acts as a double click.
class FileList : public ListBox {
 public:
  FileList(Container& parent, const char* name, const Box& box);

  std::string path() const { return folder_; }
  // Lists the files of this folder, or none if it can't be read.
  void setPath(const std::string& folder);

  // Selects the first file that can be chosen, if there is one.
  void selectFirst();

  // Files for which this returns false are listed, but can't be chosen.
  std::function<bool(const std::string& folder, const std::string& name)> canBeChosen;

 private:
  std::string folder_;
  int firstChoice_ = -1;
};

}  // namespace forms
