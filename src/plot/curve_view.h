// The file work around showing curves of a curve file: the format test and
// the copy into the work folder before the curves are chosen, the script
// written from the choice, and the cleaning up after the viewer. Choosing the
// curves and showing the plot belong to the windows.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

struct CurveViewSession {
  std::string file;       // the file the user chose
  std::string mode;       // its extension: the curve chooser's selection mode
  std::string copy;       // its copy in the work folder
  std::string list_file;  // IdCrb.Tmp in the work folder: the chosen names
  std::string script;     // <extension>.Mst in the work folder
};

// Checks the format (else its message, false) and copies the file into the
// work folder under its own name, replacing what is there.
bool PrepareCurveView(UserInterface& ui, const std::string& file, const std::string& work_dir,
                      CurveViewSession& session);

// Once the curves are chosen: when the list file exists, writes the script.
// True when there is a script to show.
bool WriteCurveViewScript(UserInterface& ui, const CurveViewSession& session,
                          const std::string& page_title);

// After the viewer: removes the list file, the script and the *.tmp files of
// the work folder, and the copy when the chosen file lies elsewhere than in
// the scenario's folder (never the chosen file itself).
void EndCurveView(UserInterface& ui, const CurveViewSession& session, const std::string& work_dir,
                  const std::string& scenario_folder);

}  // namespace pluvane
