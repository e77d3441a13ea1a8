#pragma once

#include <memory>
#include <string>
#include <utility>

namespace forms {

// A decoded picture; copies share it.
class Picture {
 public:
  Picture() = default;

  // A JPEG file scaled to the given size in twips while it is decoded. Throws for a file that
  // can't be decoded as a JPEG, was cut off, or would cost too much memory or time.
  static Picture FromJpeg(const std::string& path, int width, int height);

  // The frame of an icon file that is nearest to a square of `size` twips. Throws likewise.
  static Picture FromIcon(const std::string& path, int size);

  // A picture that is built into the program, by its file name.
  static Picture FromAsset(const std::string& name);

  // The picture for games without a snapshot.
  static Picture DefaultSnapshot();

  // The program's icon as a square of `size` twips. Its Data also has the icon for windows in all
  // sizes.
  static Picture ProgramIcon(int size);

  struct Data;
  const Data* data() const { return data_.get(); }
  bool operator==(const Picture& other) const { return data_ == other.data_; }

 private:
  explicit Picture(std::shared_ptr<const Data> data) : data_(std::move(data)) {}
  static Picture FromFile(const std::string& path, const char* format, int width, int height);

  std::shared_ptr<const Data> data_;
};

}  // namespace forms
