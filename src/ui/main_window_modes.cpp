// The main window's side of the interaction modes: the machine is built with
// the window and bound to its view; tool clicks go to it, and what it asks of
// the window (a form, a pop-up, a command of the window) is answered here.
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "editors/editor_forms.h"
#include "network/frm_info_calage.h"
#include "rain/rain_forms.h"
#include "results/view_curve_file.h"
#include "shell/frm_param_reseau.h"
#include "shell/interaction_modes.h"
#include "shell/main_menus.h"
#include "shell/menu_state.h"
#include "simulation/model_names.h"
#include "ui/form_window.h"
#include "ui/main_window.h"
#include "ui/selection_window.h"

namespace pluvane {

void MainWindow::ConnectInteraction() {
  interaction_ = std::make_unique<MainInteraction>(surface_, application_->state(), ui_);
  interaction_->SetCaption(windowTitle().toStdString());
  interaction_->SetShowModal([this](FormController& form) { OpenForm(form); });
  binder_ = new InteractionBinder(
      *view_, *interaction_,
      [this](int number) { return application_->resources().FindPicture(number); }, this);
  connect(this, &MainWindow::ToolRequested, binder_,
          [this](const QString& key) { binder_->ToolClick(key.toStdString()); });
  connect(binder_, &InteractionBinder::RefreshMenusRequested, this,
          &MainWindow::RefreshMenuState);
  connect(binder_, &InteractionBinder::OpenFormRequested, this,
          [this](const QString& form, int object) { OpenNamedForm(form.toStdString(), object); });
  connect(binder_, &InteractionBinder::PopupRequested, this,
          [this](const QString& popup) { ShowPopup(popup.toStdString()); });
  connect(binder_, &InteractionBinder::WindowCommandRequested, this,
          [this](const QString& key) { RunWindowCommand(key.toStdString()); });
  connect(binder_, &InteractionBinder::Applied, this, &MainWindow::ShowArmedTool);
  commands_["mnuUtil_Vistrel"] = [this] { OpenVistrel(); };
  BindDrawingCommands();
  // The rain libraries, each opened by the name of its menu entry.
  const auto rain = [this](const char* name) {
    return [this, name] {
      if (!NetworkLoaded(application_->state(), ui_)) return;
      OpenNamedForm(name, 0);
      RefreshMenuState();
    };
  };
  commands_["mnuPlu_Proj_Montana"] = rain("mnuPlu_Proj_Montana");
  commands_["mnuPlu_Proj_Caquot"] = rain("mnuPlu_Proj_Caquot");
  commands_["mnuPlu_Proj_1Tri"] = rain("mnuPlu_Proj_1Tri");
  commands_["mnuPlu_Proj_2Tri"] = rain("mnuPlu_Proj_2Tri");
  commands_["mnuPlu_Proj_Synth"] = rain("mnuPlu_Proj_Synth");
  commands_["mnuPlu_Real_Pluvio"] = rain("mnuPlu_Real_Pluvio");
  commands_["mnuPlu_Real_Hyeto"] = rain("mnuPlu_Real_Hyeto");
  commands_["mnuPlu_Real_PlvExt"] = rain("mnuPlu_Real_PlvExt");
  commands_["mnuPlu_Real_Radar"] = rain("mnuPlu_Real_Radar");
}

void MainWindow::ShowArmedTool() {
  if (!tool_bars_ || !interaction_) return;
  const std::string& mode = interaction_->CurrentMode();
  tool_bars_->SetPressed(mode == kModeCreate ? interaction_->placement().CreationKey : mode);
}

void MainWindow::OpenNamedForm(const std::string& form, int object) {
  if (form == "frmCalage") {
    OpenCalage();
  } else if (form == "frmInfoCalage") {
    FrmInfoCalage info(surface_, ui_, object);
    OpenForm(info);
    if (calage_) calage_->PointPlaced(info.PointId());
  } else {
    // The element editors, the general editor and the rain forms, on the
    // current object.
    AppState& state = application_->state();
    if (object > 0) surface_.SetCurrentObject(object);
    EditorContext context{surface_,
                          state,
                          ui_,
                          [this](FormController& inner) { OpenForm(inner); },
                          viewer_state_,
                          ViewerWindow(this, ui_, state.WorkDir)};
    std::unique_ptr<FormController> editor = MakeEditorForm(form, context);
    if (!editor) editor = MakeRainForm(form, context);
    if (!editor) {
      ui_.ShowStatus(kNotAvailable);
    } else if (!editor->Closed()) {
      // A form that said why it has nothing to show is closed already.
      OpenForm(*editor);
    }
  }
  view_->Invalidate();
}

// The calibration form stays open beside the drawing: its New button arms the
// placement of a point, which the drawing's next click makes.
void MainWindow::OpenCalage() {
  if (calage_) return;
  CalageHost host;
  host.EnableMainWindow = [this](bool enabled) {
    menuBar()->setEnabled(enabled);
    for (QToolBar* bar : findChildren<QToolBar*>()) bar->setEnabled(enabled);
  };
  host.ArmPlacement = [this](const std::string& key, const std::string& point_id) {
    binder_->Apply(key.empty() ? interaction_->ResetInteraction()
                               : interaction_->ArmCreationKey(key, point_id));
  };
  calage_ = std::make_unique<FrmCalage>(surface_, application_->state(), ui_, host);
  auto* window = new FormWindow(*calage_, this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setModal(false);
  connect(window, &QDialog::finished, this, [this] {
    calage_.reset();
    AfterCommand();
  });
  window->show();
}

void MainWindow::RunWindowCommand(const std::string& key) {
  if (key == "MDSAVE") {
    RunMenu("mnuFile_Save");
  } else if (key == "X_PARAM") {
    FrmParamReseau form(surface_, application_->state(), ui_);
    OpenForm(form);
  } else {
    ui_.ShowStatus(kNotAvailable);
  }
}

// The pop-up menus are built at their first showing from the program's table.
void MainWindow::ShowPopup(const std::string& popup) {
  QMenu* menu = findChild<QMenu*>(QString::fromStdString(popup));
  if (menu == nullptr) {
    menu = new QMenu(this);
    menu->setObjectName(QString::fromStdString(popup));
    bool inside = false;
    for (const MenuItem& item : PopupMenus()) {
      if (item.level == 0) {
        inside = item.name == popup;
        continue;
      }
      if (!inside) continue;
      const std::string name(item.name);
      menu->addAction(QString::fromStdString(std::string(item.caption)), this, [this, name] { RunMenu(name); });
    }
  }
  menu->popup(QCursor::pos());
}

void MainWindow::OpenVistrel() {
  AppState& state = application_->state();
  SetModelNames(state);
  mnuUtil_Vistrel(ui_, viewer_state_, state.WorkDir, state.ModelFolder, ChooserWindow(this),
                  ViewerWindow(this, ui_, state.WorkDir));
}

}  // namespace pluvane
