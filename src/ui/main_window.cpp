#include "ui/main_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <vector>

#include "foundation/numbers.h"
#include "network/catalogue.h"
#include "network/link_direction.h"
#include "network/network_summary.h"
#include "network/persistence.h"
#include "network/snap.h"
#include "shell/frm_preference.h"
#include "shell/main_menus.h"
#include "ui/form_window.h"
#include "foundation/paths.h"
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
  // Pictures find their files beside the network, then among the symbols.
  auto folders = [this] {
    const AppState& state = application_->state();
    return PictureFolders{DirOf(state.NetworkFile), state.SymbolDir};
  };
  ui_.picture_writer = [this, folders](const std::string& path) {
    return SaveDrawingPicture(surface_, path, kDefaultPictureWidth, folders());
  };
  ui_.drawing_renderer = [this, folders] {
    return RenderDrawing(surface_, kDefaultPictureWidth, folders());
  };
  surface_.SetChangeListener([this] { RefreshSummary(); });
  BindCommands();
  BuildMenus();
  resize(900, 600);
}

MainWindow::~MainWindow() = default;

void MainWindow::BindCommands() {
  auto session = [this] { return application_->session(); };
  auto after = [this](auto&& run) {
    return [this, run] {
      run();
      RefreshSummary();
      RefreshRecentFiles();
    };
  };
  commands_ = {
      {"mnuFile_Open", after([=] { NetworkSession s = session(); OpenNetwork(s, false); })},
      {"mnuFile_Save", after([=] { NetworkSession s = session(); mnuFile_Save(s); })},
      {"mnuFile_SaveAs", after([=] { NetworkSession s = session(); SaveNetworkAs(s); })},
      {"mnuFile_Close", after([=] { NetworkSession s = session(); CloseNetwork(s); })},
      {"mnuFile_Load", after([=] { NetworkSession s = session(); mnuFile_Load(s); })},
      {"mnuPreference", [this] { OpenPreferences(); }},
      {"mnuFile_Quit",
       [this] {
         if (application_->QuitCommand()) close();
       }},
      {"mnuUtil_snapSymbol", after([this] { mnuUtil_snapSymbol(surface_, ui_); })},
      {"mnuUtil_XChange", after([this] { mnuUtil_XChange(surface_, ui_); })},
  };
}

void MainWindow::BuildMenus() {
  // Each item opens a sub-menu when the next item stands one level deeper.
  const std::vector<MenuItem>& items = MainMenus();
  std::vector<QMenu*> parents;
  for (std::size_t i = 0; i < items.size(); ++i) {
    const MenuItem& item = items[i];
    const QString caption = QString::fromUtf8(item.caption.data(), item.caption.size());
    const std::string name(item.name);
    parents.resize(item.level);
    const bool has_children = i + 1 < items.size() && items[i + 1].level > item.level;
    if (has_children || item.level == 0) {
      QMenu* menu = item.level == 0 ? menuBar()->addMenu(caption) : parents.back()->addMenu(caption);
      menu->setObjectName(QString::fromStdString(name));
      actions_[name] = menu->menuAction();
      if (name == "mnuRufList") recent_menu_ = menu;
      parents.push_back(menu);
      continue;
    }
    if (name == "mnuRufList") {
      recent_menu_ = parents.back()->addMenu(caption);
      recent_menu_->setObjectName("mnuRufList");
      actions_[name] = recent_menu_->menuAction();
      continue;
    }
    QAction* action = parents.back()->addAction(caption);
    action->setObjectName(QString::fromStdString(name));
    actions_[name] = action;
    connect(action, &QAction::triggered, this, [this, name] { RunMenu(name); });
  }
}

QAction* MainWindow::Action(const std::string& name) const {
  auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

void MainWindow::RunMenu(const std::string& name) {
  auto found = commands_.find(name);
  if (found == commands_.end()) {
    ui_.ShowStatus(kNotAvailable);
    return;
  }
  found->second();
}

void MainWindow::RefreshRecentFiles() {
  if (!recent_menu_) return;
  recent_menu_->clear();
  const auto& captions = application_->recent().Captions();
  for (std::size_t i = 0; i < captions.size(); ++i) {
    QAction* action = recent_menu_->addAction(QString::fromStdString(captions[i]));
    action->setObjectName("mnuRUF");
    const int index = static_cast<int>(i) + 1;
    connect(action, &QAction::triggered, this, [this, index] {
      NetworkSession s = application_->session();
      mnuRUF(s, index);
      RefreshSummary();
      RefreshRecentFiles();
    });
  }
}

bool MainWindow::Start(const std::string& app_path, const std::string& command_line) {
  return application_->Load(app_path, command_line);
}

bool MainWindow::Activate() {
  application_->show_window = [this] { show(); };
  const auto result = application_->FirstActivation();
  if (result != Application::Activation::kReady) return false;
  statusBar()->show();
  RefreshSummary();
  RefreshRecentFiles();
  return true;
}

void MainWindow::OpenPreferences() {
  AppState& state = application_->state();
  FrmPreference form(state, ui_, [this, &state] {
    surface_.SetScale(0, 0, state.LogicWidth, state.LogicHeight, 4096);
    surface_.Refresh();
  });
  FormWindow window(form, this);
  window.exec();
}

QString MainWindow::Summary() {
  const std::map<int, int> counts = CountsByIName(surface_);
  const int total = surface_.ObjectCount(kPage);
  const AppState& state = application_->state();
  QString html = "<h2>" +
                 QString::fromStdString(state.NetworkFile.empty() ? "Aucun réseau chargé"
                                                                  : state.NetworkFile) +
                 "</h2>";
  html += QStringLiteral("<p>%1 objets sur le dessin.</p><table cellpadding='4'>").arg(total);
  html += "<tr><th align='right'>iName</th><th align='right'>Nombre</th><th align='left'>"
          "Élément</th></tr>";
  for (auto [i_name, count] : counts) {
    html += QStringLiteral("<tr><td align='right'>%1</td><td align='right'>%2</td><td>%3</td></tr>")
                .arg(i_name)
                .arg(count)
                .arg(QString::fromStdString(LabelOfIName(i_name)));
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
