#include "console/commands.h"
#include "console/fault.h"
#include "memories/memory_files.h"
#include "mosaic/index_map.h"

namespace caleidoscopio::console {

namespace {

struct FileCommands {
  void (*default_)(MemoryControls&);
  void (*names)(MemoryControls&);
  void (*memory)(MemoryControls&, std::string_view);
};

void runFile(Session& session, std::string_view name, const FileCommands& files) {
  if (name == "Default") {
    files.default_(session.s);
  } else if (name == "Memorie") {
    files.names(session.s);
  } else if (namesMemory(name)) {
    files.memory(session.s, name);
  } else {
    throw ScriptFault("found '" + std::string(name) +
                      "'; expected 0 to 99, A to E, Default or Memorie");
  }
}

/// The lowest swatch of that colour, 0 when the palette has none.
int swatchOf(const Store& s, Colour colour) {
  for (int i = 1; i <= 104; ++i)
    if (s.lblColore[i].BackColor == colour) return i;
  return 0;
}

}  // namespace

void runSave(Session& session, const Line& line) {
  runFile(session, line.words[0], {SalvaDefault, SalvaNomi, saveMemory});
}

void runLoad(Session& session, const Line& line) {
  runFile(session, line.words[0], {CaricaDefault, CaricaNomi, loadMemory});
}

void runGet(Session& session, const Line& line) {
  session.out << toText(propertyFrom(session.s.controls, line.words[0])) << '\n';
}

void runSet(Session& session, const Line& line) {
  const Value value = propertyFrom(session.s.controls, line.words[0]);
  std::string_view written = line.rest;
  written.remove_prefix(static_cast<std::size_t>(line.words[1].data() - written.data()));
  if (isText(value)) written = quotedText(written);
  if (const auto expected = assign(value, written))
    throw ScriptFault("found '" + std::string(written) + "'; expected " + std::string(*expected));
}

void runDump(Session& session, const Line&) {
  for (const Control* control : session.s.controls.all())
    for (int i = control->first(); i <= control->last(); ++i)
      for (const Property& property : propertiesOf(control->kind()))
        session.out << control->nameOf(i) << '.' << property.name << ' '
                    << toText(property.of(*control, i)) << '\n';
}

void runField(Session& session, const Line&) {
  const Store& s = session.s;
  for (int row = 0; row < side; ++row)
    for (int column = 0; column < side; ++column)
      session.out << swatchOf(s, s.lblMiro[indexAt({row, column})].BackColor)
                  << (column + 1 < side ? ' ' : '\n');
}

void runEcho(Session& session, const Line& line) {
  session.out << line.rest << '\n';
}

}  // namespace caleidoscopio::console
