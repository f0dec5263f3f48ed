#include "gis/frm_gis_import.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "gis/gis_fixture.h"

namespace pluvane {
namespace {

class FrmGisImportTest : public GisTest {
 protected:
  FrmGisImport form{Target(), console};
};

TEST_F(FrmGisImportTest, TheFormShowsItsRowsAndDefaults) {
  EXPECT_EQ(form.Caption(), "Import de couches SIG");
  EXPECT_EQ(form.grid().Text(1, FrmGisImport::kFile), "Fichier");
  EXPECT_EQ(form.grid().Text(1, FrmGisImport::kFields), "Champs (étiquette=CHAMP,...)");
  EXPECT_EQ(form.grid().Text(2, FrmGisImport::kKind), "Noeuds");
  EXPECT_EQ(form.grid().Text(2, FrmGisImport::kTolerance), "0.5");
  EXPECT_EQ(form.grid().Type(2, FrmGisImport::kKind).kind, CellType::kList);
}

TEST_F(FrmGisImportTest, BrowsingFillsTheFile) {
  ui.Queue("/data/regards.gpkg");
  form.Run("cmdParcourir");
  EXPECT_EQ(form.grid().Text(2, FrmGisImport::kFile), "/data/regards.gpkg");
}

TEST_F(FrmGisImportTest, OkImportsTheLayerAsTheRowsSay) {
  const int r1 = Node(1000, 1000);
  Set(r1, {{"Xus", "2000"}, {"Yus", "18000"}});
  const std::string file =
      GeoJson("pf", LineFeature("[2000.2,18000],[6000,18000]", "\"NOM\":\"P1\",\"IdSect\":\"OV\""));
  form.grid().SetText(2, FrmGisImport::kFile, file);
  form.grid().SetText(2, FrmGisImport::kKind, "Collecteurs paramétriques fermés (PF)");
  form.grid().SetText(2, FrmGisImport::kFields, "libell=NOM");
  form.grid().SetText(2, FrmGisImport::kTolerance, "0.3");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(form.Imported(), 1);
  const int link = OfType(6).front();
  EXPECT_EQ(TagOf(link, "libell"), "P1");
  EXPECT_EQ(TagOf(link, "IdSect"), "OV");
  EXPECT_EQ(TagOf(link, "sNodAm"), TagOf(r1, "Id"));
  EXPECT_EQ(console.title(), "Import de couches SIG");
  EXPECT_TRUE(console.ended());
}

TEST_F(FrmGisImportTest, RowsThatWillNotDoAreTold) {
  form.Run("cmdOk");
  ExpectLastMessage(ui, "Choisissez le fichier de la couche à importer.", "Import SIG",
                    MessageIcon::kExclamation);
  EXPECT_EQ(form.grid().ActiveRow(), FrmGisImport::kFile);
  form.grid().SetText(2, FrmGisImport::kFile, "/x.gpkg");
  form.grid().SetText(2, FrmGisImport::kFields, "libell");
  form.Run("cmdOk");
  ExpectLastMessage(ui,
                    "Écrivez les champs sous la forme étiquette=CHAMP, séparés par des virgules.",
                    "Import SIG", MessageIcon::kExclamation);
  form.grid().SetText(2, FrmGisImport::kFields, "");
  form.grid().SetText(2, FrmGisImport::kTolerance, "-1");
  form.Run("cmdOk");
  ExpectLastMessage(ui, "La tolérance doit être un nombre positif de mètres.", "Import SIG",
                    MessageIcon::kExclamation);
  EXPECT_FALSE(form.Closed());
  // A refused import keeps the form open, the network as it was.
  form.grid().SetText(2, FrmGisImport::kTolerance, "1");
  form.Run("cmdOk");
  EXPECT_EQ(ui.Last().text.rfind("Le fichier /x.gpkg ne peut pas être lu", 0), 0u);
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(form.Imported(), -1);
  EXPECT_TRUE(OfType(99).empty());
}

TEST(GisFields, PairsAreRead) {
  std::vector<std::pair<std::string, std::string>> fields;
  EXPECT_TRUE(ParseGisFields(" libell = NOM ,Zus=ZTN", fields));
  EXPECT_EQ(fields, (std::vector<std::pair<std::string, std::string>>{{"libell", "NOM"},
                                                                      {"Zus", "ZTN"}}));
  fields.clear();
  EXPECT_TRUE(ParseGisFields("", fields));
  EXPECT_TRUE(fields.empty());
  EXPECT_FALSE(ParseGisFields("libell=", fields));
  EXPECT_FALSE(ParseGisFields("a=b,,", fields));
}

}  // namespace
}  // namespace pluvane
