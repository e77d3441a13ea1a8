// Files and folders. Paths are UTF-8, with "\" or the system's separator, in any letter case: every
// existing component is found ignoring case, the exact spelling first. Functions without a truth
// value as result fail when the system refuses.
#pragma once

#include <climits>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The path of what has this name in a folder, with one separator between them.
std::string Joined(std::string_view folder, std::string_view name);

// Whether the path is this folder or leads into it, as the system compares names. Asks no disk.
bool IsWithin(std::string_view path, std::string_view folder);

// The path in the system's spelling; components that don't exist stay as given.
std::string SystemPath(std::string_view path);

// True for a regular file, or a link to one. False also where the system can't say.
bool IsFile(std::string_view path);
bool IsFolder(std::string_view path);

// Whether a regular file, or a link to one, is there. Where the system can't say, since a folder
// may not be searched or a disk does not answer, it is asked again for a second.
enum class Existence { There, NotThere, Unknown };
Existence LookForFile(std::string_view path);

// IsFile that reports no failure. Every doubled backslash in the caller's text becomes a single
// one, so that a folder that ends in one can be joined like any other; but not the pair at the
// beginning, which leads to another machine.
bool FileExists(std::string& FilePath);

// The names in a folder, sorted ignoring case, hidden ones included.
std::vector<std::string> SubfolderNames(std::string_view folder);
std::vector<std::string> FileNames(std::string_view folder);

void MakeFolder(std::string_view path);
void DeleteFile(std::string_view path);

// Deletes the folder's files whose name ends in `ending`, lower-case here, in any letter case.
// Throws if there is none, and at the first that can't be deleted.
void DeleteFilesEndingIn(std::string_view folder, std::string_view ending);

// A longer text is neither read nor put back.
inline constexpr long long kLargestText = 16LL << 20U;

// Copies the bytes of a text, and on POSIX systems the permission bits; an existing target is
// replaced as by WriteBytes.
void CopyFileBytes(std::string_view from, std::string_view to);

// The bytes of a regular file. Throws for one of more than `most` bytes, and rather than give a
// part of it.
std::string ReadBytes(std::string_view path, long long most = LLONG_MAX);

// Hands over the bytes of a regular file in pieces of at most this size, until there is no more or
// the taker has enough.
void ReadPieces(std::string_view path, std::size_t most,
                const std::function<bool(std::string_view piece)>& takesMore);

// How a save keeps a text that it would lose.
struct Rescue {
  std::string copy;  // its path; a number is added where there is one already
  std::optional<std::string>&
      known;  // the file as this run read or wrote it; WriteBytes updates it
};

// Makes these bytes, a text, the file's whole content, in place. Whatever interrupts it short of a
// kill within its one write, the file has the old text or the new one, empty lines behind it at
// most. The old text stands when there is no room for the new one, or another program keeps the
// file, and is put back where writing fails on the way. Returns when the disk has the text, and the
// name of a new file. With a rescue, a file that is not as it is known is copied first, and a text
// that can't be put back after.
void WriteBytes(std::string_view path, std::string_view bytes, const Rescue* rescue = nullptr);

}  // namespace platform
