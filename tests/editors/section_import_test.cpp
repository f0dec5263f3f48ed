#include "editors/section_import.h"

#include <gtest/gtest.h>

#include "editor_fixture.h"
#include "editors/section_export.h"
#include "editors/section_library.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"

namespace pluvane {
namespace {

// A console that keeps what it was told.
class RecordingConsole : public Console {
 public:
  void Debut(const std::string& title) override { calls.push_back("Debut " + title); }
  void AfficheMessage(const std::string& text) override { lines.push_back(text); }
  void AfficheJauge(int, const std::string&) override {}
  void EffaceJauge() override {}
  void Fin(bool close) override { calls.push_back(close ? "Fin close" : "Fin"); }
  std::string GetStatus() const override { return ""; }
  void SetStatus(const std::string&) override {}
  void Clear() override {}
  std::vector<std::string> calls;
  std::vector<std::string> lines;
};

// The user, who also shows what the file dialogs were given.
class DialogUi : public ScriptedUi {
 public:
  std::string AskOpenFile(const std::string& title, const std::string& asked_filter,
                          const std::string& asked_ext,
                          const std::string& initial_name) override {
    filter = asked_filter;
    default_ext = asked_ext;
    return ScriptedUi::AskOpenFile(title, asked_filter, asked_ext, initial_name);
  }
  std::string AskSaveFile(const std::string& title, const std::string& asked_filter,
                          const std::string& asked_ext,
                          const std::string& initial_name) override {
    filter = asked_filter;
    default_ext = asked_ext;
    return ScriptedUi::AskSaveFile(title, asked_filter, asked_ext, initial_name);
  }
  std::string filter;
  std::string default_ext;
};

class SectionImport : public EditorTest {
 protected:
  int Sec(const std::string& text) {
    WriteBytes(folder.File("s.sec"), text);
    return ImportSecFile(surface, state, ui, folder.File("s.sec"), folder.File("s.msg"));
  }
  int Crb(const std::string& text) {
    WriteBytes(folder.File("s.crb"), text);
    return ImportCrbFile(surface, state, folder.File("s.crb"), folder.File("s.msg"));
  }
  std::vector<std::string> Report() {
    std::vector<std::string> lines;
    ReadTextLines(folder.File("s.msg"), lines);
    return lines;
  }
  // All tags of a section, in order.
  std::vector<std::pair<std::string, std::string>> TagsOf(const std::string& id) {
    const int n = FindSection(surface, id);
    std::vector<std::pair<std::string, std::string>> tags;
    if (n < 1) return tags;
    CursorKeeper keeper(surface);
    surface.SetCurrentObject(n);
    for (int i = 0; i < surface.ObjTagCount(); ++i)
      tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
    return tags;
  }
  using Tags = std::vector<std::pair<std::string, std::string>>;
};

TEST_F(SectionImport, TextFormat) {
  EXPECT_EQ(Sec("Bibliothèque du secteur nord\r\n"
                "'Ovoide T180' les hauteurs puis les largeurs\r\n"
                "0 0.50 1.8\r\n"
                "0.6  1.2 0.4\r\n"
                "  'Dalot'\r\n"
                "0 2\n"
                "3 3\n"),
            2);
  EXPECT_EQ(Report(), (std::vector<std::string>{"Ovoide T180\t: importé", "Dalot\t: importé", "",
                                                "ok 2 sections ont été importées."}));
  EXPECT_EQ(ReadBytes(folder.File("s.msg")).substr(0, 28), "Ovoide T180\t: import\xE9\r\nDalot");
  EXPECT_EQ(TagsOf("Ovoide T180"), (Tags{{"iName", "101"},
                                         {"Id", "Ovoide T180"},
                                         {"NbPt", "3"},
                                         {"X1", "0.6"},
                                         {"Y1", "0"},
                                         {"X2", "1.2"},
                                         {"Y2", "0.50"},
                                         {"X3", "0.4"},
                                         {"Y3", "1.8"}}));
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"Ovoide T180", "Dalot"}));
  const int n = FindSection(surface, "Dalot");
  surface.SetCurrentObject(n);
  EXPECT_FALSE(surface.ObjectVisible());
  EXPECT_TRUE(ui.Empty());
}

