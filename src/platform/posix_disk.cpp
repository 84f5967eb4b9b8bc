#include "platform/posix_disk.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace caleidoscopio {

namespace {

namespace fs = std::filesystem;

/// What a system call that returned `result` has to say.
std::error_code outcome(int result) {
  return result == 0 ? std::error_code() : std::error_code(errno, std::generic_category());
}

int openNew(const fs::path& file) {
  return ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
}

bool isAt(int opened, const fs::path& file) {
  struct stat own {};
  struct stat there {};
  return ::fstat(opened, &own) == 0 && ::lstat(file.c_str(), &there) == 0 &&
         own.st_dev == there.st_dev && own.st_ino == there.st_ino;
}

// Who writes a file beside another holds a lock on it from the beginning until it is moved or
// removed, and the lock ends with the process. So one without a lock was left by a program that
// died; a hundred of them would leave no name to save under.

/// Where no locks are to be had a file is left alone.
bool removeAbandoned(const fs::path& file) {
  const int opened = ::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (opened < 0) return false;
  struct stat found {};
  // Between the opening and the lock it may have been moved to its place: then it is no longer at
  // this name.
  const bool abandoned = ::fstat(opened, &found) == 0 && S_ISREG(found.st_mode) &&
                         ::flock(opened, LOCK_EX | LOCK_NB) == 0 && isAt(opened, file);
  const bool removed = abandoned && ::unlink(file.c_str()) == 0;
  ::close(opened);
  return removed;
}

/// False if another program took the file for an abandoned one before it was locked.
bool lockOwn(int opened, const fs::path& file) {
  if (::flock(opened, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
  return isAt(opened, file);
}

}  // namespace

PosixDisk::~PosixDisk() {
  release();
}

void PosixDisk::release() {
  for (int* held : {&open_, &locked_}) {
    if (*held >= 0) ::close(*held);
    *held = -1;
  }
}

std::error_code PosixDisk::create(const fs::path& file, const fs::path& like) {
  struct stat old {};
  const bool replaces = ::stat(like.c_str(), &old) == 0;
  // The move would take the place of a device, too.
  if (replaces && !S_ISREG(old.st_mode))
    return std::make_error_code(S_ISDIR(old.st_mode) ? std::errc::is_a_directory
                                                     : std::errc::invalid_argument);
  // The move would take the place of a file that its owner has closed to writing.
  if (replaces && ::access(like.c_str(), W_OK) != 0) return outcome(-1);
  release();
  open_ = openNew(file);
  if (open_ < 0 && errno == EEXIST) {
    if (!removeAbandoned(file)) return std::make_error_code(std::errc::file_exists);
    open_ = openNew(file);
  }
  if (open_ < 0) return outcome(-1);
  if (!lockOwn(open_, file)) {
    release();
    return std::make_error_code(std::errc::file_exists);
  }
  locked_ = ::fcntl(open_, F_DUPFD_CLOEXEC, 0);
  if (replaces) static_cast<void>(::fchmod(open_, old.st_mode & 07777));
  return {};
}

std::size_t PosixDisk::write(std::string_view bytes, std::error_code& error) {
  ssize_t written = -1;
  do {
    written = ::write(open_, bytes.data(), bytes.size());
  } while (written < 0 && errno == EINTR);
  if (written >= 0) return static_cast<std::size_t>(written);
  error = outcome(-1);
  return 0;
}

std::error_code PosixDisk::flush() {
  return outcome(::fsync(open_));
}

std::error_code PosixDisk::close() {
  const int file = open_;
  open_ = -1;
  return outcome(::close(file));
}

std::error_code PosixDisk::move(const fs::path& from, const fs::path& to) {
  return outcome(::rename(from.c_str(), to.c_str()));
}

std::error_code PosixDisk::flushFolder(const fs::path& folder) {
  const int opened =
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  // A folder that may be written but not read cannot be opened, and some file systems know no
  // flush of a folder. No more can be done there.
  if (opened < 0) return errno == EACCES ? std::error_code() : outcome(-1);
  std::error_code error = outcome(::fsync(opened));
  if (error == std::errc::invalid_argument || error == std::errc::not_supported) error.clear();
  ::close(opened);
  return error;
}

std::error_code PosixDisk::remove(const fs::path& file) {
  return outcome(::unlink(file.c_str()));
}

}  // namespace caleidoscopio
