#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QStatusBar>
#include <QTimer>
#include <vector>

#include "drawing/object_tags.h"
#include "editors/section_export.h"
#include "editors/section_import.h"
#include "exchange/frm_export_obj_alpha.h"
#include "exchange/export_commands.h"
#include "exchange/import_commands.h"
#include "gis/frm_gis_import.h"
#include "gis/gis_export.h"
#include "shell/frm_impfile_dlg.h"
#include "foundation/paths.h"
#include "network/frm_bief_lst.h"
#include "network/link_direction.h"
#include "network/reach_creation.h"
#include "network/locate_element.h"
#include "network/bulk_maintenance.h"
#include "network/consistency_checks.h"
#include "network/frm_tag_message.h"
#include "network/frm_tags_viewer.h"
#include "network/frm_tags_val_changer.h"
#include "network/merge_network.h"
#include "network/persistence.h"
#include "network/snap.h"
#include "drawing/surface_guards.h"
#include "shell/drawing_export.h"
#include "shell/frm_preference.h"
#include "shell/main_menus.h"
#include "shell/view_commands.h"
#include "results/frm_prof.h"
#include "results/result_access.h"
#include "simulation/data_recap.h"
#include "simulation/engine_commands.h"
#include "simulation/frm_pluie_liste.h"
#include "simulation/frm_scn_sim_param.h"
#include "simulation/frm_scn_sim_param_select.h"
#include "ui/background_dialog.h"
#include "ui/capacity_map_window.h"
#include "ui/drawing_picture.h"
#include "ui/drawing_print.h"
#include "ui/form_window.h"
#include "ui/menu_builder.h"
#include "ui/selection_window.h"