TEST_F(SectionImport, OneSectionIsSaidInTheSingular) {
  EXPECT_EQ(Sec("'A'\n0 1\n1 1\n"), 1);
  EXPECT_EQ(Report().back(), "ok 1 section a été importée.");
}

TEST_F(SectionImport, ANameInTheLibraryIsReportedAndItsLinesSkipped) {
  AddSection(surface, state, "Dalot");
  EXPECT_EQ(Sec("'Dalot'\n0 1\n2 2\n'B'\n0 1\n1 1\n"), 2);
  EXPECT_EQ(Report(),
            (std::vector<std::string>{"Dalot\t: existe déjà dans la BD section", "B\t: importé", "",
                                      "ok 2 sections ont été importées."}));
  EXPECT_EQ(TagsOf("Dalot").size(), 3u);  // untouched
}

TEST_F(SectionImport, AShortLineGivesAShorterCurve) {
  EXPECT_EQ(Sec("'A'\n0 1 2 3\n5 6\n"), 1);
  EXPECT_EQ(TagsOf("A"), (Tags{{"iName", "101"},
                               {"Id", "A"},
                               {"NbPt", "2"},
                               {"X1", "5"},
                               {"Y1", "0"},
                               {"X2", "6"},
                               {"Y2", "1"}}));
  EXPECT_TRUE(ui.Empty());
}

TEST_F(SectionImport, EqualHeightsStopTheImport) {
  // The curve editor takes equal heights; the import does not.
  EXPECT_EQ(Sec("'Bon'\n0 1\n1 1\n'Plat'\n0 1 1\n1 2 3\n'Suivant'\n0 1\n1 1\n"), 2);
  EXPECT_EQ(Report(), (std::vector<std::string>{"Bon\t: importé", "",
                                                "Les hauteurs de la section Plat doivent être "
                                                "croissante.",
                                                "Revoir la section Plat (3e point)"}));
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"Bon"}));
}

TEST_F(SectionImport, ARiseBelowAMillionthIsRefused) {
  EXPECT_EQ(Sec("'Fin'\n1 1.0000001\n1 1\n"), 1);
  EXPECT_EQ(Report().back(), "Revoir la section Fin (2e point)");
}

TEST_F(SectionImport, OnePointShowsTheIndexOfNoTest) {
  EXPECT_EQ(Sec("'Point'\n0\n1\n"), 1);
  EXPECT_EQ(Report(), (std::vector<std::string>{"",
                                                "Les hauteurs de la section Point doivent être "
                                                "croissante.",
                                                "Revoir la section Point (0e point)"}));
  EXPECT_TRUE(SectionIds(surface).empty());
}

TEST_F(SectionImport, MalformedTextFilesNeverBreak) {
  // Non-numeric values read as 0.
  EXPECT_EQ(Sec("'Lettres'\nabc def\nx y\n"), 1);
  EXPECT_EQ(Report().back(), "Revoir la section Lettres (2e point)");
  // A name on the last line: no heights, no widths.
  EXPECT_EQ(Sec("'Seul'"), 1);
  EXPECT_EQ(Report().back(), "Revoir la section Seul (0e point)");
  // No apostrophe at all.
  EXPECT_EQ(Sec("0 1 2\n1 2 3\n"), 0);
  EXPECT_EQ(Report(), (std::vector<std::string>{"", "ok 0 section a été importée."}));
  // An unclosed quote in the numbers: the splitter says so, the line gives nothing.
  EXPECT_EQ(Sec("'Guillemet'\n0 \"1 2\n1 1 1\n"), 1);
  EXPECT_FALSE(ui.Empty());
  EXPECT_EQ(Report().back(), "Revoir la section Guillemet (0e point)");
  // An unclosed apostrophe takes the rest of the line as the name; an empty name is a name.
  ui.Clear();
  EXPECT_EQ(Sec("'Ouvert\n0 1\n1 1\n''\n0 1\n2 2\n"), 2);
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"Ouvert", ""}));
  // A missing file reads as empty.
  EXPECT_EQ(ImportSecFile(surface, state, ui, folder.File("absent.sec"), folder.File("s.msg")), 0);
  EXPECT_EQ(Report().back(), "ok 0 section a été importée.");
}

