#include "memories/record.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "support/rig.h"

namespace caleidoscopio::test {
namespace {

struct MemoryRecord : testing::Test, Rig {
  Record record{s.controls, memoryRuns()};
  Record names{s.controls, nameRuns()};
};

/// The lines of a file, without their ends.
std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

/// Every control of a record gets a value of its own.
void fillDistinct(const Record& record) {
  int n = 0;
  for (const Record::Line& line : record.lines()) {
    ++n;
    const std::string written = std::holds_alternative<bool*>(line.value)
                                    ? (n % 2 ? "#TRUE#" : "#FALSE#")
                                : isText(line.value) ? "text " + std::to_string(n)
                                                     : std::to_string(n * 1009 - 900000);
    ASSERT_FALSE(assign(line.value, written)) << line.name;
  }
}

TEST_F(MemoryRecord, AMemoryHas1869LinesAndTheListOfNames231) {
  EXPECT_EQ(record.lines().size(), 1869U);
  EXPECT_EQ(names.lines().size(), 231U);
}

TEST_F(MemoryRecord, NoPropertyStandsInAFileTwice) {
  for (const Record* r : {&record, &names}) {
    std::set<std::string> seen;
    for (const Record::Line& line : r->lines())
      EXPECT_TRUE(seen.insert(line.name).second) << line.name;
  }
}

struct Place {
  std::size_t line;
  std::string_view name;
  std::string_view type;
};
// Where each group of a memory begins and ends.
constexpr Place memoryPlaces[] = {
    {1, "lblSeq(4).Caption", "text"},
    {2, "lblSeq(3).Caption", "text"},
    {3, "lblSeq(5).Caption", "text"},
    {4, "lblSeq(11).BackColor", "number"},
    {5, "lblSeq(0).Caption", "text"},
    {6, "TmrSequencer.Interval", "number"},
    {7, "lblScritteVarie(12).BackColor", "number"},
    {8, "lblScritteVarie(13).BackColor", "number"},
    {9, "lblScritteVarie(19).BackColor", "number"},
    {10, "lblNOrdine(1).BackColor", "number"},
    {177, "lblTmrC(24).BackColor", "number"},
    {178, "FraPannello(2).Visible", "flag"},
    {179, "cmdOnOff(5).BackColor", "number"},
    {180, "lblMiro(1).BackColor", "number"},
    {1061, "lblMiro2(441).BackColor", "number"},
    {1062, "lblColore(1).BorderStyle", "number"},
    {1165, "lblColore(104).BorderStyle", "number"},
    {1166, "lblComCol(2).Caption", "text"},
    {1167, "ShpContour.BorderColor", "number"},
    {1168, "ShpContour.BorderWidth", "number"},
    {1169, "lblComCol(0).BackColor", "number"},
    {1170, "lblMiro(1).BorderStyle", "number"},
    {1610, "lblMiro(441).BorderStyle", "number"},
    {1611, "lblComCol(3).Caption", "text"},
    {1612, "lblScritteVarie(7).ForeColor", "number"},
    {1613, "lblScritteVarie(8).ForeColor", "number"},
    {1614, "lblScritteVarie(9).ForeColor", "number"},
    {1615, "form.BackColor", "number"},
    {1616, "lblComCol(7).BackColor", "number"},
    {1617, "lblComCol(8).BackColor", "number"},
    {1618, "lblValore(0).BackColor", "number"},
    {1666, "lblSfondo(6).BorderStyle", "number"},
    {1667, "lblValAttivo.Caption", "text"},
    {1668, "lblValAttivo.BackColor", "number"},
    {1669, "lblValAttivo.ForeColor", "number"},
    {1670, "lblSelSfondo(0).BackColor", "number"},
    {1672, "lblSelSfondo(2).BackColor", "number"},
    {1673, "lblCambioCol(1).BackColor", "number"},
    {1675, "lblCambioCol(3).BackColor", "number"},
    {1676, "lblCambioCol(9).BackColor", "number"},
    {1677, "lblCambioCol(10).BackColor", "number"},
    {1678, "lblCambioCol(6).Caption", "text"},
    {1679, "lblNSc.Caption", "text"},
    {1680, "cmdOnOff(0).BackColor", "number"},
    {1681, "lblTmrRndCol(0).Caption", "text"},
    {1682, "TmrGoD.Interval", "number"},
    {1683, "lblMode(1).Caption", "text"},
    {1684, "lblSomma.Caption", "text"},
    {1685, "lblSyncro.BackColor", "number"},
    {1686, "lblSposta(1).Caption", "text"},
    {1721, "lblIntervalA(12).Caption", "text"},
    {1722, "lblIntervalA(0).Caption", "text"},
    {1723, "lblOraria.Caption", "text"},
    {1724, "lblVelo(1).Caption", "text"},
    {1725, "TmrGoA.Interval", "number"},
    {1726, "cmdOnOff(1).BackColor", "number"},
    {1727, "lblMode(2).Caption", "text"},
    {1728, "lblTransf(0).Caption", "text"},
    {1743, "lblTransf(7).BackColor", "number"},
    {1744, "lblInterv(1).Caption", "text"},
    {1750, "lblInterv(7).Caption", "text"},
    {1751, "lblVelo(2).Caption", "text"},
    {1752, "TmrGoB.Interval", "number"},
    {1753, "lblCrea(1).Caption", "text"},
    {1758, "lblCrea(6).Caption", "text"},
    {1759, "lblCrea(11).Caption", "text"},
    {1760, "lblAngoli.Caption", "text"},
    {1761, "lblColNumber.Caption", "text"},
    {1762, "lblLung(1).BackColor", "number"},
    {1769, "lblLung(8).BackColor", "number"},
    {1770, "lblCasel.Caption", "text"},
    {1771, "lblLungh.Caption", "text"},
    {1772, "lblMinMax(1).BackColor", "number"},
    {1776, "lblMinMax(5).BackColor", "number"},
    {1777, "lblOpzAggrega(0).Caption", "text"},
    {1778, "lblOpzAggrega(1).Caption", "text"},
    {1779, "lblFase.Caption", "text"},
    {1780, "lblSquareOpz.BackColor", "number"},
    {1781, "lblColSq.Caption", "text"},
    {1782, "lblNScambi.Caption", "text"},
    {1783, "FraTransf(1).Visible", "flag"},
    {1794, "FraTransf(12).Visible", "flag"},
    {1795, "cmdOnOff(2).BackColor", "number"},
    {1796, "lblCorniceOpzio(1).Caption", "text"},
    {1799, "lblCorniceOpzio(2).BackColor", "number"},
    {1800, "lblSyn.BackColor", "number"},
    {1801, "lblRandomC.BackColor", "number"},
    {1802, "lblRndC(0).Caption", "text"},
    {1803, "lblColCornice.Caption", "text"},
    {1804, "lblVelo(3).Caption", "text"},
    {1805, "TmrGoC.Interval", "number"},
    {1806, "cmdOnOff(3).BackColor", "number"},
    {1807, "lblBreakMode(0).Caption", "text"},
    {1860, "lblBreakMode(26).BackColor", "number"},
    {1861, "lblBrk(0).Caption", "text"},
    {1862, "lblBrk(3).Caption", "text"},
    {1863, "cmdOnOff(4).BackColor", "number"},
    {1864, "TmrAspetta.Interval", "number"},
    {1865, "TmrBreak.Interval", "number"},
    {1866, "TmrVeloBreak.Interval", "number"},
    {1867, "TmrBrk.Interval", "number"},
    {1868, "TmrScorriBrk.Interval", "number"},
    {1869, "lblTmrBreak(0).Caption", "text"},
};

TEST_F(MemoryRecord, EveryGroupOfAMemoryBeginsAndEndsOnItsLine) {
  for (const Place& place : memoryPlaces) {
    const Record::Line& line = record.lines()[place.line - 1];
    EXPECT_EQ(line.name, place.name) << place.line;
    const bool flag = std::holds_alternative<bool*>(line.value);
    EXPECT_EQ(isText(line.value) ? "text" : flag ? "flag" : "number", place.type) << place.name;
  }
}

TEST_F(MemoryRecord, WithinARepeatTheFieldsFollowOneAnother) {
  EXPECT_EQ(record.lines()[180].name, "lblMiro2(1).BackColor");
  EXPECT_EQ(record.lines()[181].name, "lblMiro(2).BackColor");
  EXPECT_EQ(record.lines()[182].name, "lblMiro2(2).BackColor");
  const char* const row[] = {
      "lblNOrdine(2).BackColor", "lblTmrA(2).Caption", "lblTmrA(2).BackColor", "lblTmrB(2).Caption",
      "lblTmrB(2).BackColor",    "lblTmrC(2).Caption", "lblTmrC(2).BackColor"};
  for (std::size_t n = 0; n < 7; ++n) EXPECT_EQ(record.lines()[16 + n].name, row[n]);
  const char* const slot[] = {"lblValore(1).BackColor",   "lblValore(1).ForeColor",
                              "lblValore(1).BorderStyle", "lblTav(1).Caption",
                              "lblSfondo(1).BackColor",   "lblSfondo(1).ForeColor",
                              "lblSfondo(1).BorderStyle"};
  for (std::size_t n = 0; n < 7; ++n) EXPECT_EQ(record.lines()[1624 + n].name, slot[n]);
}

TEST_F(MemoryRecord, TheListOfNamesHoldsTitlesStatesAndButtonsOnTheirLines) {
  const Place places[] = {{1, "lblNomefile.Caption", ""},    {2, "lblSelez.Caption", ""},
                          {3, "lblMemo(0).Caption", ""},     {4, "lblComb(0).Caption", ""},
                          {5, "lblComb(0).BackColor", ""},   {6, "lblComb(1).Caption", ""},
                          {214, "lblComb(105).Caption", ""}, {215, "lblComb(105).BackColor", ""},
                          {216, "lblSave(0).BackColor", ""}, {231, "lblSave(15).BackColor", ""}};
  for (const Place& place : places)
    EXPECT_EQ(names.lines()[place.line - 1].name, place.name) << place.line;
}

TEST_F(MemoryRecord, LeavesOutWhatAMemoryDoesNotHold) {
  std::set<std::string_view> held;
  for (const Record::Line& line : record.lines()) held.insert(line.name);
  for (const char* name :
       {"lblShift.Caption",        "lblCent.Caption",         "lblVoceOpzioni(2).Caption",
        "lblComCol(1).BackColor",  "lblComCol(4).BackColor",  "lblValore(0).Caption",
        "lblNumAttivo.Caption",    "lblSfondoAttivo.Caption", "lblSfondoMem.Caption",
        "lblSelSfondo(3).Caption", "lblMiro(1).Caption",      "lblMiro(1).ForeColor",
        "lblMiro2(1).Caption",     "lblMiro2(442).BackColor", "lblHide.BackColor",
        "lblSpiaBreak.BackColor",  "lblSposta(0).Caption",    "lblSposta(13).Caption",
        "lblTransf(8).Caption",    "lblInterv(8).Caption",    "lblTotali(0).BackColor",
        "lblValoreB(0).BackColor", "lblTavC(0).Caption"})
    EXPECT_EQ(held.count(name), 0U) << name;
}

TEST_F(MemoryRecord, WritesOneValueALineEndedByCarriageReturnAndLineFeed) {
  const std::string text = record.write();
  const std::vector<std::string> lines = linesOf(text);
  ASSERT_EQ(lines.size(), 1869U);
  EXPECT_TRUE(text.ends_with("\r\n"));
  int texts = 0;
  int flags = 0;
  for (const std::string& line : lines) {
    texts += line.starts_with('"') && line.ends_with('"');
    flags += line == "#TRUE#" || line == "#FALSE#";
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos);
  }
  EXPECT_EQ(texts, 186);
  EXPECT_EQ(flags, 13);
  EXPECT_EQ(lines[0], "\"4\"");
  EXPECT_EQ(lines[3], "16777215");
  EXPECT_EQ(lines[177], "#FALSE#");
  EXPECT_EQ(lines[1682], "\"Campo Orizzontale Out\"");
}

TEST_F(MemoryRecord, AColourOfTheSystemIsWrittenAsANegativeNumber) {
  s.lblMiro[1].BackColor = {0x8000000F};
  EXPECT_EQ(linesOf(record.write())[179], "-2147483633");
}

TEST_F(MemoryRecord, WrittenAndReadBackGives1869EqualValuesAndAnEqualFile) {
  fillDistinct(record);
  const std::string file = record.write();
  Rig other;
  const Record read(other.s.controls, memoryRuns());
  read.read(file, "a memory");
  for (std::size_t n = 0; n < 1869; ++n)
    EXPECT_EQ(toText(read.lines()[n].value), toText(record.lines()[n].value))
        << n + 1 << " " << record.lines()[n].name;
  EXPECT_EQ(read.write(), file);
}

TEST_F(MemoryRecord, TheListOfNamesComesBackEqualToo) {
  fillDistinct(names);
  const std::string file = names.write();
  Rig other;
  const Record read(other.s.controls, nameRuns());
  read.read(file, "names");
  EXPECT_EQ(read.write(), file);
}

}  // namespace
}  // namespace caleidoscopio::test