namespace pluvane {

namespace {

// How long the about window stays when FlashScreen shows it at start.
constexpr int kFlashMilliseconds = 1500;

}  // namespace

MainWindow::MainWindow() : ui_(this) {
  application_ = std::make_unique<Application>(surface_, ui_);
  setWindowTitle("Pluvane");
  view_ = new SurfaceView(surface_, this);
  view_->setObjectName("MDraw1");
  setCentralWidget(view_);
  panels_ = std::make_unique<StatusPanels>(statusBar());
  ui_.status_sink = [this](const std::string& text) { panels_->SetStatus(text); };
  ui_.progress_sink = [this](int value) { panels_->SetProgress(value); };
  ui_.panel_sink = [this](const std::string& panel, const std::string& text) {
    if (panel == "caption") {
      setWindowTitle(QString::fromStdString(text));
      if (interaction_) interaction_->SetCaption(text);
    } else {
      panels_->SetPanel(panel, text);
    }
  };
  ui_.picture_writer = [this](const std::string& path) {
    return SaveDrawingPicture(surface_, path, kDefaultPictureWidth, Folders());
  };
  ui_.drawing_renderer = [this] {
    return RenderDrawing(surface_, kDefaultPictureWidth, Folders());
  };
  connect(view_, &SurfaceView::ClientResized, this, [this](int width, int height) {
    application_->state().ClientWidth = width;
    application_->state().ClientHeight = height;
  });
  // Edits refresh the menus once the surface is quiet again.
  connect(view_, &SurfaceView::SurfaceChanged, this, [this] {
    if (menus_pending_) return;
    menus_pending_ = true;
    QTimer::singleShot(0, this, [this] {
      menus_pending_ = false;
      RefreshMenuState();
    });
  });
  ask_print = [this](QPrinter& printer) {
    QPrintDialog dialog(&printer, this);
    return dialog.exec() == QDialog::Accepted;
  };
  ask_page_setup = [this](QPrinter& printer) {
    QPageSetupDialog dialog(&printer, this);
    return dialog.exec() == QDialog::Accepted;
  };
  printer_.setPageOrientation(QPageLayout::Landscape);
  BindCommands();
  ConnectInteraction();
  BuildMenus();
  resize(1200, 800);
}

MainWindow::~MainWindow() {
  // The view listens to the surface, which goes before the window's children.
  delete view_;
  view_ = nullptr;
}

void MainWindow::BindCommands() {
  auto session = [this] { return application_->session(); };
  auto after = [this](auto&& run) {
    return [this, run] {
      run();
      AfterCommand();
    };
  };
  // A check of the network, its report shown.
  auto check = [this, after](std::optional<CheckReport> (*run)(Surface&, UserInterface&)) {
    return after([this, run] {
      const std::optional<CheckReport> report = run(surface_, ui_);
      if (!report) return;
      FrmTagMessage form(surface_, application_->state(), ui_, report->title, report->lines);
      OpenForm(form);
    });
  };
  // The tags viewer in one of its modes; a scan shows its report.
  auto tags_viewer = [this](const char* mode) {
    FrmTagsViewer form(surface_, application_->state(), ui_, mode,
                       [this](const std::string& caption, const std::vector<std::string>& lines) {
                         FrmTagMessage report(surface_, application_->state(), ui_, caption, lines);
                         OpenForm(report);
                       });
    OpenForm(form);
  };
  // A maintenance command of the network: one undo step.
  auto maintain = [this, after](const char* caption, void (*run)(Surface&, UserInterface&)) {
    return after([this, caption, run] {
      UndoStep step(surface_, std::string("Annuler : ") + caption);
      run(surface_, ui_);
    });
  };
  // An import of a table: its dialogs and what it places, one undo step.
  auto import = [this, after](const char* caption, void (*run)(ImportSession&)) {
    return after([this, caption, run] {
      UndoStep step(surface_, std::string("Annuler : ") + caption);
      ImportSession s{surface_, application_->state(), ui_,
                      [this](FormController& form) { OpenForm(form); }};
      run(s);
    });
  };
  commands_ = {
      {"MnuFi_Import_Txt_Nod", import("Importer des noeuds", MnuFi_Import_Txt_Nod)},
      {"MnuFi_Import_Txt_BV", import("Importer des BV", MnuFi_Import_Txt_BV)},
      {"MnuFi_Import_Txt_Cana_CI", import("Importer des CI", MnuFi_Import_Txt_Cana_CI)},
      {"MnuFi_Import_Txt_Cana_PF", import("Importer des PF", MnuFi_Import_Txt_Cana_PF)},
      {"MnuFi_Import_Txt_Cana_PO", import("Importer des PO", MnuFi_Import_Txt_Cana_PO)},
      {"MnuFi_Import_Mif_Nod", import("Importer des noeuds", MnuFi_Import_Mif_Nod)},
      {"MnuFi_Import_Mif_BV", import("Importer des BV", MnuFi_Import_Mif_BV)},
      {"MnuFi_Import_Mif_Cac_CI", import("Importer des CI", MnuFi_Import_Mif_Cac_CI)},
      {"MnuFi_Import_Mif_Cac_PF", import("Importer des PF", MnuFi_Import_Mif_Cac_PF)},
      {"MnuFi_Import_Mif_Cac_PO", import("Importer des PO", MnuFi_Import_Mif_Cac_PO)},
      {"mnuFile_Open", after([this, session] {
         NetworkSession s = session();
         OpenNetwork(s, false);
       })},
      {"mnuFile_Save", after([this, session] {
         NetworkSession s = session();
         mnuFile_Save(s);
       })},
      {"mnuFile_SaveAs", after([this, session] {
         NetworkSession s = session();
         SaveNetworkAs(s);
       })},
      {"mnuFile_Close", after([this, session] {
         NetworkSession s = session();
         CloseNetwork(s);
       })},
      {"mnuFile_Load", after([this, session] {
         NetworkSession s = session();
         mnuFile_Load(s);
       })},
      {"MnuFi_Import_Mtf", after([this, session] {
         NetworkSession s = session();
         MergeNetwork(s, [this] {
           if (interaction_->LinkArrows()) {
             ShowLinkArrows(surface_, application_->state(), ui_, true);
           }
         });
       })},
      {"MnuFi_Import_Fond", after([this] { ImportBackground(); })},
      {"MnuFi_Export_Emf", [this] { MnuFi_Export_Emf(application_->state(), ui_); }},
      // The text exports; the catchments' coordinates that an export puts
      // right are one undo step.
      {"MnuFi_Export_Txt_Nod", [this] {
         if (NetworkLoaded(application_->state(), ui_)) {
           MnuFi_Export_Txt_Nod(surface_, application_->state(), ui_);
         }
       }},
      {"MnuFi_Export_Txt_App", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         UndoStep step(surface_, "Annuler : Export des apports");
         MnuFi_Export_Txt_App(surface_, application_->state(), ui_, NewConsole(), ExportChooser());
       })},
      {"MnuFi_Export_Txt_Can", [this] {
         if (NetworkLoaded(application_->state(), ui_)) {
           MnuFi_Export_Txt_Can(surface_, application_->state(), ui_, NewConsole(),
                                ExportChooser());
         }
       }},
      {"MnuFi_Export_Mif_Nod", [this] { MnuFi_Export_Mif_Nod(application_->state(), ui_); }},
      {"MnuFi_Export_Mif_Cana", [this] { MnuFi_Export_Mif_Cana(application_->state(), ui_); }},
      {"MnuFi_Export_Dxf", [this] { MnuFi_Export_Dxf(ui_); }},
      // The GIS layers: the export asks its file; the import is its form and
      // one undo step.
      {"MnuFi_Export_Sig", [this] {
         if (NetworkLoaded(application_->state(), ui_)) {
           MnuFi_Export_Sig(surface_, application_->state(), ui_);
         }
       }},
      {"MnuFi_Import_Sig", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         UndoStep step(surface_, "Annuler : Importer une couche SIG");
         FrmGisImport form({surface_, application_->state(), ui_}, NewConsole());
         OpenForm(form);
       })},
      {"mnuFile_Print", [this] { PrintDrawing(); }},
      {"mnuFile_PrtCfg", [this] { ask_page_setup(printer_); }},
      {"mnuPreference", [this] { OpenPreferences(); }},
      {"mnuFile_Quit",
       [this] {
         if (application_->QuitCommand()) close();
       }},
      {"mnuUtil_snapSymbol", after([this] { mnuUtil_snapSymbol(surface_, ui_); })},
      {"mnuUtil_XChange", after([this] { mnuUtil_XChange(surface_, ui_); })},
      // Library records copied into another network file, never shown.
      {"mnuUtil_ImportObjAlpha", after([this] {
         if (!ObjAlphaNetworkLoaded(surface_, ui_)) return;
         FrmExportObjAlpha form(surface_, application_->state(), ui_);
         OpenForm(form);
       })},
      {"mnuScn_Edit", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         FrmScnSimParam form(surface_, application_->state(), ui_,
                             [this](FormController& inner) { OpenForm(inner); });
         OpenForm(form);
       })},
      {"mnuScn_Select", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         FrmScnSimParamSelect form(surface_, application_->state(), ui_);
         OpenForm(form);
       })},
      {"mnuPlu_Lst", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         FrmPluieListe form(surface_, application_->state(), ui_);
         OpenForm(form);
       })},
      {"mnuOpt_Bief_New", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         mnuOpt_Bief_New(application_->state(), interaction_->placement(), ui_);
         ShowArmedTool();
       })},
      {"mnuOpt_Bief_Old", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         FrmBiefLst form(surface_, application_->state(), ui_, [this](const ReachHighlight& line) {
           std::vector<QPointF> points;
           for (const Point& p : line.points) points.emplace_back(p.x, p.y);
           view_->SetHighlight(std::move(points), line.color, line.width, line.style);
         });
         OpenForm(form);
         view_->SetHighlight({}, 0, 0, 0);
       })},
      {"mnuOpt_Bief_Profil", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         mnuOpt_Bief_Profil(surface_, application_->state(), ui_,
                            [this](FormController& form) { OpenForm(form); });
       })},
      {"mnuOpt_SecOpn", after([this] {
         if (NetworkLoaded(application_->state(), ui_)) OpenNamedForm("frmSect", 0);
       })},
      {"mnuOpt_SecImport", after([this] {
         if (!NetworkLoaded(application_->state(), ui_)) return;
         UndoStep step(surface_, "Annuler : Importer des sections");
         mnuOpt_SecImport(surface_, application_->state(), ui_, NewConsole());
       })},
      {"mnuOpt_SecExport", after([this] {
         if (NetworkLoaded(application_->state(), ui_)) {
           mnuOpt_SecExport(surface_, application_->state(), ui_);
         }
       })},
      {"mnuScn_ModeleGen", after([this] { RunScenarioCommand(false); })},
      {"mnuScn_ModeleRun", after([this] { RunScenarioCommand(true); })},
      {"mnuUtil_LocObjById", after([this] {
         LocateElement(surface_, application_->state(), ui_, kTagId);
       })},
      {"mnuUtil_LocObjByUsId", after([this] {
         LocateElement(surface_, application_->state(), ui_, "libell");
       })},
      // The checks list their faults in a report whose lines locate the element.
      {"mnuExploit_Coherence_D0", check(CheckForbiddenValues)},
      {"mnuExploit_Coherence_Doublon", check(CheckDoublets)},
      {"mnuExploit_Coherence_orphelin", check(CheckOrphans)},
      {"mnuMyUtil_Tst", check(CheckAll)},
      {"mnuUtil_TagsViewer", after([tags_viewer] { tags_viewer("SCAN"); })},
      {"mnuUtil_EtiqObjById", after([tags_viewer] { tags_viewer("ETIQ"); })},
      {"mnuUtil_AppSymbolChange", after([tags_viewer] { tags_viewer("APPSYMBOLE"); })},
      {"mnuMyUtil_TagsModif", after([this] {
         FrmTagsValChanger form(surface_, ui_, [this](const std::vector<std::string>& lines) {
           FrmTagEdit1 report(surface_, ui_, lines);
           OpenForm(report);
         });
         OpenForm(form);
       })},
      {"mnuUtil_MajObjByIname", maintain("Mettre à jour par type", mnuUtil_MajObjByIname)},
      {"MnuDelTxt", maintain("Supprimer les textes", MnuDelTxt)},
      {"mnuMyUtil_Tst1", maintain("Supprimer par identifiant", mnuMyUtil_Tst1)},
      {"mnuMyUtil_Tst2", maintain("Supprimer par type", mnuMyUtil_Tst2)},
      {"mnuMyUtil_Nod_iLinkUpdate",
       maintain("Recompter les liaisons aux noeuds", mnuMyUtil_Nod_iLinkUpdate)},
      {"mnuMyUtil_IdRegen", maintain("Régénérer les identifiants", mnuMyUtil_IdRegen)},
      {"mnuMyUtil_WriteIdInNods",
       maintain("Ecrire les identifiants des noeuds", mnuMyUtil_WriteIdInNods)},
      {"mnuMyUtil_WriteLinkIdInGroup3",
       maintain("Ecrire les identifiants des liaisons", mnuMyUtil_WriteLinkIdInGroup3)},
      {"mnuMyUtil_WriteLinkLibInGroup3",
       maintain("Ecrire les libellés des liaisons", mnuMyUtil_WriteLinkLibInGroup3)},
      {"mnuMyUtil_WriteIdI2LibInNods",
       maintain("Ecrire les identifiants en libellés", mnuMyUtil_WriteIdI2LibInNods)},
      {"mnuMyUtil_WriteNodsLib2lib",
       maintain("Copier les libellés des noeuds", mnuMyUtil_WriteNodsLib2lib)},
      {"mnuExploit_RecapData", [this] { RecapData(); }},
      {"mnuExploit_ResHys", [this] { ShowResult(mnuExploit_ResHys); }},
      {"mnuExploit_ResDeb", [this] { ShowResult(mnuExploit_ResDeb); }},
      {"mnuExploit_ResLim", [this] { ShowResult(mnuExploit_ResLim); }},
      {"mnuExploit_ResBV", [this] { mnuExploit_ResBV(application_->state(), ui_); }},
      {"mnuExploit_ResReso", [this] { mnuExploit_ResReso(application_->state(), ui_); }},
      {"mnuExploit_ResCarto", [this] {
         AppState& state = application_->state();
         if (state.ScenarioName.empty() && state.NetworkBase.empty()) return;
         const std::string mode = state.CurrentMode;
         state.CurrentMode = "Carto_Capa";
         CapacityMapWindow map(ui_, {&surface_, ResultPath(state, ".Sor"), state.WorkDir,
                                     IniFilePath(state)}, this);
         map.exec();
         state.CurrentMode = mode;
       }},
      {"mnuAbout", [this] { ShowAbout(true); }},
  };
}

