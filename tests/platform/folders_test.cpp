#include "platform/folders.h"

#include "platform/scratch_folder.h"

namespace caleidoscopio::test {
namespace {

using Roots = std::vector<std::string>;

Roots withUsersOwn(const std::string& own) {
  return {"/usr/share/caleidoscopio/", "/usr/local/share/caleidoscopio/", "/opt/caleidoscopio/",
          own};
}

TEST(CandidateRoots, TheUsersOwnFolderComesLastSoThatItWins) {
  EXPECT_EQ(candidateRoots({std::nullopt, "/home/anna"}),
            withUsersOwn("/home/anna/.local/share/caleidoscopio/"));
}

TEST(CandidateRoots, TheDataFolderThatTheUserNamedIsUsed) {
  EXPECT_EQ(candidateRoots({"/data/anna", "/home/anna"}),
            withUsersOwn("/data/anna/caleidoscopio/"));
  EXPECT_EQ(candidateRoots({"/data/anna/", "/home/anna"}),
            withUsersOwn("/data/anna/caleidoscopio/"));
}

TEST(CandidateRoots, ADataFolderThatIsNotAbsoluteIsAsIfUnset) {
  for (const char* folder : {"data", "./data", "../data", "~/data"})
    EXPECT_EQ(candidateRoots({folder, "/home/anna"}),
              withUsersOwn("/home/anna/.local/share/caleidoscopio/"));
}

TEST(CandidateRoots, WithoutAHomeTheSystemsFoldersRemain) {
  EXPECT_EQ(candidateRoots({}), (Roots{"/usr/share/caleidoscopio/",
                                       "/usr/local/share/caleidoscopio/", "/opt/caleidoscopio/"}));
}

class Environment : public ::testing::Test {
 protected:
  void TearDown() override {
    for (const auto& [name, value] : saved)
      if (value)
        setenv(name, value->c_str(), 1);
      else
        unsetenv(name);
  }
  static std::optional<std::string> of(const char* name) {
    const char* value = getenv(name);
    return value ? std::optional<std::string>(value) : std::nullopt;
  }
  const std::vector<std::pair<const char*, std::optional<std::string>>> saved{
      {"XDG_DATA_HOME", of("XDG_DATA_HOME")}, {"HOME", of("HOME")}};
};

TEST_F(Environment, TheUsersSettingsAreTheEnvironments) {
  setenv("XDG_DATA_HOME", "/data", 1);
  setenv("HOME", "/home/anna", 1);
  EXPECT_EQ(userSettings().dataHome, "/data");
  EXPECT_EQ(userSettings().home, "/home/anna");
}

TEST_F(Environment, AnEmptySettingIsAsIfUnset) {
  setenv("XDG_DATA_HOME", "", 1);
  EXPECT_EQ(userSettings().dataHome, std::nullopt);
}

TEST_F(Environment, WithoutHomeTheMachinesListOfUsersIsAsked) {
  unsetenv("HOME");
  ASSERT_TRUE(userSettings().home);
  EXPECT_TRUE(std::filesystem::path(*userSettings().home).is_absolute());
}

using ShippedFolder = ScratchFolder;

TEST_F(ShippedFolder, LiesInShareBesideTheProgramsFolder) {
  put("share/caleidoscopio/Miro-Vel-Ta/Dati/Default.txt", "");
  EXPECT_EQ(shippedFolder(folder / "bin"), at("share/caleidoscopio/"));
}

TEST_F(ShippedFolder, AFolderWithoutADefaultMemoryIsNone) {
  std::filesystem::create_directories(folder / "share/caleidoscopio/Miro-Vel-Ta/Dati");
  EXPECT_NE(shippedFolder(folder / "bin"), at("share/caleidoscopio/"));
}

TEST(ProgramFolder, HoldsTheRunningProgram) {
  EXPECT_TRUE(std::filesystem::exists(programFolder() / "platform_test")) << programFolder();
}

}  // namespace
}  // namespace caleidoscopio::test
