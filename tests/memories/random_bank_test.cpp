#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>

#include "memories/bank_model.h"
#include "memories/bank_rig.h"
#include "platform/disk_files.h"
#include "platform/scratch_folder.h"

namespace caleidoscopio::test {
namespace {

constexpr int operations = 10000;
constexpr int toDiskEvery = 10;

/// Files in memory that can be brought to a disk, and be used from there.
struct FilesOnBoth : TextFiles {
  explicit FilesOnBoth(const std::string& folder) : disk(DiskFiles::under(folder)) {}
  std::string root() override { return ""; }
  std::optional<std::string> read(const std::string& path, std::string& why) override {
    return onDisk ? disk.read(path, why) : memory.read(path, why);
  }
  bool write(const std::string& path, const std::string& text, std::string& why) override {
    if (!onDisk && path != namesFile) changed.insert(path);
    return memory.write(path, text, why) && (!onDisk || disk.write(path, text, why));
  }
  /// Brings to the disk what was written in memory alone since the last time, but for the list of
  /// names, which is written anew before anything reads it.
  void bringToDisk() {
    std::string why;
    for (const std::string& path : changed)
      EXPECT_TRUE(disk.write(path, memory.files[path], why)) << path << ": " << why;
    changed.clear();
  }

  FilesInMemory memory;
  DiskFiles disk;
  bool onDisk = false;
  std::set<std::string> changed;
};

struct RandomBank : ScratchFolder {
  void SetUp() override {
    ScratchFolder::SetUp();
    std::filesystem::create_directories(folder / "Miro-Vel-Ta/Dati");
    std::filesystem::create_directories(folder / "Miro-Vel-Ta/Save");
    generator.otherwise = 0.0F;
    files = std::make_unique<FilesOnBoth>(at(""));
    platform = std::make_unique<Platform>(Platform{clock, generator, *files, {}});
    Instrument fresh(*platform);
    SalvaDefault(fresh.s);
    SalvaNomi(fresh.s);
    for (int i = 0; i < 5; ++i) {
      fresh.s.lblVelo[1].Caption = std::to_string(100 + 10 * i);
      const std::string name(1, static_cast<char>('A' + i));
      saveMemory(fresh.s, name);
      model.files[inSave(name)] = Record(fresh.s.controls, memoryRuns()).write();
    }
    start();
  }

  void start() {
    instrument = std::make_unique<Instrument>(*platform);
    record.emplace(s().controls, memoryRuns());
    instrument->start();
    click(s().cmdGoTimer);
  }
  Store& s() { return instrument->s; }
  /// All that a memory would hold now.
  std::string held() const { return record->write(); }
  int pick(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }

  std::string anyTitle() {
    static const std::string pool[] = {"",          "\"",       "uno, due", "\"tre\"", "città",
                                       "Ωμέγα",     " spazi ",  "日本語",   "#TRUE#",  "12648384",
                                       "e\xcc\x80", "\xff\xfe", "\\",       ",\",\"",  "a\tb"};
    return pool[pick(std::size(pool))] + (pick(2) ? std::to_string(pick(1000)) : "");
  }

  /// Something of every kind that a memory holds: text, number, colour.
  void changeThePanel() {
    s().lblVelo[1].Caption = std::to_string(pick(30000));
    s().lblMiro[1 + pick(441)].BackColor = {static_cast<std::uint32_t>(random() & 0xFFFFFF)};
    s().lblTmrC[1 + pick(24)].Caption = anyTitle();
    s().TmrSequencer.setInterval(1 + pick(60000));
  }

  void expectLoaded(const std::string& name) {
    if (name.empty()) return;
    ++loads;
    ASSERT_TRUE(model.files.contains(inSave(name))) << name;
    EXPECT_EQ(held(), model.files[inSave(name)]) << name;
  }
  void button(BankHands& person, int k) {
    const std::string loaded = model.button(k);
    person.button(k);
    expectLoaded(loaded);
  }
  void closeBox(BankHands& person) {
    if (pick(4) == 0) {
      model.annulla();
      person.annulla();
      return;
    }
    if (pick(4)) model.typed = anyTitle();
    person.type(model.typed);
    const std::string before = held();
    model.files[inSave(model.ok())] = before;
    if (pick(2))
      person.ok();
    else
      person.enter();
    ++saves;
  }
  void leaveAndStart(BankHands& person) {
    person.escape();
    EXPECT_EQ(files->memory.files[namesFile], model.names());
    model.restart();
    start();
    ++restarts;
  }

