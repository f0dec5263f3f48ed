// The edition of one Caquot, simple-triangle or double-triangle storm: a
// one-row grid for each Montana entry it uses (the double triangle has two,
// total and intense), filled from the Montana library shown on demand, and for
// the triangles the grid of durations. The storm keeps a copy of the chosen
// coefficients along with the entry's name.
#pragma once

#include <string>
#include <vector>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"
#include "network/catalogue.h"
#include "rain/montana_columns.h"

namespace pluvane {

class FrmStormPlus : public FormController {
 public:
  // Columns of a Montana grid: those of the Montana library, then the button.
  static constexpr int kColId = kMontanaColId;
  static constexpr int kColDesign = kMontanaColDesign;
  static constexpr int kColPret = kMontanaColPret;
  static constexpr int kColCa = kMontanaColCa;
  static constexpr int kColCb = kMontanaColCb;
  static constexpr int kColChoose = 6;

  // `id` and `number` are the current rain: its name and its record.
  FrmStormPlus(EditorContext& context, int kind, std::string id, int number);

  std::string Caption() const override;
  std::vector<Grid*> Grids() override;
  std::vector<FormCommand> Commands() override;
  // The button of a Montana grid shows the library for that grid.
  void ButtonCell(Grid& grid, int col, int row) override;
  // A double click on a row of the library copies it into that grid.
  void DoubleClickCell(Grid& grid, int col, int row) override;

  // SSMontana, or SSmontaTot for the double triangle; SSmontaInt; SSTriangle;
  // Spread1 (the library).
  Grid& montana() { return montana_[0]; }
  Grid& montana_int() { return montana_[1]; }
  Grid& triangle() { return triangle_; }
  Grid& library() { return library_; }

  // Escape: the library is hidden again.
  void HideLibrary() { library_.SetVisible(false); }
  bool Escape() override {
    if (!library_.Visible()) return false;
    HideLibrary();
    return true;
  }
  void mnSave();
  void mnClose() { Close(); }

 private:
  // The tags of Montana grid `which`: "" for the single one, "Tot" or "Int".
  std::string Suffix(int which) const;
  int MontanaGrids() const { return kind_ == kINameDoubleTriangle ? 2 : 1; }
  std::vector<std::string> TriangleTags() const;

  EditorContext& context_;
  int kind_;
  std::string id_;
  int number_;
  Grid montana_[2];
  Grid triangle_;
  Grid library_;
  int target_ = 0;  // the Montana grid the library fills
};

// The forms by their names.
class FrmCaqPlus : public FrmStormPlus {
 public:
  FrmCaqPlus(EditorContext& context, std::string id, int number)
      : FrmStormPlus(context, 104, std::move(id), number) {}
};
class FrmPstPlus : public FrmStormPlus {
 public:
  FrmPstPlus(EditorContext& context, std::string id, int number)
      : FrmStormPlus(context, 105, std::move(id), number) {}
};
class FrmPdtPlus : public FrmStormPlus {
 public:
  FrmPdtPlus(EditorContext& context, std::string id, int number)
      : FrmStormPlus(context, 106, std::move(id), number) {}
};

}  // namespace pluvane
