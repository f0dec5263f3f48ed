#include "ui/vistrel_window.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QItemSelectionModel>
#include <QMenuBar>
#include <QPainter>
#include <QPrintDialog>
#include <QStatusBar>
#include <QTableView>
#include <algorithm>

#include "foundation/paths.h"
#include "plot/frm_ech_def.h"
#include "plot/viewer_menus.h"
#include "plot/viewer_placing.h"
#include "plot/viewer_session.h"
#include "plot/viewer_view.h"
#include "ui/drawing_picture.h"
#include "ui/form_window.h"
#include "ui/menu_builder.h"
#include "ui/surface_painter.h"
#include "ui/surface_view.h"

namespace pluvane {

namespace {

QRectF PageExtent(const Surface& surface) {
  return QRectF(surface.LogicLeft(), surface.LogicTop(), surface.LogicWidth(),
                surface.LogicHeight());
}

}  // namespace

VistrelWindow::VistrelWindow(UserInterface& ui, ViewerState& state, std::string work_dir,
                             QWidget* parent)
    : QMainWindow(parent), ui_(ui), state_(state), work_dir_(std::move(work_dir)) {
  setAttribute(Qt::WA_DeleteOnClose, false);
  surface_.SetPageColor(0xFFFFFF);
  view_ = new SurfaceView(surface_, this);
  setCentralWidget(view_);
  show_scale_form = [this](FormController& form) {
    ShowScaleForm(this, static_cast<FrmEchDef&>(form));
  };
  BindCommands();
  actions_ =
      BuildMenus(menuBar(), ViewerMenus(), [this](const std::string& name) { RunMenu(name); });
  connect(view_, &SurfaceView::MousePressed, this,
          [this](int button, int, double x, double y) { OnPress(button, x, y); });
  connect(view_, &SurfaceView::MouseReleased, this,
          [this](int button, int, double x, double y) { OnRelease(button, x, y); });
  connect(view_, &SurfaceView::ZoomRectangle, this, &VistrelWindow::OnZoomRectangle);
  statusBar()->show();
  resize(960, 720);
}

VistrelWindow::~VistrelWindow() = default;

void VistrelWindow::BindCommands() {
  commands_ = {
      {"mnuFi_SaveAs",
       [this] {
         ViewerSaveAs(
             ui_, [this](const std::string& path) { return SavePicture(path); },
             DirOf(state_.script));
       }},
      {"mnuFi_Print", [this] { Print(); }},
      {"mnuFi_Quit", [this] { close(); }},
      {"mnuAff_Refreshr", [this] { surface_.Refresh(); }},
      {"mnuAff_Zfen",
       [this] {
         mode_ = kZoomFrameMode;
         surface_.SetEditMode(kEditZoomWindow);
         statusBar()->showMessage("Tracez le cadre à agrandir.");
       }},
      {"mnuAff_Ztout", [this] { ViewerZoomAll(surface_); }},
      {"mnuOpt_Attrib_Dess_CoLine", [this] { mnuOpt_Attrib_Dess_CoLine(ui_, surface_); }},
      {"mnuOpt_Attrib_Dess_WtLine", [this] { mnuOpt_Attrib_Dess_WtLine(ui_, surface_); }},
      {"mnuOpt_Attrib_Text_Co", [this] { mnuOpt_Attrib_Text_Co(ui_, surface_); }},
      {"mnuOpt_Attrib_Text_Font", [this] { mnuOpt_Attrib_Text_Font(ui_, surface_); }},
      {"mnuOpt_Attrib_Text_Ori", [this] { mnuOpt_Attrib_Text_Ori(ui_, surface_); }},
      {"mnuOpt_Attrib_Text_Size", [this] { mnuOpt_Attrib_Text_Size(ui_, surface_); }},
      {"mnuOpt_Echelle", [this] { OpenScaleForm(); }},
      {"mnuOpt_PlacerLigne", [this] { mnuOpt_PlacerLigne(surface_); }},
      {"mnuOpt_PlacerRect", [this] { mnuOpt_PlacerRect(surface_); }},
      {"mnuOpt_PlacerTxt", [this] { mnuOpt_PlacerTxt(surface_); }},
  };
}

bool VistrelWindow::Load() {
  state_.action = kViewerInitial;
  const std::string title =
      state_.page_title.empty() ? FileNameOf(state_.script) : state_.page_title;
  setWindowTitle(QString::fromStdString(title));
  const bool drawn = ViewerDraw(ui_, surface_, state_, work_dir_);
  ViewerZoomAll(surface_);
  return drawn;
}

void VistrelWindow::Redraw() {
  if (state_.action == kViewerCancel) return;
  ViewerDraw(ui_, surface_, state_, work_dir_);
  ViewerZoomAll(surface_);
}

void VistrelWindow::RunMenu(const std::string& name) {
  auto found = commands_.find(name);
  if (found == commands_.end()) return;
  found->second();
  // Every command leaves the view in step with the surface.
  surface_.Refresh();
}

QAction* VistrelWindow::Action(const std::string& name) const {
  auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void VistrelWindow::OpenScaleForm() {
  FrmEchDef form(ui_, state_);
  if (show_scale_form) show_scale_form(form);
  // Closed by its frame, the dialogue is cancelled.
  if (!form.Closed()) state_.action = kViewerCancel;
  Redraw();
}

bool VistrelWindow::SavePicture(const std::string& path) const {
  return SaveAreaPicture(surface_, PageExtent(surface_), path, kDefaultPictureWidth);
}

bool VistrelWindow::PrintOn(QPrinter& printer) const {
  const QRectF extent = PageExtent(surface_);
  if (extent.width() <= 0 || extent.height() <= 0) return false;
  printer.setPageOrientation(extent.width() >= extent.height() ? QPageLayout::Landscape
                                                               : QPageLayout::Portrait);
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  const QSize page(painter.device()->width(), painter.device()->height());
  // The page's aspect kept, centred on the paper.
  const double scale = std::min(page.width() / extent.width(), page.height() / extent.height());
  const QSize size(static_cast<int>(extent.width() * scale),
                   static_cast<int>(extent.height() * scale));
  painter.translate((page.width() - size.width()) / 2.0, (page.height() - size.height()) / 2.0);
  SurfacePainter surface_painter;
  surface_painter.options.show_selection = false;
  surface_painter.options.show_grid = false;
  surface_painter.options.vector_output = true;
  surface_painter.Paint(surface_, painter, extent, size);
  return painter.end();
}

void VistrelWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, this);
  dialog.setWindowTitle("Imprimer le tracé");
  if (dialog.exec() != QDialog::Accepted) return;
  if (!PrintOn(printer)) {
    ui_.ShowMessage("L'impression du tracé n'a pas pu se faire.", "Vistrel",
                    MessageIcon::kExclamation);
  }
}

