#include <gtest/gtest.h>

#include "platform/disk_in_memory.h"

namespace caleidoscopio::test {
namespace {

const std::string file = "Save/5.txt";
const std::string oldText = "the old memory, whole";
const std::string newText = "the new memory, which is somewhat longer";

using Files = std::map<std::string, std::string>;

bool save(DiskInMemory& disk, std::string& why) {
  return replaceFile(disk, file, newText, why);
}

TEST(ReplaceFile, PutsTheNewTextInPlaceAndLeavesNothingBeside) {
  DiskInMemory disk;
  disk.files[file] = oldText;
  std::string why;
  EXPECT_TRUE(save(disk, why)) << why;
  EXPECT_EQ(disk.files, (Files{{file, newText}}));
}

TEST(ReplaceFile, MakesAFileThatWasNotThere) {
  DiskInMemory disk;
  std::string why;
  EXPECT_TRUE(save(disk, why)) << why;
  EXPECT_EQ(disk.files, (Files{{file, newText}}));
}

TEST(ReplaceFile, BringsBytesThenNameThenFolderToTheDisk) {
  DiskInMemory disk;
  disk.block = newText.size();
  std::string why;
  ASSERT_TRUE(save(disk, why));
  EXPECT_EQ(disk.operations,
            (std::vector<std::string>{"create", "write", "flush", "close", "move", "flushFolder"}));
}

TEST(ReplaceFile, ADiskThatIsFullAtAnyByteLeavesTheOldFileAndNothingBeside) {
  for (std::size_t room = 0; room < newText.size(); ++room) {
    DiskInMemory disk;
    disk.files[file] = oldText;
    disk.room = room;
    std::string why;
    EXPECT_FALSE(save(disk, why)) << "room for " << room;
    EXPECT_EQ(why, "No space left on device") << "room for " << room;
    EXPECT_EQ(disk.files, (Files{{file, oldText}})) << "room for " << room;
  }
}

TEST(ReplaceFile, AnyOperationThatFailsIsToldAndLeavesAWholeFile) {
  DiskInMemory healthy;
  std::string why;
  ASSERT_TRUE(save(healthy, why));
  const int operations = static_cast<int>(healthy.operations.size());
  ASSERT_GE(operations, 6);
  for (int k = 0; k < operations; ++k) {
    DiskInMemory disk;
    disk.files[file] = oldText;
    disk.failAt = k;
    why.clear();
    const std::string& failed = healthy.operations[static_cast<std::size_t>(k)];
    EXPECT_FALSE(save(disk, why)) << failed;
    EXPECT_EQ(why, "No space left on device") << failed;
    const std::string& stands = failed == "flushFolder" ? newText : oldText;
    EXPECT_EQ(disk.files, (Files{{file, stands}})) << failed;
  }
}

TEST(ReplaceFile, AFileThatWasNotThereIsNotThereAfterAFailure) {
  for (int k = 0; k < 5; ++k) {
    DiskInMemory disk;
    disk.block = newText.size();
    disk.failAt = k;
    std::string why;
    EXPECT_FALSE(save(disk, why)) << k;
    EXPECT_EQ(disk.files, Files{}) << k;
  }
}

TEST(ReplaceFile, ADiskThatGoesDeadHarmsNoFileThoughTheOneBesideStays) {
  for (int k = 0; k < 11; ++k) {
    DiskInMemory disk;
    disk.files[file] = oldText;
    disk.failAt = k;
    disk.goesDead = true;
    std::string why;
    EXPECT_FALSE(save(disk, why)) << k;
    EXPECT_TRUE(disk.files[file] == oldText || disk.files[file] == newText) << k;
  }
}

TEST(ReplaceFile, ALossOfPowerAfterTheMoveFindsTheOldOrTheNewFileWhole) {
  DiskInMemory disk;
  disk.files[file] = oldText;
  disk.failAt = 5 + static_cast<int>(newText.size() / disk.block);  // the folder is not flushed
  std::string why;
  ASSERT_FALSE(save(disk, why));
  ASSERT_EQ(disk.operations.back(), "flushFolder");
  ASSERT_EQ(disk.afterPowerLoss.size(), 2U);
  EXPECT_EQ(disk.afterPowerLoss[0].at(file), oldText);
  EXPECT_EQ(disk.afterPowerLoss[1].at(file), newText);
}

TEST(ReplaceFile, ALossOfPowerAfterTheSaveFindsTheNewFile) {
  DiskInMemory disk;
  disk.files[file] = oldText;
  std::string why;
  ASSERT_TRUE(save(disk, why));
  ASSERT_EQ(disk.afterPowerLoss.size(), 1U);
  EXPECT_EQ(disk.afterPowerLoss[0].at(file), newText);
}

TEST(ReplaceFile, WhatAnotherProgramLeftBesideIsNotTouched) {
  DiskInMemory disk;
  disk.files = {{file, oldText}, {file + ".new1", "another's"}, {file + ".new2", "a third's"}};
  std::string why;
  EXPECT_TRUE(save(disk, why)) << why;
  EXPECT_EQ(disk.files,
            (Files{{file, newText}, {file + ".new1", "another's"}, {file + ".new2", "a third's"}}));
}

TEST(ReplaceFile, AWriteThatTakesNothingIsAFailureAndNoEndlessLoop) {
  DiskInMemory disk;
  disk.files[file] = oldText;
  disk.block = 0;
  std::string why;
  EXPECT_FALSE(save(disk, why));
  EXPECT_EQ(why, "Input/output error");
  EXPECT_EQ(disk.files, (Files{{file, oldText}}));
}

}  // namespace
}  // namespace caleidoscopio::test
