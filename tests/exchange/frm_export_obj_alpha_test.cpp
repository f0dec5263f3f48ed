// The form that copies library records into another network file.
#include "exchange/frm_export_obj_alpha.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "exchange/obj_alpha_export.h"
#include "exchange/obj_alpha_fixture.h"
#include "foundation/expect_message.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

using FrmExportObjAlphaTest = ObjAlphaTest;

// Records the filter of the save dialog as well.
class DialogUi : public ScriptedUi {
 public:
  std::string AskSaveFile(const std::string& title, const std::string& asked_filter,
                          const std::string& default_ext,
                          const std::string& initial_name) override {
    filter = asked_filter;
    return ScriptedUi::AskSaveFile(title, asked_filter, default_ext, initial_name);
  }
  std::string filter;
};

TEST_F(FrmExportObjAlphaTest, ExportingSectionsOverwritesTheSectionOfTheSameId) {
  NetworkStart();
  AddRecord(source_, state_,
            {{"iName", "101"}, {"Id", "OVO100"}, {"Forme", "ovoide"}, {"Hauteur", "1.5"}});
  AddRecord(source_, state_, {{"iName", "101"}, {"Id", "RECT2"}, {"Forme", "rect"}});
  const std::string dest = Destination(
      {{{"iName", "101"}, {"Id", "OVO100"}, {"Forme", "ancienne"}, {"Note", "gardée"}}});
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "101: Section de collecteurs");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");

  EXPECT_TRUE(ui_.Empty());
  ASSERT_FALSE(ui_.Statuses().empty());
  EXPECT_EQ(ui_.Statuses().back(), "ok 2 obj de type 101 ont été exportés dans " + dest);
  EXPECT_TRUE(form.Closed());
  Surface written;
  Reload(written, dest);
  ASSERT_EQ(CountByName(written, 101), 2);
  // Its tags are overwritten one by one; the one the source lacks stays.
  const int ovo = FindObject(written, "Id", "OVO100");
  EXPECT_EQ(TagsOf(written, ovo), (Tags{{"iName", "101"},
                                        {"Id", "OVO100"},
                                        {"Forme", "ovoide"},
                                        {"Note", "gardée"},
                                        {"Hauteur", "1.5"}}));
  // The new one is a record out of sight, as the libraries' records are.
  const int rect = FindObject(written, "Id", "RECT2");
  EXPECT_EQ(TagsOf(written, rect), (Tags{{"iName", "101"}, {"Id", "RECT2"}, {"Forme", "rect"}}));
  written.SetCurrentObject(rect);
  EXPECT_FALSE(written.ObjectVisible());
  EXPECT_EQ(written.ObjLeft(), 100000 - 60);
  EXPECT_EQ(written.ObjBottom(), 100000 + 60);
  // The destination takes the extents of the network on screen; its nodes stay.
  EXPECT_EQ(written.LogicWidth(), 100000);
  EXPECT_EQ(CountByName(written, 99), 2);
}

TEST_F(FrmExportObjAlphaTest, WithNoObjectOfAnyKindTheListIsEmptyAndGoDoesNothing) {
  NetworkStart();
  const std::string dest = Destination({});
  const std::string before = ReadBytes(dest);
  FrmExportObjAlpha form(source_, state_, ui_);
  EXPECT_TRUE(form.grid().ListEntries(1, FrmExportObjAlpha::kRowType).empty());
  EXPECT_EQ(form.grid().Text(1, FrmExportObjAlpha::kRowType),
            "?? : rentrez un nombre entier suivi de 2 points");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_TRUE(ui_.Statuses().empty());
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ReadBytes(dest), before);
}

TEST_F(FrmExportObjAlphaTest, TheListOffersTheKindsPresentInItsOwnOrder) {
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "111"}, {"Id", "Decennale"}});
  AddRecord(source_, state_, {{"iName", "103"}, {"Id", "P1"}});
  AddRecord(source_, state_, {{"iName", "104"}, {"Id", "C1"}});
  AddRecord(source_, state_, {{"iName", "101"}, {"Id", "S1"}});
  AddRecord(source_, state_, {{"iName", "108"}, {"Id", "R1"}});
  AddRecord(source_, state_, {{"iName", "102"}, {"Id", "M1"}});
  AddRecord(source_, state_, {{"iName", "105"}, {"Id", "T1"}});
  AddRecord(source_, state_, {{"iName", "106"}, {"Id", "T2"}});
  AddRecord(source_, state_, {{"iName", "107"}, {"Id", "I1"}});
  AddRecord(source_, state_, {{"iName", "109"}, {"Id", "not offered"}});
  FrmExportObjAlpha form(source_, state_, ui_);
  EXPECT_EQ(form.grid().ListEntries(1, FrmExportObjAlpha::kRowType),
            (std::vector<std::string>{
                "101: Section de collecteurs", "102: Coefficient de Montana",
                "104: Pluie de projet type Caquot", "105: Pluie de projet type 1 triangle",
                "106: Pluie de projet type 2 triangles", "107: Pluie de projet synthétique I(t)",
                "103: Pluie réelle type pluvio H(t)", "108: Pluie réelle type Radar maillé M(t) ",
                "111: Scénario de simulation"}));
}

