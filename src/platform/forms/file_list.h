#pragma once

#include "platform/forms/list_box.h"

namespace forms {

// The files of one folder, sorted ignoring case. Enter in it acts as a double click.
class FileList : public ListBox {
 public:
  FileList(Container& parent, const char* name, const Box& box);

  std::string path() const { return folder_; }
  // A folder that can't be read has no files.
  void setPath(const std::string& folder);

  // Lists only what it accepts; everything where none is set.
  std::function<bool(const std::string& folder, const std::string& name)> accepts;

 private:
  std::string folder_;
};

}  // namespace forms
