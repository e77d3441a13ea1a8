// Opens and creates files for reading and saving.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

// The permission bits of a file. Without a value, a new file gets the usual ones. Windows has none.
using Rights = std::optional<unsigned>;

// An open regular file, never a pipe or a device. Readers share a lock on it, a writer has the lock
// alone. A file that another program has locked can be read, but not written.
class OpenFile {
 public:
  enum class Use { Reading, Saving };

  // `path` is in the system's spelling. Throws if the file can't be opened within FilePatience.
  OpenFile(const std::string& path, Use use);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  long long size() const;
  Rights rights() const;
  // At most `most` bytes that start at offset `from`; fewer only at the end of the file.
  std::string read(long long from, std::size_t most) const;

  // These return whether they succeeded. A failure does not undo what was done before it.
  bool setRights(Rights rights) const;
  bool write(long long at, std::string_view bytes) const;
  bool setSize(long long size) const;
  bool sync() const;
  // Whether the disk has room to overwrite a file of `oldSize` bytes by one of `size` bytes, and
  // this process may write a file of that size.
  bool hasRoom(long long oldSize, long long size) const;

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

// A new file. The destructor deletes it unless keepAs succeeded.
class NewFile {
 public:
  // A file WithoutName is on the disk of the path's folder but gets a name only when it is kept.
  // Not every file system supports that.
  enum class Way { WithoutName, UnderItsName };

  // If `path` is a link to a file that does not exist, that file is created. isOpen returns false
  // if the system refuses.
  NewFile(const std::string& path, Way way, Rights rights);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  bool isOpen() const;
  // Whether the file could not be created or kept because its name is taken.
  bool isNameTaken() const;
  bool add(std::string_view bytes) const;
  // Keeps the file. A file without a name gets this path, which may differ from the first one in
  // the name only. Returns true when the text and, as far as the file system guarantees it, the
  // name are on the disk; false if the file can't be kept.
  bool keepAs(const std::string& path);

 private:
  struct Native;
  std::unique_ptr<Native> native_;
};

// Creates a file. `fill` writes its bytes and returns whether it succeeded. Where the file system
// supports it, the name appears only when the file is complete. Returns false if the name is taken.
// Throws, and leaves no file, if the file can't be created.
bool MakeFile(const std::string& path, Rights rights,
              const std::function<bool(const NewFile& file)>& fill);

// Waits until the names in the folder of this path are on the disk, for at most FilePatience.
void SyncFolderOf(const std::string& path);

}  // namespace platform