TEST_F(FrmExportObjAlphaTest, TheLabelsAndTheCaptionAreTheForms) {
  FrmExportObjAlpha form(source_, state_, ui_);
  EXPECT_EQ(form.Caption(), "Export de données alpha vers un autre Mtf");
  EXPECT_EQ(form.grid().Text(0, FrmExportObjAlpha::kRowType), "Type de données à exporter:");
  EXPECT_EQ(form.grid().Text(0, FrmExportObjAlpha::kRowFile), "Fichier Mtf destination:");
  EXPECT_EQ(form.grid().Note(1, FrmExportObjAlpha::kRowFile),
            "Double cliques ici pour parcourir les fichiers Mtf...");
  EXPECT_TRUE(form.grid().Type(1, FrmExportObjAlpha::kRowType).typed);
}

TEST_F(FrmExportObjAlphaTest, AMissingDestinationIsRefusedAndTheFormStays) {
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "102"}, {"Id", "Paris"}});
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "102: Coefficient de Montana");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, folder_.File("absent.mtf"));
  form.Run("cmdGo");
  ExpectLastMessage(ui_, "Un fichier Mtf doit être spécifié !", "Fichier Mtf introuvable",
                    MessageIcon::kInformation);
  EXPECT_FALSE(form.Closed());
  EXPECT_FALSE(fs::exists(folder_.File("absent.mtf")));
  // An empty box is a missing file as well.
  ui_.Clear();
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, "");
  form.Run("cmdGo");
  ExpectLastMessage(ui_, "Un fichier Mtf doit être spécifié !", "Fichier Mtf introuvable",
                    MessageIcon::kInformation);
}

TEST_F(FrmExportObjAlphaTest, ATypedNumberAndColonIsATypeToo) {
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "109"}, {"Id", "Scn pluie"}, {"Pluie", "P1"}});
  const std::string dest = Destination({});
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, " 109 :");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");
  EXPECT_EQ(ui_.Statuses().back(), "ok 1 obj de type 109 ont été exportés dans " + dest);
  Surface written;
  Reload(written, dest);
  EXPECT_EQ(TagOfObject(written, FindObject(written, "Id", "Scn pluie"), "Pluie"), "P1");
}

TEST_F(FrmExportObjAlphaTest, ATypeWithoutColonEndsWithoutAWord) {
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "102"}, {"Id", "Paris"}});
  const std::string dest = Destination({});
  const std::string before = ReadBytes(dest);
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "102");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");
  EXPECT_TRUE(ui_.Empty());
  EXPECT_TRUE(ui_.Statuses().empty());
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ReadBytes(dest), before);
}

TEST_F(FrmExportObjAlphaTest, TheListOfObjectsStartsAtTheFifthObject) {
  // A section among the first four objects of the drawing stays behind.
  AddRecord(source_, state_, {{"iName", "101"}, {"Id", "PREMIERE"}});
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "101"}, {"Id", "SUIVANTE"}});
  const std::string dest = Destination({});
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "101: Section de collecteurs");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");
  EXPECT_EQ(ui_.Statuses().back(), "ok 1 obj de type 101 ont été exportés dans " + dest);
  Surface written;
  Reload(written, dest);
  EXPECT_EQ(FindObject(written, "Id", "PREMIERE"), 0);
  EXPECT_GT(FindObject(written, "Id", "SUIVANTE"), 10);
}

TEST_F(FrmExportObjAlphaTest, TheNetworkOnScreenStaysUntouched) {
  NetworkStart();
  const int record = AddRecord(source_, state_, {{"iName", "102"}, {"Id", "Paris"}, {"a", "1"}});
  const Tags before = TagsOf(source_, record);
  const int count = source_.ObjectCount(kPage);
  const bool could_undo = source_.CanUndo();
  source_.SetCurrentObject(record);
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "102: Coefficient de Montana");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, Destination({}));
  form.Run("cmdGo");
  ASSERT_TRUE(form.Closed());
  EXPECT_EQ(source_.ObjectCount(kPage), count);
  EXPECT_EQ(TagsOf(source_, record), before);
  EXPECT_EQ(source_.CurrentObject(), record);
  EXPECT_EQ(source_.CanUndo(), could_undo);
  // The bar followed the objects and went away at the end.
  ASSERT_FALSE(ui_.Progress().empty());
  EXPECT_EQ(ui_.Progress().front(), 0);
  EXPECT_EQ(ui_.Progress().back(), -1);
}

