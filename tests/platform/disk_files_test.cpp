#include "platform/disk_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "platform/posix_disk.h"
#include "platform/scratch_folder.h"

namespace caleidoscopio::test {
namespace {

namespace fs = std::filesystem;

using DiskFilesTest = ScratchFolder;

TEST_F(DiskFilesTest, TheLastCandidateWithADefaultMemoryIsTheRoot) {
  put("a/Miro-Vel-Ta/Dati/Default.txt", "");
  put("b/Miro-Vel-Ta/Dati/Default.txt", "");
  fs::create_directories(folder / "c/Miro-Vel-Ta/Dati/Default.txt");  // a folder is no memory
  auto files = DiskFiles::probing({at("a/"), at("none/"), at("b/"), at("c/")});
  EXPECT_EQ(files.root(), at("b/"));
}

TEST_F(DiskFilesTest, WithoutAMatchTheRootIsEmpty) {
  EXPECT_EQ(DiskFiles::probing({at("a/"), at("b/")}).root(), "");
}

TEST_F(DiskFilesTest, UnderABaseNothingIsProbedAndRelativePathsLieThere) {
  put("base/Miro-Vel-Ta/Dati/Default.txt", "here");
  auto files = DiskFiles::under(at("base"));
  std::string why;
  EXPECT_EQ(files.root(), "");
  EXPECT_EQ(files.read("Miro-Vel-Ta/Dati/Default.txt", why), "here");
  EXPECT_TRUE(files.write("new.txt", "written", why)) << why;
  EXPECT_EQ(textOf("base/new.txt"), "written");
  EXPECT_EQ(files.read(at("base/new.txt"), why), "written") << "a full path stands by itself";
}

TEST_F(DiskFilesTest, AllBytesComeBackAsTheyWent) {
  std::string bytes;
  for (int i = 0; i < 200000; ++i) bytes += static_cast<char>(i % 251);
  auto files = DiskFiles::under(folder.string());
  std::string why;
  ASSERT_TRUE(files.write("f", bytes, why)) << why;
  EXPECT_EQ(files.read("f", why), bytes);
}

TEST_F(DiskFilesTest, FaultsAreToldInWords) {
  auto files = DiskFiles::under(folder.string());
  std::string why;
  EXPECT_EQ(files.read("none.txt", why), std::nullopt);
  EXPECT_EQ(why, "No such file or directory");
  EXPECT_EQ(files.read(".", why), std::nullopt);
  EXPECT_EQ(why, "Is a directory");
  EXPECT_FALSE(files.write("none/f.txt", "text", why));
  EXPECT_EQ(why, "No such file or directory");
}

TEST_F(DiskFilesTest, AFolderInTheFilesPlaceStays) {
  fs::create_directories(folder / "f.txt");
  std::string why;
  EXPECT_FALSE(DiskFiles::under(folder.string()).write("f.txt", "text", why));
  EXPECT_EQ(why, "Is a directory");
  EXPECT_EQ(filesIn("."), 1);
}

TEST_F(DiskFilesTest, ADeviceInTheFilesPlaceStays) {
  fs::create_symlink("/dev/null", folder / "f.txt");
  std::string why;
  EXPECT_FALSE(DiskFiles::under(folder.string()).write("f.txt", "text", why));
  EXPECT_EQ(why, "Invalid argument");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(DiskFilesTest, APipeAndADeviceAreNotRead) {
  ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder / "zeros");
  for (const char* name : {"pipe", "zeros"}) {
    std::string why;
    EXPECT_EQ(DiskFiles::under(folder.string()).read(name, why), std::nullopt) << name;
    EXPECT_EQ(why, "Not a regular file") << name;
  }
}

TEST_F(DiskFilesTest, AFileLongerThanAnyOfOursIsNotRead) {
  put("f", "");
  fs::resize_file(folder / "f", longestFile);
  std::string why;
  const auto text = DiskFiles::under(folder.string()).read("f", why);
  ASSERT_TRUE(text) << why;
  EXPECT_EQ(text->size(), longestFile);
  fs::resize_file(folder / "f", longestFile + 1);
  EXPECT_EQ(DiskFiles::under(folder.string()).read("f", why), std::nullopt);
  EXPECT_EQ(why, "File too large");
}

TEST_F(DiskFilesTest, AFileThatIsALinkStaysOne) {
  put("far/real.txt", "old");
  fs::create_symlink("far/real.txt", folder / "f.txt");
  std::string why;
  EXPECT_TRUE(DiskFiles::under(folder.string()).write("f.txt", "new", why)) << why;
  EXPECT_TRUE(fs::is_symlink(folder / "f.txt"));
  EXPECT_EQ(textOf("far/real.txt"), "new");
  EXPECT_EQ(filesIn("far"), 1);
}

TEST_F(DiskFilesTest, AFileKeepsItsPermissions) {
  put("f.txt", "old");
  const auto owner = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(folder / "f.txt", owner);
  std::string why;
  ASSERT_TRUE(DiskFiles::under(folder.string()).write("f.txt", "new", why)) << why;
  EXPECT_EQ(fs::status(folder / "f.txt").permissions(), owner);
}

TEST_F(DiskFilesTest, WhatADeadProgramLeftBesideMakesWay) {
  put("f.txt", "old");
  for (int i = 1; i <= 100; ++i) put("f.txt.new" + std::to_string(i), "half");
  std::string why;
  EXPECT_TRUE(DiskFiles::under(folder.string()).write("f.txt", "new", why)) << why;
  EXPECT_EQ(textOf("f.txt"), "new");
  EXPECT_EQ(filesIn("."), 100) << "one of the hundred was taken";
}

TEST_F(DiskFilesTest, WhatALivingProgramWritesBesideStays) {
  put("f.txt", "old");
  put("f.txt.new1", "another's");
  const int others = open(at("f.txt.new1").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(others, LOCK_EX), 0);
  std::string why;
  EXPECT_TRUE(DiskFiles::under(folder.string()).write("f.txt", "new", why)) << why;
  EXPECT_EQ(textOf("f.txt"), "new");
  EXPECT_EQ(textOf("f.txt.new1"), "another's");
  close(others);
}

TEST_F(DiskFilesTest, AFileBesideIsLockedUntilItHasItsPlace) {
  const auto locked = [&](const std::string& name) {
    const int opened = open(at(name).c_str(), O_RDONLY | O_CLOEXEC);
    const bool held = flock(opened, LOCK_EX | LOCK_NB) != 0;
    close(opened);
    return held;
  };
  PosixDisk disk;
  ASSERT_FALSE(disk.create(at("f.txt.new1"), at("f.txt")));
  EXPECT_TRUE(locked("f.txt.new1"));
  EXPECT_EQ(PosixDisk().create(at("f.txt.new1"), at("f.txt")), std::errc::file_exists);
  ASSERT_FALSE(disk.close());
  EXPECT_TRUE(locked("f.txt.new1"));
  EXPECT_EQ(PosixDisk().create(at("f.txt.new1"), at("f.txt")), std::errc::file_exists);
}

TEST_F(DiskFilesTest, NothingButAPlainFileBesideMakesWay) {
  fs::create_directories(folder / "f.txt.new1");
  fs::create_symlink("elsewhere", folder / "f.txt.new2");
  ASSERT_EQ(mkfifo(at("f.txt.new3").c_str(), 0600), 0);
  std::string why;
  EXPECT_TRUE(DiskFiles::under(folder.string()).write("f.txt", "new", why)) << why;
  EXPECT_EQ(textOf("f.txt"), "new");
  EXPECT_EQ(filesIn("."), 4);
}

TEST_F(DiskFilesTest, TheLimitForTheSizeOfAFileKillsNoProgram) {
  std::signal(SIGXFSZ, SIG_DFL);
  auto files = DiskFiles::under(folder.string());
  EXPECT_EQ(std::signal(SIGXFSZ, SIG_IGN), SIG_IGN);
}

}  // namespace
}  // namespace caleidoscopio::test
