#include "launch/error_log.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "base/error_boundary.h"
#include "base/text.h"
#include "core/emulator_contract.h"
#include "core/module1.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/patience.h"

namespace launch {
namespace {

constexpr std::size_t kPieceBytes = std::size_t{1} << 16U;
constexpr std::size_t kMaxShownBytes = std::size_t{1} << 20U;
constexpr int kMaxShownLines = 50000;  // laying out more would take too long

// LF if the log contains no CR at all, else CR.
char LineEndIn(const std::string& file) {
  char lineEnd = '\n';
  platform::ReadPieces(file, kPieceBytes, [&](std::string_view piece) {
    if (piece.find('\r') != std::string_view::npos) lineEnd = '\r';
    return lineEnd == '\n';
  });
  return lineEnd;
}

// Collects the report from the pieces of a log. Of a long log only the beginning is kept.
class Report {
 public:
  explicit Report(char lineEnd) : lineEnd_(lineEnd) {}

  void take(std::string_view piece) {
    if (skipLineFeed_ && piece.starts_with('\n')) piece.remove_prefix(1);
    skipLineFeed_ = false;
    while (headerLines_ < core::kErrorLogHeaderLines && !piece.empty()) {
      const auto end = piece.find(lineEnd_);
      if (end == std::string_view::npos) return;
      ++headerLines_;
      piece.remove_prefix(end + 1);
      if (lineEnd_ != '\r') continue;
      skipLineFeed_ = piece.empty();
      if (piece.starts_with('\n')) piece.remove_prefix(1);
    }
    if (headerLines_ < core::kErrorLogHeaderLines) return;
    lookForGoodEnd(piece);
    if (cut_) return;
    auto part = piece.substr(0, lines_ < kMaxShownLines ? kMaxShownBytes - shown_.size() : 0);
    for (auto at = part.find(lineEnd_); at < part.size(); at = part.find(lineEnd_, at + 1))
      if (++lines_ == kMaxShownLines) part = part.substr(0, at + 1);
    shown_ += part;
    cut_ = part.size() < piece.size();
  }

  bool endedWell() const { return endedWell_; }

  // The report as text. A log that is too long ends in "..." on a line of its own.
  std::string text() const {
    auto bytes = std::string_view(shown_);
    // Half a character at the end would make the last line invalid UTF-8, so that it would be
    // decoded as the code page.
    constexpr std::size_t kLongestChar = 4;
    const auto whole = bytes.size() - std::min(bytes.size(), kLongestChar);
    if (cut_)
      while (bytes.size() > whole && static_cast<unsigned char>(bytes.back()) >= 0x80)
        bytes.remove_suffix(1);
    // DecodeLines takes LF for the line end unless it finds a CR, and the only CR of the log may
    // be beyond the cut. So a line end of the right kind is put in front, and removed again.
    const std::string front = lineEnd_ == '\r' ? "\r\n" : "\n";
    const auto lines = platform::DecodeLines(front + std::string(bytes));
    return lines.substr(base::kLineEnd.size()) + (cut_ ? "..." : "");
  }

 private:
  void lookForGoodEnd(std::string_view piece) {
    // The text may begin at the end of the previous piece.
    seam_ += piece.substr(0, core::kGoodEnd.size());
    endedWell_ = endedWell_ || base::ContainsIgnoringCase(seam_, core::kGoodEnd) ||
                 base::ContainsIgnoringCase(piece, core::kGoodEnd);
    if (piece.size() > core::kGoodEnd.size())
      seam_ = piece.substr(piece.size() - core::kGoodEnd.size());
  }

  char lineEnd_;
  int headerLines_ = 0;
  bool skipLineFeed_ = false;  // the last piece ended in a CR, to which a first LF would belong
  std::string shown_, seam_;
  int lines_ = 0;
  bool endedWell_ = false;
  bool cut_ = false;
};

}  // namespace

bool ReadErrorLog() {
  bool failed = false;
  base::RunGuarded([&] {
    const auto file = platform::Joined(Module1::AppFolder, core::kErrorLog);
    Report report(LineEndIn(file));
    platform::ReadPieces(file, kPieceBytes, [&](std::string_view piece) {
      report.take(piece);
      return true;
    });
    failed = !report.endedWell();
    if (failed) Module1::ErrorText = base::Trim(report.text());
    platform::RetryUntil([&] { return base::RunGuarded([&] { platform::DeleteFile(file); }); });
  });
  return failed;
}

}  // namespace launch
