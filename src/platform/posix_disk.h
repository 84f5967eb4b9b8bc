#pragma once

#include "platform/disk.h"

namespace caleidoscopio {

/// The machine's disk.
class PosixDisk : public Disk {
 public:
  PosixDisk() = default;
  PosixDisk(const PosixDisk&) = delete;
  PosixDisk& operator=(const PosixDisk&) = delete;
  ~PosixDisk() override;
  std::error_code create(const std::filesystem::path& file,
                         const std::filesystem::path& like) override;
  std::size_t write(std::string_view bytes, std::error_code& error) override;
  std::error_code flush() override;
  std::error_code close() override;
  std::error_code move(const std::filesystem::path& from, const std::filesystem::path& to) override;
  std::error_code flushFolder(const std::filesystem::path& folder) override;
  std::error_code remove(const std::filesystem::path& file) override;

 private:
  void release();

  int open_ = -1;
  /// Holds the lock on the file made last until it has its place or is gone, also when it is
  /// closed.
  int locked_ = -1;
};

}  // namespace caleidoscopio