void MainWindow::BuildMenus() {
  actions_ = pluvane::BuildMenus(menuBar(), MainMenus(),
                                 [this](const std::string& name) { RunMenu(name); }, {"mnuRufList"});
  recent_menu_ = Menu("mnuRufList");
  if (QMenu* file = Menu("mnuFile")) {
    connect(file, &QMenu::aboutToShow, this,
            [this] { ApplyMenus(FileMenuState(surface_, application_->state())); });
  }
  if (QMenu* results = Menu("mnuExploitation")) {
    connect(results, &QMenu::aboutToShow, this,
            [this] { ApplyMenus(mnuExploitation(application_->state())); });
  }
  if (QMenu* scenario = Menu("mnuScn")) {
    connect(scenario, &QMenu::aboutToShow, this, [this] {
      if (QAction* generate = Action("mnuScn_ModeleGen")) {
        generate->setText(QString::fromStdString(ScenarioGenerationCaption(application_->state())));
      }
    });
  }
}

QAction* MainWindow::Action(const std::string& name) const {
  auto found = actions_.find(name);
  return found == actions_.end() ? nullptr : found->second;
}

QMenu* MainWindow::Menu(const std::string& name) const {
  QAction* action = Action(name);
  return action ? action->menu() : nullptr;
}

void MainWindow::RunMenu(const std::string& name) {
  auto found = commands_.find(name);
  if (found == commands_.end()) {
    ui_.ShowStatus(kNotAvailable);
    return;
  }
  found->second();
}

