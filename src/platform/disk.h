#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace caleidoscopio {

/// The operations on a disk that a safe replacement is made of, one file at a time. Each tells
/// how it failed.
class Disk {
 public:
  virtual ~Disk() = default;
  /// Makes a new file and opens it for writing, with the permissions of `like` if there is such a
  /// file. One that a program left when it died makes way. Fails with file_exists when `file` is
  /// there, and when `like` is no plain file or may not be written.
  virtual std::error_code create(const std::filesystem::path& file,
                                 const std::filesystem::path& like) = 0;
  /// Writes to the open file; returns how many bytes went, which may be fewer than were given.
  virtual std::size_t write(std::string_view bytes, std::error_code& error) = 0;
  /// Brings the open file's bytes to the disk itself.
  virtual std::error_code flush() = 0;
  virtual std::error_code close() = 0;
  /// Puts a file in the place of another in one step: whoever looks sees the one or the other.
  virtual std::error_code move(const std::filesystem::path& from,
                               const std::filesystem::path& to) = 0;
  /// Brings the folder's list of names to the disk itself.
  virtual std::error_code flushFolder(const std::filesystem::path& folder) = 0;
  virtual std::error_code remove(const std::filesystem::path& file) = 0;
};

/// Puts `text` in the place of `file`, so that at every moment, also after a loss of power, the
/// file is whole: the old one or the new one. True when the new one is there for good; else the
/// reason is in `why`, and the old one stands, but for a folder that could not be flushed after
/// the move.
bool replaceFile(Disk& disk, const std::filesystem::path& file, std::string_view text,
                 std::string& why);

}  // namespace caleidoscopio
