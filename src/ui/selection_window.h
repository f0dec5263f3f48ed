// The chooser frmSelection in the generic form window: the names with their
// check boxes and the buttons of its menus. A click on a name swaps the row's
// tick, as a click on the check box does.
#pragma once

#include "foundation/modal_form.h"
#include "results/frm_selection.h"
#include "results/view_curve_file.h"
#include "ui/form_window.h"

namespace pluvane {

class SelectionWindow : public FormWindow {
  Q_OBJECT

 public:
  explicit SelectionWindow(FrmSelection& form, QWidget* parent = nullptr);
};

// The chooser shown modally over `parent`, for ViewCurveFile.
ShowModal ChooserWindow(QWidget* parent);
// The viewer opened modally over `parent` on the state's script, the page
// files compiled in `work_dir`.
ShowViewer ViewerWindow(QWidget* parent, UserInterface& ui, const std::string& work_dir);

}  // namespace pluvane