  /// One operation on instrument and model alike.
  void operate() {
    BankHands person(s());
    // While the box is open it lies over the rest of the panel.
    if (model.boxOpen) return closeBox(person);
    switch (pick(20)) {
      case 0:
      case 1:
        model.canc();
        return person.canc();
      case 2:
      case 3: {
        const int i = pick(5);
        const std::string loaded = model.preset(i);
        person.button(11 + i);
        return expectLoaded(loaded);
      }
      case 4:
      case 5: {
        const bool up = pick(2);
        const int repeats = pick(4);
        for (int step = 0; step <= repeats; ++step) model.stepBank(up);
        press(s().lblMemo, up ? 2 : 1);
        s().time.advance(150 * static_cast<unsigned>(repeats));
        return release(s().lblMemo, up ? 2 : 1);
      }
      case 6:
        changeThePanel();
        return;
      case 7:
        if (pick(5) == 0) leaveAndStart(person);
        return;
      case 8:
      case 9:
      case 10:
      case 11:
        model.save();
        return person.save();
      default:
        return button(person, pick(10));
    }
  }

  void expectTheModel() {
    const Store& now = s();
    EXPECT_EQ(now.FraMemoria.Visible, model.boxOpen);
    EXPECT_EQ(now.lblCanc.BackColor == colours::selected, model.clearing);
    EXPECT_EQ(now.lblComandiVari[1].BackColor == colours::selected, model.saving);
    if (model.boxOpen) {
      EXPECT_EQ(now.TxtNomeMemoria.Text, model.typed);
    }
    SalvaNomi(s());
    EXPECT_EQ(files->memory.files[namesFile], model.names());
  }
  void expectTheModelOnDisk(const std::string& name) {
    std::string why;
    EXPECT_EQ(files->disk.read(namesFile, why), model.names()) << why;
    const auto file = model.files.find(inSave(name));
    if (file != model.files.end()) {
      EXPECT_EQ(files->disk.read(file->first, why), file->second) << why;
    }
  }

  StandingClock clock;
  SetDraws generator;
  std::unique_ptr<FilesOnBoth> files;
  std::unique_ptr<Platform> platform;
  std::unique_ptr<Instrument> instrument;
  std::optional<Record> record;
  BankModel model;
  std::mt19937 random{20260105};
  int loads = 0, saves = 0, restarts = 0;
};

TEST_F(RandomBank, NamesFileAndFilesAgreeWithAPlainModelOverTenThousandOperations) {
  for (int i = 0; i < operations && !HasFailure(); ++i) {
    files->onDisk = i % toDiskEvery == 0;
    if (files->onDisk) files->bringToDisk();
    SCOPED_TRACE(i);
    operate();
    expectTheModel();
    if (files->onDisk) expectTheModelOnDisk(model.chosen);
  }
  files->onDisk = false;
  files->bringToDisk();

  // In the end all files are there, hold what they must, and nothing else lies beside them.
  for (const auto& [path, text] : model.files) {
    std::string why;
    EXPECT_EQ(files->memory.files[path], text) << path;
    EXPECT_EQ(files->disk.read(path, why), text) << path << why;
  }
  EXPECT_EQ(files->memory.files.size(), model.files.size() + 2);
  EXPECT_EQ(filesIn("Miro-Vel-Ta/Save"), static_cast<std::ptrdiff_t>(model.files.size()));
  EXPECT_EQ(filesIn("Miro-Vel-Ta/Dati"), 2);
  // The walk has been everywhere.
  EXPECT_EQ(model.files.size(), 105U);
  EXPECT_GT(loads, 1000);
  EXPECT_GT(saves, 500);
  EXPECT_GT(restarts, 20);
}

}  // namespace
}  // namespace caleidoscopio::test