void VistrelWindow::OnPress(int button, double x, double y) {
  if (button != 1 || !IsPlacingMode(surface_.EditMode())) return;
  pressed_ = true;
  press_x_ = x;
  press_y_ = y;
  if (surface_.EditMode() == kEditLine) view_->SetRubberLine(x, y);
  if (surface_.EditMode() == kEditRectangle) view_->SetRubberBox(x, y);
}

void VistrelWindow::OnRelease(int button, double x, double y) {
  if (button != 1) return;
  if (mode_ == kZoomFrameMode) {
    // The zoom frame ends on the mouse up, drawn or not.
    mode_.clear();
    surface_.SetEditMode(kEditSelection);
    statusBar()->clearMessage();
  }
  if (!pressed_) return;
  pressed_ = false;
  view_->ClearRubberLine();
  PlaceViewerObject(ui_, surface_, press_x_, press_y_, x, y);
}

void VistrelWindow::OnZoomRectangle(double left, double top, double right, double bottom) {
  ViewerZoomRect(ui_, surface_, view_->ClientWidth(), view_->ClientHeight(), left, top, right,
                 bottom);
}

void VistrelWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  emit Closed();
}

void ShowScaleForm(QWidget* parent, FrmEchDef& form) {
  FormWindow window(form, parent);
  window.exec();
}

bool OpenVistrel(QWidget* parent, UserInterface& ui, ViewerState& state, const std::string& script,
                 const std::string& work_dir) {
  if (!StartViewer(ui, state, script)) return false;
  VistrelWindow window(ui, state, work_dir, parent);
  if (!window.Load()) {
    EndViewer(state);
    return false;
  }
  window.setWindowModality(Qt::ApplicationModal);
  QEventLoop loop;
  QObject::connect(&window, &VistrelWindow::Closed, &loop, &QEventLoop::quit);
  window.show();
  loop.exec();
  EndViewer(state);
  return true;
}

}  // namespace pluvane