TEST_F(SectionImport, CurveFormat) {
  EXPECT_EQ(Crb("Fichier de sections\r\n"
                "\r\n"
                "'Ovoide'\r\n"
                "     0.000     0.600\r\n"
                "\r\n"
                "     0.500     1.200     9.000\r\n"
                "     1.800     0.400\r\n"
                "'Dalot'\r\n"
                "0         2\r\n"
                "3         2"),
            2);
  EXPECT_EQ(Report(), (std::vector<std::string>{"Ovoide\t: importé", "Dalot\t: importé", "",
                                                "ok 2 sections ont été importées."}));
  EXPECT_EQ(TagsOf("Ovoide"), (Tags{{"iName", "101"},
                                    {"Id", "Ovoide"},
                                    {"NbPt", "3"},
                                    {"X1", "0.6"},
                                    {"Y1", "0"},
                                    {"X2", "1.2"},
                                    {"Y2", "0.5"},
                                    {"X3", "0.4"},
                                    {"Y3", "1.8"}}));
  // The last line of the file, without its end, counts.
  EXPECT_EQ(TagsOf("Dalot")[2], (std::pair<std::string, std::string>{"NbPt", "2"}));
  EXPECT_EQ(TagsOf("Dalot")[6], (std::pair<std::string, std::string>{"Y2", "3"}));
}

TEST_F(SectionImport, CurveFormatHasTheSameReport) {
  AddSection(surface, state, "Vieux");
  EXPECT_EQ(Crb("'Vieux'\n     0.000     1.000\n     1.000     1.000\n'Plat'\n"
                "     0.000     1.000\n     0.000     2.000\n'Apres'\n     0.000     1.000\n"
                "     1.000     1.000\n"),
            2);
  EXPECT_EQ(Report(), (std::vector<std::string>{"Vieux\t: existe déjà dans la BD section", "",
                                                "Les hauteurs de la section Plat doivent être "
                                                "croissante.",
                                                "Revoir la section Plat (2e point)"}));
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"Vieux"}));
}

TEST_F(SectionImport, ACurveFileWithoutApostropheImportsNothing) {
  EXPECT_EQ(Crb("     0.000     1.000\n     1.000     2.000\n"), 0);
  EXPECT_EQ(Report(), (std::vector<std::string>{"", "ok 0 section a été importée."}));
  EXPECT_EQ(Crb("'Un'\n"), 1);
  EXPECT_EQ(Report().back(), "Revoir la section Un (0e point)");
  EXPECT_EQ(Crb("'Texte'\nabcdefghijklmnopqrstuvwxyz\nzz\n"), 1);
  EXPECT_EQ(Report().back(), "Revoir la section Texte (2e point)");
}

