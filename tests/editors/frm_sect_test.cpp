#include "editors/frm_sect.h"

#include <gtest/gtest.h>

#include "editor_fixture.h"
#include "editors/editor_forms.h"
#include "editors/frm_crbx.h"
#include "editors/section_library.h"
#include "foundation/expect_message.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"

namespace pluvane {
namespace {

class FrmSectTest : public EditorTest {
 protected:
  int Section(const std::string& id, const std::vector<std::pair<double, double>>& points = {}) {
    const int n = AddSection(surface, state, id);
    if (!points.empty()) {
      SetTag(n, "NbPt", std::to_string(points.size()));
      for (std::size_t i = 0; i < points.size(); ++i) {
        SetTag(n, "X" + std::to_string(i + 1), NumToText(points[i].first));
        SetTag(n, "Y" + std::to_string(i + 1), NumToText(points[i].second));
      }
    }
    return n;
  }
  static std::vector<std::string> Column(Grid& grid, int col) {
    std::vector<std::string> texts;
    for (int row = 1; row <= grid.MaxRows(); ++row) texts.push_back(grid.Text(col, row));
    return texts;
  }
  // The user's part in the curve editor: what it opened on, then `edit`.
  void InEditor(std::function<void(FrmCrbx&)> edit) {
    on_form = [this, edit](FormController& form) {
      auto* editor = dynamic_cast<FrmCrbx*>(&form);
      ASSERT_NE(editor, nullptr);
      edited = editor->params();
      opened_rows.clear();
      for (int row = 1; row <= editor->grid().MaxRows(); ++row)
        opened_rows.push_back({editor->grid().Text(1, row), editor->grid().Text(2, row)});
      if (edit) edit(*editor);
    };
  }
  static void Fill(Grid& grid, const std::vector<std::vector<std::string>>& rows) {
    grid.SetMaxRows(static_cast<int>(rows.size()));
    for (std::size_t r = 0; r < rows.size(); ++r)
      for (std::size_t c = 0; c < rows[r].size(); ++c)
        grid.SetText(static_cast<int>(c) + 1, static_cast<int>(r) + 1, rows[r][c]);
  }

  CrbxParams edited;
  std::vector<std::vector<std::string>> opened_rows;
};

TEST_F(FrmSectTest, OneRowPerSectionInTheOrderOfTheDrawing) {
  Section("Ovoide");
  AddObject({{"iName", "5"}, {"Id", "Cac_1"}});
  Section("Dalot");
  Section("Arche");
  auto made = MakeEditorForm("frmSect", context);
  ASSERT_NE(made, nullptr);
  FrmSect& form = static_cast<FrmSect&>(*made);
  EXPECT_EQ(form.Caption(), "Géométrie des collecteurs... ");
  Grid& grid = form.grid();
  EXPECT_EQ(grid.Caption(), "Géométrie des collecteurs... ");
  EXPECT_EQ(grid.ColHead(1), "Id. de la section");
  EXPECT_EQ(grid.ColHead(2), "Courbe hauteur/largeur");
  EXPECT_EQ(Column(grid, 1), (std::vector<std::string>{"Ovoide", "Dalot", "Arche"}));
  EXPECT_EQ(Column(grid, 2), (std::vector<std::string>(3, "&ouvrir...")));
  EXPECT_EQ(grid.Type(2, 3).kind, CellType::kButton);
}

TEST_F(FrmSectTest, AnEmptyLibraryHasNoRow) {
  FrmSect form(context);
  EXPECT_EQ(form.grid().MaxRows(), 0);
  form.Run("mnuIns");
  EXPECT_EQ(form.grid().MaxRows(), 1);
  EXPECT_EQ(form.grid().Text(2, 1), "&ouvrir...");
}

TEST_F(FrmSectTest, AddAtTheEndInsertBeforeTheCurrentRow) {
  Section("A");
  Section("B");
  FrmSect form(context);
  Grid& grid = form.grid();
  form.Run("mnuAdd");
  EXPECT_EQ(Column(grid, 1), (std::vector<std::string>{"A", "B", ""}));
  EXPECT_EQ(grid.ActiveRow(), 3);
  EXPECT_EQ(grid.Text(2, 3), "&ouvrir...");
  EXPECT_EQ(grid.Type(2, 3).kind, CellType::kButton);
  grid.SetActiveCell(1, 2);
  form.Run("mnuIns");
  EXPECT_EQ(Column(grid, 1), (std::vector<std::string>{"A", "", "B", ""}));
  EXPECT_EQ(grid.ActiveRow(), 2);
  EXPECT_EQ(grid.Text(2, 2), "&ouvrir...");
}

TEST_F(FrmSectTest, SaveMakesASectionForEachNewName) {
  const int a = Section("A");
  SetTag(a, "NbPt", "3");
  FrmSect form(context);
  Grid& grid = form.grid();
  form.Run("mnuAdd");
  grid.SetText(1, 2, "  Nouvelle  ");
  form.Run("mnuAdd");  // stays empty
  form.Run("mnuAdd");
  grid.SetText(1, 4, "A");
  form.Run("mnuSave");
  EXPECT_FALSE(form.Closed());
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"A", "Nouvelle"}));
  EXPECT_EQ(Tag(a, "NbPt"), "3");
  const int n = FindSection(surface, "Nouvelle");
  ASSERT_GT(n, 0);
  surface.SetCurrentObject(n);
  ASSERT_EQ(surface.ObjTagCount(), 3);
  EXPECT_EQ(surface.ObjTagName(0), "Id");
  EXPECT_EQ(surface.ObjTagName(1), "iName");
  EXPECT_EQ(surface.ObjTagValue(1), "101");
  EXPECT_EQ(surface.ObjTagName(2), "iGroup");
  EXPECT_EQ(surface.ObjTagValue(2), "-1");
  EXPECT_FALSE(surface.ObjectVisible());
  // Saving again makes nothing more.
  form.Run("mnuSave");
  EXPECT_EQ(SectionIds(surface).size(), 2u);
}

