#include "platform/files.h"

#include "platform/code_page.h"

namespace platform {

void CopyFileBytes(std::string_view from, std::string_view to) { WriteBytes(to, ReadBytes(from)); }

std::string ReadText(std::string_view path) { return DecodeLines(ReadBytes(path)); }

void WriteText(std::string_view path, std::string_view text) {
  WriteBytes(path, EncodeCodePage(text));
}

}  // namespace platform
