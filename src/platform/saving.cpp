// Overwrites files in place. Whatever interrupts a save, the file has the old text or the new one,
// or a copy has the old one.
#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/failure.h"
#include "platform/files.h"
#include "platform/open_file.h"
#include "platform/patience.h"

namespace platform {
namespace {

constexpr std::size_t kPieceBytes = std::size_t{1} << 20U;

// So many bytes of empty lines, to be appended to a text. They have the text's kind of line end.
std::string EmptyLines(std::string_view text, long long bytes) {
  const bool hasCR =
      text.find('\r') != std::string_view::npos || text.find('\n') == std::string_view::npos;
  std::string lines(static_cast<std::size_t>(std::max(bytes, 0LL)), '\n');
  for (std::size_t at = text.ends_with('\r') ? 1 : 0; hasCR && at < lines.size(); at += 2)
    lines[at] = '\r';
  return lines;
}

// Writes the bytes and waits until they are on the disk. Tries again on failure.
bool Store(const OpenFile& file, long long at, std::string_view bytes) {
  return RetryUntil([&] { return file.write(at, bytes) && file.sync(); });
}

// Sets the file's size and waits until it is on the disk. Tries again on failure.
bool Resize(const OpenFile& file, long long size) {
  return RetryUntil([&] { return file.setSize(size) && file.sync(); });
}

// Calls `make` with this path, then with numbers appended to it, until `make` returns true. It must
// return false if the name is taken. Names of existing files are skipped.
void UnderUnusedName(const std::string& path, const std::function<bool(const std::string&)>& make) {
  constexpr int kMaxCopies = 1000;
  for (int number = 1; number <= kMaxCopies; ++number) {
    const auto name = path + (number == 1 ? "" : std::to_string(number));
    const auto existence = LookForFile(name);
    if (existence == Existence::Unknown) break;
    if (existence == Existence::NotThere && make(SystemPath(name))) return;
  }
  throw base::Failure("no name for a copy");
}

void Copy(const OpenFile& from, const std::string& path) {
  const auto size = from.size();
  const auto fill = [&](const NewFile& copy) {
    for (long long at = 0; at < size;) {
      const auto piece = from.read(at, kPieceBytes);
      if (piece.empty() || !copy.add(piece)) return false;
      at += static_cast<long long>(piece.size());
    }
    return true;
  };
  UnderUnusedName(path, [&](const auto& name) { return MakeFile(name, from.rights(), fill); });
}

// A copy of the old text, which gets a name only if a save fails and can't put the text back. If
// the file system supports files without a name, the copy is written before the save, because the
// disk may refuse any write after it.
class Spare {
 public:
  Spare(std::string path, std::string_view text, Rights rights)
      : path_(std::move(path)),
        text_(text),
        rights_(rights),
        file_(SystemPath(path_), NewFile::Way::WithoutName, rights),
        isWhole_(file_.isOpen() && file_.add(text)) {}

  void keep() {
    UnderUnusedName(path_, [&](const auto& name) {
      if (isWhole_ && file_.keepAs(name)) return true;
      return MakeFile(name, rights_, [&](const NewFile& copy) { return copy.add(text_); });
    });
  }