TEST_F(FrmSectTest, DeleteTakesTheSectionFromTheDrawingAtOnce) {
  Section("A");
  Section("B");
  Section("C");
  {
    FrmSect form(context);
    form.grid().SetActiveCell(1, 2);
    form.Run("mnuDel");
    EXPECT_EQ(Column(form.grid(), 1), (std::vector<std::string>{"A", "C"}));
    EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"A", "C"}));
    // A row never saved deletes nothing.
    form.Run("mnuAdd");
    form.grid().SetText(1, 3, "Z");
    form.Run("mnuDel");
    EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"A", "C"}));
    form.Run("mnuQuit");
    EXPECT_TRUE(form.Closed());
  }
  // Closing without saving does not bring it back.
  FrmSect again(context);
  EXPECT_EQ(Column(again.grid(), 1), (std::vector<std::string>{"A", "C"}));
}

TEST_F(FrmSectTest, TheButtonOpensTheCurveEditorOnTheSection) {
  const int s = Section("Ovoide", {{0.2, 0}, {1.2, 0.5}, {0.8, 1.5}});
  WriteBytes(folder.File("tmp.crb"), "'CrbX'\r\n     9.000     9.000\r\n");
  FrmSect form(context);
  InEditor([](FrmCrbx& editor) {
    editor.grid().SetText(2, 3, "1.6");
    editor.Run("mnAdd");
    editor.grid().SetText(1, 4, "0");
    editor.grid().SetText(2, 4, "1.6");  // an equal height passes
    editor.Run("mnSave");
    EXPECT_TRUE(editor.Closed());
  });
  form.ButtonCell(form.grid(), 2, 1);
  EXPECT_EQ(forms_shown, 1);
  EXPECT_EQ(edited.file, folder.File("tmp.crb"));
  EXPECT_EQ(edited.point_limit, 10);
  EXPECT_EQ(edited.labels[0], "Largeur du miroir (m)");
  EXPECT_EQ(edited.labels[1], "Hauteur au radier (m)");
  EXPECT_EQ(edited.labels[2], "");
  EXPECT_EQ(edited.labels[3], "");
  EXPECT_EQ(edited.caption, "Section paramétrique");
  EXPECT_EQ(edited.plot_title, "Section paramétrique");
  EXPECT_EQ(edited.mode, "SEC");
  EXPECT_EQ(opened_rows,
            (std::vector<std::vector<std::string>>{{"0.2", "0"}, {"1.2", "0.5"}, {"0.8", "1.5"}}));
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(Tag(s, "NbPt"), "4");
  EXPECT_EQ(Tag(s, "X3"), "0.8");
  EXPECT_EQ(Tag(s, "Y3"), "1.6");
  EXPECT_EQ(Tag(s, "X4"), "0");
  EXPECT_EQ(Tag(s, "Y4"), "1.6");
}

