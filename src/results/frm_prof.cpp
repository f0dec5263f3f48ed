#include "results/frm_prof.h"

#include <filesystem>
#include <set>

#include "drawing/surface_helpers.h"
#include "foundation/line_parsing.h"
#include "foundation/paths.h"
#include "foundation/processes.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/reaches.h"
#include "results/long_profile.h"
#include "simulation/engine_run.h"

namespace pluvane {

namespace {

constexpr const char* kTicked = "1";

// The reaches named by the ZR_ curves of a former profile, in its order.
std::vector<std::string> ReachesOfProfile(const std::string& curve_file) {
  std::vector<std::string> names;
  TextReader reader(curve_file);
  while (reader.IsOpen() && !reader.AtEnd()) {
    int position = 0;
    const std::string name = ReadQuoted(reader, position);
    if (position > 0 && UCase(name).rfind("ZR_", 0) == 0) names.push_back(name.substr(3));
  }
  return names;
}

}  // namespace

FrmProf::FrmProf(Surface& surface, UserInterface& ui, std::string work_dir, std::string page_title)
    : Spread1(2, 0),
      surface_(surface),
      ui_(ui),
      work_dir_(std::move(work_dir)),
      page_title_(std::move(page_title)) {
  Spread1.SetCaption(Caption());
  Spread1.SetColHead(1, "Visu");
  Spread1.SetColHead(2, "Bief");
  Spread1.SetColumnType(1, CellType::CheckBox());
  Spread1.SetColumnLocked(2, true);
  const std::vector<std::string> reaches = ReachNumbers(surface_);
  const std::string former = FindFileNoCase(work_dir_, kProfileCurveFile);
  std::vector<std::string> shown;
  if (!former.empty()) shown = ReachesOfProfile(former);
  std::set<std::string> in_network;
  const auto add_row = [this](const std::string& reach, bool ticked, std::int32_t colour) {
    const int row = Spread1.MaxRows() + 1;
    Spread1.SetMaxRows(row);
    Spread1.SetText(1, row, ticked ? kTicked : "0");
    Spread1.SetText(2, row, reach);
    Spread1.SetBackColour(1, row, colour);
    Spread1.SetBackColour(2, row, colour);
  };
  for (const std::string& reach : reaches) {
    in_network.insert(UCase(reach));
    const bool ticked = !former.empty() && FindQuotedKey(ui_, former, "ZR_" + reach);
    add_row(reach, ticked, kProfileRowColour);
  }
  for (const std::string& reach : shown) {
    if (in_network.insert(UCase(reach)).second) add_row(reach, false, kProfileMissingColour);
  }
}

std::vector<FormCommand> FrmProf::Commands() {
  return {{"cmdVisu", "&Visualiser", [this] { cmdVisu(); }},
          {"cmdQuit", "&Quitter", [this] { cmdQuit(); }}};
}

std::vector<std::string> FrmProf::TickedReaches() const {
  std::vector<std::string> ticked;
  for (int row = 1; row <= Spread1.MaxRows(); ++row) {
    if (Trim(Spread1.Text(1, row)) == kTicked) ticked.push_back(Trim(Spread1.Text(2, row)));
  }
  return ticked;
}

void FrmProf::cmdVisu() {
  script_path_.clear();
  const std::vector<std::string> reaches = TickedReaches();
  if (reaches.empty()) {
    ui_.ShowMessage("aucun bief n'a été défini !!!", "Visu de profil en long",
                    MessageIcon::kExclamation);
    return;
  }
  script_path_ = WriteLongProfile(surface_, ui_, work_dir_, reaches, page_title_);
  Close();
}

void FrmProf::cmdQuit() { Close(); }

std::string ViewerCommandLine(const SimulationState& state, const std::string& script) {
  std::string program = EngineCommand(state, "Vistrel");
  if (program.empty()) program = "vistrel";
  return program + " \"" + script + "\"";
}

void mnuOpt_Bief_Profil(Surface& surface, SimulationState& state, UserInterface& ui,
                        const ShowModal& show_modal, const StartViewerProgram& start) {
  if (CountByName(surface, kINameReach) == 0) {
    ui.ShowMessage(
        "Au moins un bief de collecteurs être défini !\r\n"
        "Les Biefs sont créés dans 'Option/Bief de collecteurs/Nouveau'",
        "Contrôle de cohérence", MessageIcon::kExclamation);
    return;
  }
  FrmProf form(surface, ui, state.WorkDir, kProfileTitle);
  if (show_modal) show_modal(form);
  const std::string& written = form.ScriptPath();
  if (written.empty() || !FileExist(written)) return;
  const std::string script = "Vistrel.Mst";
  std::error_code error;
  std::filesystem::copy_file(written, JoinPath(state.WorkDir, script),
                             std::filesystem::copy_options::overwrite_existing, error);
  const std::string command = ViewerCommandLine(state, script);
  if (start) {
    start(command, state.WorkDir);
  } else {
    StartProgram(ui, command, state.WorkDir);
  }
}

}  // namespace pluvane
