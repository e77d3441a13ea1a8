// Files as the system opens and makes them, for reading and saving.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

// The permission bits of a file; without any it has what is usual for new ones. Windows has none.
using Rights = std::optional<unsigned>;

// An open regular file, never a pipe or the like. Readers share it, a writer has it alone: a file
// that another program keeps locked is read all the same, but not written.
class OpenFile {
 public:
  enum class Use { Reading, Saving };

  // `path` as the system spells it. Fails if the file can't be had within the patience of files.
  OpenFile(const std::string& path, Use use);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  long long size() const;
  Rights rights() const;
  // The bytes from this place on, at most so many; fewer only at the end of the file.
  std::string read(long long from, std::size_t most) const;

  // Each of these gives its success. What was done before a failure is not undone.
  bool setRights(Rights rights) const;
  bool write(long long at, std::string_view bytes) const;
  bool setSize(long long size) const;
  bool sync() const;
  // Whether the disk has room for a file of this size in the place of one of the old size, and this
  // process may write it.
  bool hasRoom(long long oldSize, long long size) const;

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

// A new file, which is deleted again unless it is kept.
class NewFile {
 public:
  // A file WithoutName is in the folder of the path but has no name there before it is kept. Not
  // every file system can do that.
  enum class Way { WithoutName, UnderItsName };

  // A link that leads to no file stands for that file. Not open if the system refuses.
  NewFile(const std::string& path, Way way, Rights rights);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  bool isOpen() const;
  // Whether it could not be made or kept because something has the name.
  bool isNameTaken() const;
  bool add(std::string_view bytes) const;
  // Gives it its name, or another one in the same folder if it has none yet. Returns when the disk
  // has the text and, as far as the file system promises it, the name. False if it can't be kept.
  bool keepAs(const std::string& path);

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

// Makes a file of what `fill` adds, which gives its success. It has its name only once it is whole,
// where the file system can do that. False if something has the name; fails, and leaves nothing,
// where it can't be made.
bool MakeFile(const std::string& path, Rights rights,
              const std::function<bool(const NewFile& file)>& fill);

// Returns when the disk has the names in the folder of this path, or after the patience of files
// where it can't be brought to that.
void SyncFolderOf(const std::string& path);

}  // namespace platform