TEST_F(SectionImport, TheMenuShowsTheReportInTheConsole) {
  DialogUi dialog_ui;
  RecordingConsole console;
  const std::string file = folder.File("Secteur Nord.SEC");
  WriteBytes(file, "'A'\n0 1\n1 1\n");
  dialog_ui.Queue(file);
  ASSERT_TRUE(mnuOpt_SecImport(surface, state, dialog_ui, console));
  ASSERT_EQ(dialog_ui.Messages().size(), 1u);
  EXPECT_EQ(dialog_ui.Messages()[0].kind, "open");
  EXPECT_EQ(dialog_ui.Messages()[0].title, "Import d'un fichier de section");
  EXPECT_EQ(dialog_ui.Messages()[0].text, "*.sec;*.crb;*.txt");
  EXPECT_EQ(dialog_ui.filter, "Fichier texte sec|*.sec|crb|*.crb|Autre fichier|*.*");
  EXPECT_EQ(dialog_ui.default_ext, "sec");
  EXPECT_EQ(console.calls, (std::vector<std::string>{"Debut import de section", "Fin"}));
  EXPECT_EQ(console.lines,
            (std::vector<std::string>{"A\t: importé", "", "ok 1 section a été importée."}));
  // The report, beside the file, is gone once shown.
  EXPECT_FALSE(FileExist(folder.File("Secteur Nord.msg")));
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"A"}));
}

TEST_F(SectionImport, TheExtensionChoosesTheFormat) {
  const std::string report = folder.File("r.msg");
  bool complete = false;
  WriteBytes(folder.File("a.SEC"), "'T'\n0 1\n1 1\n");
  EXPECT_EQ(ImportSectionFile(surface, state, ui, folder.File("a.SEC"), report, &complete), 1);
  EXPECT_TRUE(complete);
  EXPECT_EQ(SectionReportPath(folder.File("a.SEC")), folder.File("a.msg"));
  EXPECT_EQ(TagsOf("T").size(), 7u);
  // The same text read as curves: "0 1" gives height 0 (the first ten characters hold "0 1").
  WriteBytes(folder.File("b.txt"), "'C'\n         0         1\n         1         1\n");
  EXPECT_EQ(ImportSectionFile(surface, state, ui, folder.File("b.txt"), report, &complete), 1);
  EXPECT_TRUE(complete);
  WriteBytes(folder.File("c.crb"), "'Plat'\n         0         1\n         0         1\n");
  EXPECT_EQ(ImportSectionFile(surface, state, ui, folder.File("c.crb"), report, &complete), 1);
  EXPECT_FALSE(complete);
  EXPECT_EQ(TagsOf("C")[4], (std::pair<std::string, std::string>{"Y1", "0"}));
  EXPECT_EQ(TagsOf("C")[3], (std::pair<std::string, std::string>{"X1", "1"}));
}

TEST_F(SectionImport, ACancelledDialogDoesNothing) {
  RecordingConsole console;
  ui.QueueCancel();
  EXPECT_FALSE(mnuOpt_SecImport(surface, state, ui, console));
  EXPECT_TRUE(console.calls.empty());
}

class SectionExport : public SectionImport {
 protected:
  int Section(const std::string& id, const std::vector<std::pair<std::string, std::string>>& xy) {
    const int n = AddSection(surface, state, id);
    SetTag(n, "NbPt", std::to_string(xy.size()));
    for (std::size_t i = 0; i < xy.size(); ++i) {
      SetTag(n, "X" + std::to_string(i + 1), xy[i].first);
      SetTag(n, "Y" + std::to_string(i + 1), xy[i].second);
    }
    return n;
  }
};

TEST_F(SectionExport, TheTextFormatOfTheImport) {
  Section("Ovoide T180", {{"0.6", "0"}, {"1.20", "0.5"}, {"0.4", "1.8"}});
  Section("Dalot", {{"3", "0"}, {"3", "2"}});
  std::vector<std::string> skipped;
  EXPECT_EQ(WriteSecFile(surface, folder.File("out.sec"), skipped), 2);
  EXPECT_TRUE(skipped.empty());
  EXPECT_EQ(ReadBytes(folder.File("out.sec")),
            "'Ovoide T180'\r\n0 0.5 1.8\r\n0.6 1.2 0.4\r\n'Dalot'\r\n0 2\r\n3 3\r\n");
}