void MainWindow::ToolClicked(const std::string& key) {
  if (key == "MDSAVE") {
    RunMenu("mnuFile_Save");
    ShowArmedTool();
    return;
  }
  emit ToolRequested(QString::fromStdString(key));
  ShowArmedTool();
}

void MainWindow::ApplyMenus(const MenuStates& states) {
  for (const auto& [name, enabled] : states) {
    if (QAction* action = Action(name)) action->setEnabled(enabled);
  }
}

void MainWindow::RefreshMenuState() { ApplyMenus(RefreshMenus(surface_)); }

PictureFolders MainWindow::Folders() const {
  const AppState& state = application_->state();
  return {state.NetworkFile.empty() ? state.WorkDir : DirOf(state.NetworkFile), state.SymbolDir};
}

void MainWindow::AfterCommand() {
  const PictureFolders folders = Folders();
  view_->painter().SetFolders(folders.base_dir, folders.symbol_dir);
  view_->SyncScrollBars();
  view_->Invalidate();
  RefreshMenuState();
  RefreshRecentFiles();
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
      AfterCommand();
    });
  }
}

bool MainWindow::Start(const std::string& app_path, const std::string& command_line) {
  if (!application_->Load(app_path, command_line)) return false;
  const AppState& state = application_->state();
  const std::string data_dir = state.DataDir.empty() ? state.AppPath : state.DataDir;
  tool_bars_ = std::make_unique<MainToolBars>(this, state.SymbolDir, JoinPath(data_dir, "Icones"),
                                              [this](const std::string& key) { ToolClicked(key); });
  addToolBar(Qt::TopToolBarArea, tool_bars_->Band("RESO_CREATE"));
  addToolBar(MainToolBars::AreaOfPosition(state.ToolBandPosition),
             tool_bars_->Band("DisplayManagerBand"));
  RefreshMenuState();
  statusBar()->hide();
  return true;
}

