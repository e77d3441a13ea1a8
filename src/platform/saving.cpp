// Overwriting a file in place, so that whatever interrupts it leaves the old text or the new one,
// or the old one in a copy.
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

constexpr std::size_t kPiece = std::size_t{1} << 20U;

// Empty lines of so many bytes to stand behind a text, whose lines may end as on another system.
std::string EmptyLines(std::string_view text, long long bytes) {
  const bool hasCR =
      text.find('\r') != std::string_view::npos || text.find('\n') == std::string_view::npos;
  std::string lines(static_cast<std::size_t>(std::max(bytes, 0LL)), '\n');
  for (std::size_t at = text.ends_with('\r') ? 1 : 0; hasCR && at < lines.size(); at += 2)
    lines[at] = '\r';
  return lines;
}

// Brings these bytes to the disk; tries again for a while where it refuses.
bool Store(const OpenFile& file, long long at, std::string_view bytes) {
  return RetryUntil([&] { return file.write(at, bytes) && file.sync(); });
}

// The same for the size of the file.
bool Resize(const OpenFile& file, long long size) {
  return RetryUntil([&] { return file.setSize(size) && file.sync(); });
}

// Calls `make` with this path, and then with numbers behind it, until it makes a file. It makes
// none where something has the name.
void UnderUnusedName(const std::string& path, const std::function<bool(const std::string&)>& make) {
  constexpr int kMostCopies = 1000;
  for (int number = 1; number <= kMostCopies; ++number) {
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
      const auto piece = from.read(at, kPiece);
      if (piece.empty() || !copy.add(piece)) return false;
      at += static_cast<long long>(piece.size());
    }
    return true;
  };
  UnderUnusedName(path, [&](const auto& name) { return MakeFile(name, from.rights(), fill); });
}

// The old text, for which a name is found only if a save fails and it can't be put back. It is
// written before the save where it needs no name, since afterwards the disk may take nothing more.
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

// Puts the new text in the place of the old one, which is held in memory.
void Replace(const OpenFile& file, std::string_view old, std::string_view bytes, Spare* spare) {
  const auto oldSize = static_cast<long long>(old.size());
  const auto size = static_cast<long long>(bytes.size());
  // A longer text first gets its size, on the disk too. Otherwise a power cut could leave the new
  // text cut at the old size, which may read as if it were whole.
  if (size > oldSize && !Store(file, oldSize, EmptyLines(old, size - oldSize))) {
    Resize(file, oldSize);
    throw base::Failure("the file can't grow");
  }
  // Until the file is cut, empty lines stand for the end of a longer old text: it can be read at
  // any time, and comes to the disk before its size does.
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
  const bool isHeld = file.size() <= kLargestText;
  const auto old = isHeld ? file.read(0, static_cast<std::size_t>(file.size())) : std::string();
  std::optional<Spare> spare;
  if (rescue && isHeld && rescue->known == old) {
    spare.emplace(rescue->copy, old, file.rights());
  } else if (rescue) {
    Copy(file, rescue->copy);
    rescue->known = old;
  }
  if (!isHeld && !file.setSize(0)) throw base::Failure("the file can't be cut");
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
  // What can't be seen is no new file. Opening decides, and makes none.
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
