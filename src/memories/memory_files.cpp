#include "memories/memory_files.h"

#include <algorithm>
#include <cassert>
#include <string_view>

#include "panel/end_run.h"
#include "panel/shown.h"

namespace caleidoscopio {

namespace {

std::string under(std::string_view folder, std::string_view file) {
  std::string path = "Miro-Vel-Ta";
  path += pathSeparator;
  path += folder;
  path += pathSeparator;
  path += file;
  return path;
}

std::string namesPath() {
  return under("Dati", "Memorie.txt");
}

std::string memoryPath(std::string_view name) {
  assert(namesMemory(name));
  return under("Save", std::string(name) + ".txt");
}

const std::string& selected(const MemoryControls& s) {
  const std::string& name = s.lblSelez.Caption;
  if (!namesMemory(name))
    endRun("lblSelez.Caption is \"" + shown(name) +
           "\", which names no memory file; expected \"0\" to \"99\" or \"A\" to \"E\"");
  return name;
}

void load(MemoryControls& s, const Record& record, const std::string& name) {
  const std::string path = s.lblDir.Caption + name;
  std::string why;
  const auto text = s.platform->files.read(path, why);
  if (!text) endRun(path + ": cannot be read: " + why);
  record.read(*text, path);
}

void save(MemoryControls& s, const Record& record, const std::string& name) {
  const std::string path = s.lblDir.Caption + name;
  std::string why;
  if (!s.platform->files.write(path, record.write(), why))
    endRun(path + ": cannot be written: " + why);
}

const Record& memoryRecord(MemoryControls& s) {
  if (!s.memoryRecord) s.memoryRecord.emplace(s.controls, memoryRuns());
  return *s.memoryRecord;
}

const Record& nameRecord(MemoryControls& s) {
  if (!s.nameRecord) s.nameRecord.emplace(s.controls, nameRuns());
  return *s.nameRecord;
}

}  // namespace

std::string defaultMemoryPath() {
  return under("Dati", "Default.txt");
}

bool namesMemory(std::string_view name) {
  if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'E') return true;
  const bool digits =
      !name.empty() && name.size() <= 2 &&
      std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
  return digits && (name.size() == 1 || name[0] != '0');
}

void loadMemory(MemoryControls& s, std::string_view name) {
  load(s, memoryRecord(s), memoryPath(name));
}
void saveMemory(MemoryControls& s, std::string_view name) {
  save(s, memoryRecord(s), memoryPath(name));
}

void CaricaMemoria(MemoryControls& s) {
  loadMemory(s, selected(s));
}
void SalvaMemoria(MemoryControls& s) {
  saveMemory(s, selected(s));
}
void CaricaDefault(MemoryControls& s) {
  load(s, memoryRecord(s), defaultMemoryPath());
}
void SalvaDefault(MemoryControls& s) {
  save(s, memoryRecord(s), defaultMemoryPath());
}
void CaricaNomi(MemoryControls& s) {
  load(s, nameRecord(s), namesPath());
}
void SalvaNomi(MemoryControls& s) {
  save(s, nameRecord(s), namesPath());
}

}  // namespace caleidoscopio
