#include "simulation/model_generation.h"

#include <cstdio>
#include <exception>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "simulation/model_names.h"
#include "simulation/model_text_file.h"

namespace pluvane {

namespace {

int ProgressOf(int counter) { return RoundLong(counter * 100.0 / kModelStepCount); }

void RemoveOld(const std::string& path) {
  if (FileExist(path)) std::remove(path.c_str());
}

}  // namespace

int GenerateModel(ModelContext& context, const std::string& model_name,
                  const std::vector<ModelStep>& steps) {
  SimulationState& state = context.state;
  UserInterface& ui = context.ui;
  state.ModelName = Trim(model_name);
  if (state.ModelName.empty()) {
    ui.ShowMessage("nom de fichier du réseau inconnu.", "", MessageIcon::kNone);
    return 0;
  }
  int counter = 0;
  try {
    {
      const std::string nom = JoinPath(state.ModelFolder, "scenario.nom");
      RemoveOld(nom);
      ModelTextFile file(nom);
      file.Line(state.ModelName);
      file.Flush();
    }
    const std::string msg_path = ModelFilePath(state, ".msg");
    RemoveOld(msg_path);
    ModelTextFile msg(msg_path);
    msg.Line("<<< Début du traitement >>>");
    msg.Line("");
    msg.Line("Fichiers mis en oeuvre pour le modèle " + state.ModelName + " :");
    msg.Line("");
    counter = 1;
    for (const ModelStep& step : steps) {
      if (step.shows_progress) ui.ShowProgress(ProgressOf(counter));
      const std::string path = ModelFilePath(state, step.extension);
      RemoveOld(path);
      if (step.write) step.write(context, path);
      msg.Line(path);
      msg.Flush();
      if (step.counts) ++counter;
    }
    ui.ShowProgress(ProgressOf(counter));
    msg.Line("");
    msg.Flush();
  } catch (const std::exception&) {
    // A run-time error ends the generation where it stands: the files are
    // closed on the way out, the .msg keeps the paths finished so far.
  }
  ui.ShowProgress(0);
  return counter;
}

}  // namespace pluvane