bool MainWindow::Activate() {
  application_->show_window = [this] {
    show();
    if (application_->StartMinimised()) showMinimized();
  };
  application_->show_about = [this] { ShowAbout(false); };
  const auto result = application_->FirstActivation();
  if (result != Application::Activation::kReady) return false;
  statusBar()->show();
  AfterCommand();
  return true;
}

void MainWindow::ShowAbout(bool modal) {
  if (about_) about_->close();
  about_ = new AboutWindow(application_->state().SymbolDir, this);
  about_->setAttribute(Qt::WA_DeleteOnClose);
  if (modal) {
    about_->exec();
    return;
  }
  about_->show();
  QApplication::processEvents();
  QTimer::singleShot(kFlashMilliseconds, about_.data(), &QWidget::close);
}

void MainWindow::OpenForm(FormController& form) {
  // Whatever the form writes, and the forms it opens, is one step of the journal.
  UndoStep step(surface_, "Annuler : " + form.Caption());
  FormWindow window(form, this);
  window.exec();
}

void MainWindow::ShowResult(
    void (*entry)(const SimulationState&, UserInterface&, ResultViews&)) {
  const AppState& state = application_->state();
  ResultViews views{viewer_state_, ChooserWindow(this), ViewerWindow(this, ui_, state.WorkDir)};
  entry(state, ui_, views);
}