TEST_F(FrmExportObjAlphaTest, AnUnreadableDestinationIsReportedAndKept) {
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "102"}, {"Id", "Paris"}});
  const std::string dest = folder_.File("abime.mtf");
  WriteBytes(dest, "pas un réseau");
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "102: Coefficient de Montana");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");
  ExpectLastMessage(ui_, "Format de fichier non valide\rfrmExportObjAlpha",
                    "Pluvane (erreur n°321, L0)", MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ReadBytes(dest), "pas un réseau");
  EXPECT_TRUE(ui_.Statuses().empty());
}

TEST_F(FrmExportObjAlphaTest, ADestinationThatCannotBeWrittenStaysAsItWas) {
  NetworkStart();
  AddRecord(source_, state_, {{"iName", "102"}, {"Id", "Paris"}});
  // A name so long that no temporary file can stand beside it: the safe
  // replacement cannot start.
  const std::string made = Destination({});
  const std::string dest = folder_.File(std::string(246, 'a') + ".mtf");
  WriteBytes(dest, ReadBytes(made));
  fs::remove(made);
  const std::string before = ReadBytes(dest);
  FrmExportObjAlpha form(source_, state_, ui_);
  form.grid().SetText(1, FrmExportObjAlpha::kRowType, "102: Coefficient de Montana");
  form.grid().SetText(1, FrmExportObjAlpha::kRowFile, dest);
  form.Run("cmdGo");
  ASSERT_FALSE(ui_.Empty());
  EXPECT_EQ(ui_.Last().kind, "message");
  EXPECT_EQ(ui_.Last().title.rfind("Pluvane (erreur n°", 0), 0u) << ui_.Last().title;
  const std::string& text = ui_.Last().text;
  EXPECT_TRUE(text.size() > 18 && text.ends_with("\rfrmExportObjAlpha")) << text;
  EXPECT_EQ(ui_.Last().icon, MessageIcon::kExclamation);
  EXPECT_TRUE(ui_.Statuses().empty());
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(ReadBytes(dest), before);
  // Nothing but the destination in its folder.
  int files = 0;
  for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder_.Path())) ++files;
  EXPECT_EQ(files, 1);
}

TEST_F(FrmExportObjAlphaTest, ADoubleClickOnTheFileBrowsesForIt) {
  DialogUi ui;
  FrmExportObjAlpha form(source_, state_, ui);
  ui.Queue("/réseaux/aval.mtf");
  form.DoubleClickCell(form.grid(), 1, FrmExportObjAlpha::kRowFile);
  ASSERT_FALSE(ui.Empty());
  EXPECT_EQ(ui.Last().kind, "save");
  EXPECT_EQ(ui.Last().title, "Spécifiez le fichier Mtf destination");
  EXPECT_EQ(ui.Last().text, "*.mtf");
  EXPECT_EQ(ui.filter, "fichier Pluvane|*.mtf");
  EXPECT_EQ(form.grid().Text(1, FrmExportObjAlpha::kRowFile), "/réseaux/aval.mtf");
  // Cancelled, the box keeps what it had; the type box takes no dialog.
  form.DoubleClickCell(form.grid(), 1, FrmExportObjAlpha::kRowFile);
  EXPECT_EQ(form.grid().Text(1, FrmExportObjAlpha::kRowFile), "/réseaux/aval.mtf");
  const std::size_t asked = ui.Messages().size();
  form.DoubleClickCell(form.grid(), 1, FrmExportObjAlpha::kRowType);
  EXPECT_EQ(ui.Messages().size(), asked);
}

TEST_F(FrmExportObjAlphaTest, TheFormOpensOnANetworkOfTwoNodes) {
  Node("Nod_1");
  EXPECT_FALSE(ObjAlphaNetworkLoaded(source_, ui_));
  ExpectLastMessage(ui_, "Un réseau doit être chargé.", "Pluvane", MessageIcon::kExclamation);
  ui_.Clear();
  Node("Nod_2");
  EXPECT_TRUE(ObjAlphaNetworkLoaded(source_, ui_));
  EXPECT_TRUE(ui_.Empty());
}

}  // namespace
}  // namespace pluvane
