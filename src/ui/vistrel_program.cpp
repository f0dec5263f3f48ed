#include "ui/vistrel_program.h"

#include "foundation/paths.h"
#include "plot/viewer_session.h"

namespace pluvane {

int StartVistrel(UserInterface& ui, const std::vector<std::string>& args,
                 const std::string& current_dir, VistrelProgram& program) {
  const std::string script = VistrelScriptOf(ui, args, current_dir);
  if (script.empty() || !StartViewer(ui, program.state, script)) return 1;
  program.window = std::make_unique<VistrelWindow>(ui, program.state, DirOf(script));
  if (!program.window->Load()) {
    EndViewer(program.state);
    return 1;
  }
  return 0;
}

}  // namespace pluvane