void MainWindow::OpenPreferences() {
  AppState& state = application_->state();
  FrmPreference form(state, ui_, [this, &state] {
    surface_.SetScale(0, 0, state.LogicWidth, state.LogicHeight, 4096);
    surface_.Refresh();
  });
  OpenForm(form);
}

void MainWindow::ImportBackground() {
  AppState& state = application_->state();
  FrmImpfileDlg form(surface_, state, ui_);
  BackgroundDialog dialog(form, state.WorkDir, this);
  dialog.exec();
}

void MainWindow::PrintDrawing() {
  if (!ask_print(printer_)) return;
  const QRectF view(surface_.ViewLeft(), surface_.ViewTop(), surface_.ViewWidth(),
                    surface_.ViewHeight());
  const std::string error = pluvane::PrintDrawing(surface_, view, printer_, Folders());
  if (!error.empty()) ui_.ShowStatus(error);
}

// The chooser of the text exports, in its "export" mode.
ChooseExportLines MainWindow::ExportChooser() {
  return [this](const std::string& source, const std::string& list_file) {
    FrmSelection form(ui_, "export", source, list_file);
    ChooserWindow(this)(form);
  };
}

// A new message console, in place of the former one.
Console& MainWindow::NewConsole() {
  log_window_.reset();
  log_model_ = std::make_unique<ConsoleModel>(ui_, true);
  log_window_ = std::make_unique<ConsoleWindow>(*log_model_, this);
  return *log_model_;
}

void MainWindow::RunScenarioCommand(bool with_sidrel) {
  AppState& state = application_->state();
  if (!NetworkLoaded(state, ui_)) return;
  ModelContext context{surface_, state, ui_};
  if (with_sidrel) {
    mnuScn_ModeleRun(context, NewConsole());
  } else {
    mnuScn_ModeleGen(context, NewConsole());
  }
}

void MainWindow::RecapData() {
  AppState& state = application_->state();
  if (!NetworkLoaded(state, ui_)) return;
  if (state.NetworkBase.empty() || state.ScenarioName.empty()) {
    // The report lies beside the last model: there is none yet.
    ui_.ShowStatus("Récapitulatif non écrit : générez d'abord le modèle du scénario.");
    return;
  }
  mnuExploit_RecapData(surface_, state, ui_);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  int position = 4;
  if (tool_bars_)
    position = MainToolBars::PositionOfArea(toolBarArea(tool_bars_->Band("DisplayManagerBand")));
  application_->Unload(position);
  event->accept();
}

}  // namespace pluvane
