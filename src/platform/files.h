// Files and folders. Paths are UTF-8, with "\" or the system's separator, in any letter case: every
// existing component is found ignoring case, the exact spelling first. A function that does not
// return a bool throws a Failure if the system refuses.
#pragma once

#include <climits>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The folder's path and the name, joined by one separator.
std::string Joined(std::string_view folder, std::string_view name);

// Whether the path is this folder or inside it, comparing names as the system does. Does not access
// the disk.
bool IsWithin(std::string_view path, std::string_view folder);

// The path in the system's spelling; components that don't exist stay as given.
std::string SystemPath(std::string_view path);

// True for a regular file, or a link to one. Also false if the system can't tell.
bool IsFile(std::string_view path);
bool IsFolder(std::string_view path);

// Whether a regular file, or a link to one, exists. The system may be unable to tell, because it
// may not search a folder or a disk does not answer. It is then asked again, for at most a second.
enum class Existence { There, NotThere, Unknown };
Existence LookForFile(std::string_view path);

// IsFile without exceptions. Also replaces each double backslash in the caller's text by a single
// one: callers join a folder, a backslash and a name, and the folder may end in a backslash itself.
// A pair at the start stays, because it leads to another machine.
bool FileExists(std::string& FilePath);

// The names in a folder, sorted ignoring case, hidden ones included.
std::vector<std::string> SubfolderNames(std::string_view folder);
std::vector<std::string> FileNames(std::string_view folder);

void MakeFolder(std::string_view path);
void DeleteFile(std::string_view path);

// Deletes the files in the folder whose names end in `ending`, in any letter case. `ending` itself
// is in lower case. Throws at the first that can't be deleted.
void DeleteFilesEndingIn(std::string_view folder, std::string_view ending);

// In bytes. A longer text is not read, and not put back if a save fails.
inline constexpr long long kLargestText = 16LL << 20U;

// Copies a file of at most kLargestText bytes, on POSIX systems with its permission bits. An
// existing target is overwritten as by WriteBytes.
void CopyFileBytes(std::string_view from, std::string_view to);

// All bytes of a regular file. Throws if there are more than `most`, or if the file becomes shorter
// while it is read.
std::string ReadBytes(std::string_view path, long long most = LLONG_MAX);

// Calls `takesMore` with the bytes of a regular file, in pieces of at most `most` bytes, until the
// file ends or it returns false.
void ReadPieces(std::string_view path, std::size_t most,
                const std::function<bool(std::string_view piece)>& takesMore);

// How a save keeps a text that would otherwise be lost.
struct Rescue {
  // The path of the copy. If there is such a file, a number is appended.
  std::string copy;
  // The bytes that this run last read or wrote as the file. WriteBytes updates them.
  std::optional<std::string>& known;
};

// Overwrites a file in place with a text, or creates it. Returns when the text, and the name of a
// new file, are on the disk; throws if the file could not be written. The old text stays if the
// disk has no room or another program has locked the file, and is put back if writing fails. Unless
// the program is killed within the one write, the file holds the old text or the new one, followed
// by empty lines at most. With a rescue, a file whose bytes are not the known ones is copied first,
// and an old text that can't be put back is copied afterwards.
void WriteBytes(std::string_view path, std::string_view bytes, const Rescue* rescue = nullptr);

}  // namespace platform