TEST_F(FrmSectTest, FallingHeightsStayInTheEditor) {
  const int s = Section("Ovoide", {{0.2, 0}, {1.2, 0.5}});
  FrmSect form(context);
  InEditor([this](FrmCrbx& editor) {
    editor.grid().SetText(2, 2, "-0.1");
    editor.Run("mnSave");
    ExpectLastMessage(ui, "Les hauteurs doivent être croissants !", "Section paramétrique",
                      MessageIcon::kNone);
    EXPECT_FALSE(editor.Closed());
  });
  form.ButtonCell(form.grid(), 2, 1);
  // The user then closed the window: the file as saved is read back.
  EXPECT_EQ(Tag(s, "Y2"), "-0.1");
}

TEST_F(FrmSectTest, ANewNameGetsItsSectionAndAnEmptyEditor) {
  WriteBytes(folder.File("tmp.crb"), "'CrbX'\r\n     9.000     9.000\r\n    10.000    10.000\r\n");
  FrmSect form(context);
  form.Run("mnuAdd");
  form.grid().SetText(1, 1, "Dalot ");
  InEditor([](FrmCrbx& editor) {
    Fill(editor.grid(), {{"2", "0"}, {"2", "1"}});
    editor.Run("mnSave");
  });
  form.ButtonCell(form.grid(), 2, 1);
  EXPECT_EQ(opened_rows, (std::vector<std::vector<std::string>>{{"", ""}}));
  const int s = FindSection(surface, "Dalot");
  ASSERT_GT(s, 0);
  EXPECT_EQ(Tag(s, "iName"), "101");
  EXPECT_EQ(Tag(s, "iGroup"), "-1");
  EXPECT_EQ(Tag(s, "NbPt"), "2");
  EXPECT_EQ(Tag(s, "Y2"), "1");
}

TEST_F(FrmSectTest, ClosingTheEditorWithoutSavingChangesNothing) {
  FrmSect form(context);
  form.Run("mnuAdd");
  form.grid().SetText(1, 1, "Vide");
  InEditor(nullptr);
  form.ButtonCell(form.grid(), 2, 1);
  const int s = FindSection(surface, "Vide");
  ASSERT_GT(s, 0);
  EXPECT_EQ(Tag(s, "NbPt"), "");
  // A row without a name opens nothing.
  form.Run("mnuAdd");
  form.ButtonCell(form.grid(), 2, 2);
  EXPECT_EQ(forms_shown, 1);
}

TEST_F(FrmSectTest, PasteFillsTheNamesAndKeepsTheButtons) {
  FrmSect form(context);
  form.Run("mnuAdd");
  form.Run("mnuAdd");
  form.grid().SetActiveCell(1, 1);
  form.Paste("S1\tx\r\nS2\ty\r\nS3\r\n");
  EXPECT_EQ(Column(form.grid(), 1), (std::vector<std::string>{"S1", "S2"}));
  EXPECT_EQ(Column(form.grid(), 2), (std::vector<std::string>(2, "&ouvrir...")));
  form.Run("mnuSave");
  EXPECT_EQ(SectionIds(surface), (std::vector<std::string>{"S1", "S2"}));
}

TEST_F(FrmSectTest, SectionsSurviveSaveAndLoad) {
  Section("Ovoide", {{0.2, 0}, {1.2, 0.5}, {0.8, 1.5}});
  Section("Vide");
  const std::string path = folder.File("reseau.mtf");
  ASSERT_TRUE(surface.SaveFile(path, kNativeFormat));
  Surface loaded;
  ASSERT_TRUE(loaded.LoadFile(path, 0));
  EXPECT_EQ(SectionIds(loaded), (std::vector<std::string>{"Ovoide", "Vide"}));
  const int s = FindSection(loaded, "Ovoide");
  loaded.SetCurrentObject(s);
  EXPECT_EQ(loaded.ObjTag("iGroup"), "-1");
  EXPECT_EQ(loaded.ObjTag("NbPt"), "3");
  EXPECT_EQ(loaded.ObjTag("X2"), "1.2");
  EXPECT_EQ(loaded.ObjTag("Y3"), "1.5");
  EXPECT_FALSE(loaded.ObjectVisible());
}

}  // namespace
}  // namespace pluvane
