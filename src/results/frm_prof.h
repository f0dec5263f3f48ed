// Option > Bief de collecteurs > Profil en long (mnuOpt_Bief_Profil): the
// form frmProf lists the reaches of the network to tick; its cmdVisu writes
// the profile of the ticked ones into the work folder, and the command then
// starts the separate viewer program on it without waiting for it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/form_controller.h"
#include "foundation/grid.h"
#include "foundation/modal_form.h"
#include "foundation/user_interface.h"
#include "simulation/simulation_state.h"

namespace pluvane {

// The rows' colours: a reach of the network, and one that the last profile
// showed but that is no longer in the network.
inline constexpr std::int32_t kProfileRowColour = 8454143;
inline constexpr std::int32_t kProfileMissingColour = kButtonFaceColour;

class FrmProf : public FormController {
 public:
  // Lists the reaches of the network, ticked when the last profile of the
  // work folder (its Prof.crb) showed them, then the reaches of that profile
  // that the network lost.
  FrmProf(Surface& surface, UserInterface& ui, std::string work_dir,
          std::string page_title = "Profil en long");

  std::string Caption() const override { return "Profil en long"; }
  std::vector<Grid*> Grids() override { return {&Spread1}; }
  std::vector<FormCommand> Commands() override;

  // The ticked reaches in the rows' order.
  std::vector<std::string> TickedReaches() const;
  // Writes Prof.crb and Prof.Mst for the ticked reaches and unloads; with none
  // ticked, says so and stays.
  void cmdVisu();
  void cmdQuit();
  // The script cmdVisu wrote; empty when it wrote none.
  const std::string& ScriptPath() const { return script_path_; }

  // Column 1 the tick ("1" ticked), column 2 the reach's Id.
  Grid Spread1;

 private:
  Surface& surface_;
  UserInterface& ui_;
  std::string work_dir_;
  std::string page_title_;
  std::string script_path_;
};

// How the viewer program is started: a command line and the folder to start
// it in; it is not waited for.
using StartViewerProgram =
    std::function<void(const std::string& command_line, const std::string& folder)>;

// The command line of the viewer program on `script` (a name in the work
// folder): `vistrel` of the programs' folder in any case (or Vistrel.exe
// through the launcher), else the one the system finds.
std::string ViewerCommandLine(const SimulationState& state, const std::string& script);

// The menu command. Without a reach in the network it says so and stops;
// else frmProf opens (through `show_modal`), and when it wrote a script, the
// script is copied to Vistrel.Mst in the work folder and the viewer started
// on it there. Without `start`, the program is started by StartProgram.
void mnuOpt_Bief_Profil(Surface& surface, SimulationState& state, UserInterface& ui,
                        const ShowModal& show_modal, const StartViewerProgram& start = {});

}  // namespace pluvane