 private:
  std::string path_;
  std::string_view text_;
  Rights rights_;
  NewFile file_;
  bool isWhole_;
};

// Overwrites the old text, which the caller keeps in memory, with the new one.
void Replace(const OpenFile& file, std::string_view old, std::string_view bytes, Spare* spare) {
  const auto oldSize = static_cast<long long>(old.size());
  const auto size = static_cast<long long>(bytes.size());
  // For a longer text, the file first grows on the disk. Otherwise a power cut could leave the new
  // text cut off at the old size, which may read as if it were complete.
  if (size > oldSize && !Store(file, oldSize, EmptyLines(old, size - oldSize))) {
    Resize(file, oldSize);
    throw base::Failure("the file can't grow");
  }
  // After a shorter text, empty lines overwrite the rest of the old one, and the caller cuts the
  // file. So the file can be read at any time, and the text is on the disk before the size changes.
  if (Store(file, 0, std::string(bytes) + EmptyLines(bytes, oldSize - size))) return;
  Store(file, 0, old);
  Resize(file, oldSize);
  if (spare && file.read(0, old.size() + 1) != old) spare->keep();
  throw base::Failure("the file can't be written");
}

void Overwrite(const std::string& path, std::string_view bytes, Rights rights,
               const Rescue* rescue) {
  const OpenFile file(path, OpenFile::Use::Saving);
  file.setRights(rights);
  const bool fitsMemory = file.size() <= kLargestText;
  const auto old = fitsMemory ? file.read(0, static_cast<std::size_t>(file.size())) : std::string();
  std::optional<Spare> spare;
  if (rescue && fitsMemory && rescue->known == old) {
    spare.emplace(rescue->copy, old, file.rights());
  } else if (rescue) {
    Copy(file, rescue->copy);
    rescue->known = old;
  }
  if (!fitsMemory && !file.setSize(0)) throw base::Failure("the file can't be cut");
  const auto oldSize = static_cast<long long>(old.size());
  const auto size = static_cast<long long>(bytes.size());
  if (!file.hasRoom(oldSize, size)) throw base::Failure("no room on the disk");
  Replace(file, old, bytes, spare ? &*spare : nullptr);
  const bool isCut = size >= oldSize || Resize(file, size);
  if (rescue) rescue->known = std::string(bytes) + (isCut ? "" : EmptyLines(bytes, oldSize - size));
}

void Save(std::string_view path, std::string_view bytes, Rights rights, const Rescue* rescue) {
  const auto existence = LookForFile(path);
  const auto name = SystemPath(path);
  const auto fill = [&](const NewFile& file) { return file.add(bytes); };
  // A file is created only if it surely does not exist. Overwrite creates none.
  if (existence == Existence::NotThere && MakeFile(name, rights, fill)) {
    if (rescue) rescue->known = bytes;
  } else {
    Overwrite(name, bytes, rights, rescue);
  }
}

}  // namespace

bool MakeFile(const std::string& path, Rights rights,
              const std::function<bool(const NewFile& file)>& fill) {
  for (const auto way : {NewFile::Way::WithoutName, NewFile::Way::UnderItsName}) {
    NewFile file(path, way, rights);
    if (file.isOpen() && fill(file) && file.keepAs(path)) return true;
    if (file.isNameTaken()) return false;
  }
  throw base::Failure("the file can't be made");
}

void WriteBytes(std::string_view path, std::string_view bytes, const Rescue* rescue) {
  Save(path, bytes, {}, rescue);
}

void CopyFileBytes(std::string_view from, std::string_view to) {
  const OpenFile file(SystemPath(from), OpenFile::Use::Reading);
  if (file.size() > kLargestText) throw base::Failure("file too large");
  Save(to, file.read(0, static_cast<std::size_t>(file.size())), file.rights(), nullptr);
}

std::string ReadBytes(std::string_view path, long long most) {
  const OpenFile file(SystemPath(path), OpenFile::Use::Reading);
  const auto size = file.size();
  if (size > most) throw base::Failure("file too large");
  auto bytes = file.read(0, static_cast<std::size_t>(size));
  if (static_cast<long long>(bytes.size()) < size)
    throw base::Failure("the file was cut while it was read");
  return bytes;
}

void ReadPieces(std::string_view path, std::size_t most,
                const std::function<bool(std::string_view piece)>& takesMore) {
  const OpenFile file(SystemPath(path), OpenFile::Use::Reading);
  for (long long at = 0;; at += static_cast<long long>(most)) {
    const auto piece = file.read(at, most);
    if (piece.empty() || !takesMore(piece)) return;
  }
}

}  // namespace platform
