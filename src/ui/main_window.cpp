#include "ui/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenuBar>
#include <QStatusBar>
#include <map>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "network/persistence.h"
#include "ui/drawing_picture.h"

namespace pluvane {

MainWindow::MainWindow() : ui_(this) {
  application_ = std::make_unique<Application>(surface_, ui_);
  setWindowTitle("Pluvane");
  summary_ = new QLabel(this);
  summary_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  summary_->setMargin(16);
  summary_->setTextFormat(Qt::RichText);
  setCentralWidget(summary_);
  ui_.status_sink = [this](const std::string& text) {
    statusBar()->showMessage(QString::fromStdString(text));
  };
  ui_.panel_sink = [this](const std::string& panel, const std::string& text) {
    if (panel == "caption") setWindowTitle(QString::fromStdString(text));
  };
  ui_.picture_writer = [this](const std::string& path) {
    const AppState& state = application_->state();
    return SaveDrawingPicture(surface_, path, kDefaultPictureWidth,
                              PictureFolders{DirOf(state.NetworkFile), state.SymbolDir});
  };
  surface_.SetChangeListener([this] { RefreshSummary(); });
  BuildMenus();
  resize(900, 600);
}

MainWindow::~MainWindow() = default;

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&Fichier");
  QAction* open = file->addAction("&Ouvrir...");
  open->setObjectName("mnuFile_Open");
  connect(open, &QAction::triggered, this, [this] { OpenFile(); });
  QAction* quit = file->addAction("&Quitter ");
  quit->setObjectName("mnuFile_Quit");
  connect(quit, &QAction::triggered, this, [this] {
    if (application_->QuitCommand()) close();
  });
}

bool MainWindow::Start(const std::string& app_path, const std::string& command_line) {
  return application_->Load(app_path, command_line);
}

bool MainWindow::Activate() {
  application_->show_window = [this] { show(); };
  const auto result = application_->FirstActivation();
  if (result == Application::Activation::kEndProcess) return false;
  if (result == Application::Activation::kCloseWindow) return false;
  statusBar()->show();
  RefreshSummary();
  return true;
}

void MainWindow::OpenFile() {
  NetworkSession s = application_->session();
  OpenNetwork(s, false);
  RefreshSummary();
}

QString MainWindow::Summary() {
  std::map<int, int> counts;
  const int saved = surface_.CurrentObject();
  surface_.SetCurrentObject(kPage);
  int total = 0;
  for (int n = surface_.FirstObject(); n > 10; n = surface_.NextObject()) {
    ++total;
    const int i_name = ValLong(surface_.ObjTag("iName"));
    if (i_name > 0) ++counts[i_name];
  }
  surface_.SetCurrentObject(saved);
  const AppState& state = application_->state();
  QString html = "<h2>" +
                 QString::fromStdString(state.NetworkFile.empty() ? "Aucun réseau chargé"
                                                                  : state.NetworkFile) +
                 "</h2>";
  html += QStringLiteral("<p>%1 objets sur le dessin.</p><table cellpadding='4'>").arg(total);
  html += "<tr><th align='right'>iName</th><th align='right'>Nombre</th></tr>";
  for (auto [i_name, count] : counts) {
    html += QStringLiteral("<tr><td align='right'>%1</td><td align='right'>%2</td></tr>")
                .arg(i_name)
                .arg(count);
  }
  html += "</table>";
  if (!state.ScenarioName.empty()) {
    html += "<p>Scénario courant : " + QString::fromStdString(state.ScenarioName) + "</p>";
  }
  return html;
}

void MainWindow::RefreshSummary() {
  if (summary_ && surface_.Redraw()) summary_->setText(Summary());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  application_->Unload(4);
  event->accept();
}

}  // namespace pluvane
