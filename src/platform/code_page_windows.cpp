#include "platform/code_page.h"
#include "platform/system_windows.h"

namespace platform {
namespace {

constexpr UINT kWestern = 1252;

// If the system's code page is UTF-8, lines that are not UTF-8 are taken for Windows-1252.
UINT SystemPage() { return GetACP() == CP_UTF8 ? kWestern : GetACP(); }

std::wstring Decoded(UINT page, DWORD flags, std::string_view bytes) {
  const auto size = static_cast<int>(bytes.size());
  std::wstring text(bytes.size(), L'\0');
  text.resize(static_cast<std::size_t>(
      MultiByteToWideChar(page, flags, bytes.data(), size, text.data(), size)));
  return text;
}

std::string Encoded(UINT page, std::wstring_view text) {
  constexpr std::size_t kLongestCharacter = 4;
  std::string bytes(text.size() * kLongestCharacter, '\0');
  bytes.resize(static_cast<std::size_t>(
      WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, text.data(), static_cast<int>(text.size()),
                          bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

}  // namespace

std::string FromSystemPage(std::string_view bytes) {
  auto text = Decoded(SystemPage(), MB_ERR_INVALID_CHARS, bytes);
  // Bytes that are invalid in the system's page come from another system. Windows-1252 has a
  // character for each byte.
  if (text.empty()) text = Decoded(kWestern, 0, bytes);
  return FromWide(text);
}

std::optional<std::string> ToSystemPage(std::string_view text) {
  const auto wide = ToWide(text);
  auto bytes = Encoded(SystemPage(), wide);
  // The system replaces a character that the page lacks by another one.
  if (FromSystemPage(bytes) != text) return {};
  return bytes;
}

}  // namespace platform
