#include "ui/capacity_map_window.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QVBoxLayout>
#include <cmath>

#include "drawing/surface_helpers.h"
#include "drawing/surface_object.h"
#include "drawing/view_fit.h"
#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "results/frm_co_echelle.h"
#include "ui/capacity_picture.h"
#include "ui/form_window.h"
#include "ui/surface_view.h"

namespace pluvane {

CapacityMapWindow::CapacityMapWindow(UserInterface& ui, const CapacityMapInput& input,
                                     QWidget* parent)
    : QDialog(parent), ui_(ui), input_(input), map_(ui) {
  setObjectName("frmMapCapacite");
  QApplication::setOverrideCursor(Qt::WaitCursor);
  map_.Load(input_);
  QApplication::restoreOverrideCursor();
  setWindowTitle(QString::fromStdString(map_.Caption()));

  auto* bar = new QMenuBar(this);
  auto add = [&](QMenu* menu, const char* name, const char* caption, auto action) {
    QAction* entry = menu->addAction(QString::fromUtf8(caption));
    entry->setObjectName(name);
    connect(entry, &QAction::triggered, this, action);
  };
  QMenu* file = bar->addMenu("&Fichier");
  add(file, "mnuSaveAs", "Enregistrer &sous...", [this] { SaveAs(); });
  add(file, "mnuFiQuit", "&Quitter", [this] { close(); });
  QMenu* show = bar->addMenu("&Affichage");
  add(show, "mnuAff_Refresh", "&Rafraîchir", [this] { Refresh(); });
  add(show, "mnuAff_ZoomCentre", "Zoom &centré", [this] {
    view_->ZoomAbout(QPointF(view_->ClientWidth() / 2.0, view_->ClientHeight() / 2.0), 0.5);
  });
  add(show, "mnuAff_ZoomFen", "Zoom &fenêtre", [this] { map_.map().SetEditMode(kEditZoomWindow); });
  add(show, "mnuAff_ZoomTout", "Zoom &tout", [this] { ZoomToAll(map_.map(), settings_); });
  QMenu* options = bar->addMenu("&Options");
  QMenu* text = options->addMenu("&Attributs des textes");
  add(text, "mnuOpt_AttribTxt_Font", "&Police...", [this] { TextFont(); });
  add(text, "mnuOpt_AttribTxt_Taille", "&Orientation...", [this] { TextAngle(); });
  add(options, "mnuOpt_CoEch", "&Echelle de couleurs...", [this] { EditScale(); });
  add(options, "mnuOpt_Group", "&Grouper", [this] { map_.Group(); });
  add(options, "mnuOpt_Ungroup", "&Dégrouper", [this] { map_.Ungroup(); });
  add(options, "mnuOpt_inFo", "&Info-bulle", [this] { tip_->setVisible(!tip_->isVisible()); });
  add(options, "mnuOpt_PlaceTxt", "&Placer les textes",
      [this] { map_.legend().SetEditMode(kEditSelection); });

  view_ = new SurfaceView(map_.map(), this);
  legend_view_ = new SurfaceView(map_.legend(), this);
  legend_view_->setFixedWidth(220);
  map_.map().SetEditMode(kEditSelection);
  map_.legend().SetEditMode(kEditSelection);
  auto* layout = new QVBoxLayout(this);
  layout->setMenuBar(bar);
  auto* row = new QHBoxLayout;
  row->addWidget(view_, 1);
  row->addWidget(legend_view_);
  layout->addLayout(row);
  tip_ = new QLabel(view_->viewport());
  tip_->setObjectName("txtInfo");
  tip_->setStyleSheet("QLabel { background: #ffffe1; border: 1px solid black; padding: 3px; }");
  tip_->hide();
  view_->viewport()->setMouseTracking(true);
  connect(view_, &SurfaceView::MouseMoved, this,
          [this](int, int, double x, double y) { ShowTipAt(x, y); });
  connect(view_, &SurfaceView::ZoomRectangle, this, [this](double l, double t, double r, double b) {
    ZoomToRect(map_.map(), settings_, l, t, r, b);
    map_.map().SetEditMode(kEditSelection);
  });
  resize(1000, 700);
  ZoomToAll(map_.map(), settings_);
  // The legend's whole height in view.
  const int classes = static_cast<int>(map_.classes().size());
  ZoomToRect(map_.legend(), settings_, -50, 0, 1250, (classes + 2) * 200.0);
  ZoomToAll(map_.map(), settings_);
}

CapacityMapWindow::~CapacityMapWindow() = default;

void CapacityMapWindow::RunMenu(const std::string& name) {
  if (QAction* entry = findChild<QAction*>(QString::fromStdString(name))) entry->trigger();
}

void CapacityMapWindow::ShowTipAt(double x, double y) {
  Surface& map = map_.map();
  const int saved = map.CurrentObject();
  const double tolerance = kHitPixels * map.ViewWidth() / std::max(1, view_->ClientWidth());
  const int hit = map.HitTest(x, y, tolerance);
  const std::string text = hit ? map_.ToolTip(hit) : "";
  if (saved >= 1) map.SetCurrentObject(saved);
  if (text.empty()) {
    tip_->hide();
    return;
  }
  tip_->setText(QString::fromStdString(text).replace("\r\n", "\n"));
  tip_->adjustSize();
  const QPoint at(static_cast<int>(view_->LogicToClientX(x)) + 12,
                  static_cast<int>(view_->LogicToClientY(y)) + 12);
  tip_->move(std::min(at.x(), std::max(0, view_->viewport()->width() - tip_->width())),
             std::min(at.y(), std::max(0, view_->viewport()->height() - tip_->height())));
  tip_->show();
  tip_->raise();
}

void CapacityMapWindow::SaveAs() {
  const std::string path = ui_.AskSaveFile("Exporter le dessin en fichier metafile de Windows",
                                           "Fichier Emf|*.emf", "emf", "");
  if (path.empty()) return;
  if (!SaveCapacityPicture(map_.map(), map_.legend(), path, DirOf(input_.sor_file), ""))
    ui_.ShowMessage("Erreur de sauvegarde : écriture impossible de " + path, "Pluvane",
                    MessageIcon::kCritical);
}

void CapacityMapWindow::EditScale() {
  FrmCoEchelle form(ui_, map_.classes(), map_.IniFile());
  FormWindow window(form, this);
  window.exec();
  if (form.Flag() == "1") {
    map_.Recolour();
    Refresh();
  }
}

void CapacityMapWindow::TextFont() {
  Surface& legend = map_.legend();
  const std::vector<int> texts = SelectedObjects(legend);
  if (texts.empty()) return;
  legend.SetCurrentObject(texts.front());
  FontChoice initial{legend.TextFontName(), std::fabs(legend.TextSize())};
  const auto font = ui_.ChooseFont(initial);
  if (!font) return;
  for (int n : texts) {
    legend.SetCurrentObject(n);
    if (legend.ObjectKind() != kKindText) continue;
    legend.SetTextFontName(font->name);
    legend.SetTextBold(font->bold);
    legend.SetTextItalic(font->italic);
    legend.SetTextColor(font->color);
  }
  Refresh();
}

void CapacityMapWindow::TextAngle() {
  Surface& legend = map_.legend();
  const std::vector<int> texts = SelectedObjects(legend);
  if (texts.empty()) return;
  const auto angle = ui_.AskText("Entrez l'angle à appliquer en degré",
                                 "Définition de l'angle d'orientation des textes", "0");
  if (!angle) return;
  for (int n : texts) {
    legend.SetCurrentObject(n);
    if (legend.ObjectKind() == kKindText) legend.SetTextAngle(Val(*angle));
  }
  Refresh();
}

void CapacityMapWindow::Refresh() {
  view_->Invalidate();
  legend_view_->Invalidate();
}

}  // namespace pluvane
