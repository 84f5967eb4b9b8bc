#pragma once

#include <algorithm>
#include <limits>
#include <map>
#include <string>
#include <vector>

#include "platform/disk.h"

namespace caleidoscopio::test {

/// A disk that fails where the test says, and that can lose its power: what was not flushed may
/// then be lost, be there in part, or be there.
class DiskInMemory : public Disk {
 public:
  std::map<std::string, std::string> files;
  /// What a loss of power at the end would leave, one way or the other.
  std::vector<std::map<std::string, std::string>> afterPowerLoss;

  std::vector<std::string> operations;  ///< their names, in the order in which they were asked
  int failAt = -1;                      ///< the operation that fails, counted from 0
  bool goesDead = false;                ///< all that come after the failure fail, too
  std::size_t room = std::numeric_limits<std::size_t>::max();  ///< bytes that can be written
  std::size_t block = 7;                                       ///< bytes taken by one write

  std::error_code create(const std::filesystem::path& file, const std::filesystem::path&) override {
    if (fails("create")) return full();
    if (files.contains(file.string())) return std::make_error_code(std::errc::file_exists);
    open_ = file.string();
    files[open_];
    return {};
  }
  std::size_t write(std::string_view bytes, std::error_code& error) override {
    if (fails("write") || room == 0) {
      error = full();
      return 0;
    }
    const std::size_t taken = std::min({bytes.size(), room, block});
    files[open_] += bytes.substr(0, taken);
    room -= taken;
    flushed_ = false;
    return taken;
  }
  std::error_code flush() override {
    if (fails("flush")) return full();
    flushed_ = true;
    return {};
  }
  std::error_code close() override { return fails("close") ? full() : std::error_code(); }
  std::error_code move(const std::filesystem::path& from,
                       const std::filesystem::path& to) override {
    if (fails("move")) return full();
    durable_ = files;
    files[to.string()] = files[from.string()];
    files.erase(from.string());
    // The new name may reach the disk before the folder is flushed, and before the bytes do.
    auto named = files;
    if (!flushed_) named[to.string()] = "";
    afterPowerLoss = {durable_, named};
    return {};
  }
  std::error_code flushFolder(const std::filesystem::path&) override {
    if (fails("flushFolder")) return full();
    if (!afterPowerLoss.empty()) afterPowerLoss.erase(afterPowerLoss.begin());
    return {};
  }
  std::error_code remove(const std::filesystem::path& file) override {
    if (fails("remove")) return full();
    files.erase(file.string());
    return {};
  }

 private:
  static std::error_code full() { return std::make_error_code(std::errc::no_space_on_device); }
  bool fails(const char* operation) {
    const int at = static_cast<int>(operations.size());
    operations.emplace_back(operation);
    return at == failAt || (goesDead && failAt >= 0 && at > failAt);
  }
  std::string open_;
  bool flushed_ = true;
  std::map<std::string, std::string> durable_;
};

}  // namespace caleidoscopio::test