TEST_F(SectionExport, ImportedIntoAnEmptyNetworkGivesTheSameSections) {
  Section("Ovoide T180", {{"0.6", "0"}, {"1.2", "0.5"}, {"0.4", "1.8"}});
  Section("Dalot 2x1", {{"2", "0"}, {"2", "1"}});
  Section("Arche", {{"4", "0"}, {"3.5", "1"}, {"2", "2.25"}, {"0", "2.5"}});
  std::vector<std::string> skipped;
  ASSERT_EQ(WriteSecFile(surface, folder.File("out.sec"), skipped), 3);

  Surface empty;
  EXPECT_EQ(ImportSecFile(empty, state, ui, folder.File("out.sec"), folder.File("out.msg")), 3);
  ASSERT_EQ(SectionIds(empty), SectionIds(surface));
  for (const std::string& id : SectionIds(surface)) {
    const int a = FindSection(surface, id), b = FindSection(empty, id);
    surface.SetCurrentObject(a);
    empty.SetCurrentObject(b);
    EXPECT_EQ(empty.ObjTag("NbPt"), surface.ObjTag("NbPt")) << id;
    for (int i = 1; i <= ValInt(surface.ObjTag("NbPt")); ++i) {
      for (const char* letter : {"X", "Y"}) {
        const std::string tag = letter + std::to_string(i);
        EXPECT_EQ(empty.ObjTag(tag), surface.ObjTag(tag)) << id << " " << tag;
      }
    }
  }
}

TEST_F(SectionExport, SectionsTheImportWouldRefuseAreLeftOut) {
  Section("Vide", {});
  Section("Bon", {{"1", "0"}, {"1", "1"}});
  Section("Plat", {{"1", "0"}, {"1", "0"}});
  Section("L'arche", {{"1", "0"}, {"1", "1"}});
  std::vector<std::string> skipped;
  EXPECT_EQ(WriteSecFile(surface, folder.File("out.sec"), skipped), 1);
  EXPECT_EQ(skipped, (std::vector<std::string>{"Vide", "Plat", "L'arche"}));
  EXPECT_EQ(ReadBytes(folder.File("out.sec")), "'Bon'\r\n0 1\r\n1 1\r\n");
  EXPECT_EQ(ExportReport(1, skipped),
            "ok 1 section a été exportée.\r\nSections non exportées (nom avec apostrophe, moins "
            "de 2 points ou hauteurs non croissantes) : Vide, Plat, L'arche");
}

TEST_F(SectionExport, TheMenuAsksTheFileAndTellsTheCount) {
  Section("A", {{"1", "0"}, {"1", "1"}});
  Section("B", {{"1", "0"}, {"1", "1"}});
  state.NetworkFile = folder.File("Reseau Nord.mtf");
  DialogUi dialog_ui;
  dialog_ui.Queue(folder.File("sortie.sec"));
  ASSERT_TRUE(mnuOpt_SecExport(surface, state, dialog_ui));
  ASSERT_EQ(dialog_ui.Messages().size(), 2u);
  EXPECT_EQ(dialog_ui.Messages()[0].kind, "save");
  EXPECT_EQ(dialog_ui.Messages()[0].title, "Export des sections");
  EXPECT_EQ(dialog_ui.Messages()[0].text, "Reseau Nord.sec");
  EXPECT_EQ(dialog_ui.filter, "Fichier texte sec|*.sec|Autre fichier|*.*");
  EXPECT_EQ(dialog_ui.default_ext, "sec");
  ExpectLastMessage(dialog_ui, "ok 2 sections ont été exportées.", "Export des sections",
                    MessageIcon::kInformation);
  EXPECT_TRUE(FileExist(folder.File("sortie.sec")));
  // Cancelled: nothing.
  dialog_ui.QueueCancel();
  EXPECT_FALSE(mnuOpt_SecExport(surface, state, dialog_ui));
  EXPECT_EQ(dialog_ui.Messages().size(), 3u);
}

}  // namespace
}  // namespace pluvane
