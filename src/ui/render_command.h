// The commands of pluvane-cli that draw, without a window: "render", the whole
// network as the view draws it, and "plot", a page of a plot script, written
// as SVG, PDF or PNG pictures. They need Qt to draw, so the program adds them
// to the core's command table.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "shell/cli.h"

namespace pluvane {

class ScriptedUi;

// `render NETWORK.mtf -o OUT.svg|pdf|png [--width PIXELS]`. 0 written, 1
// refused (a message says why), 2 bad usage. Starts Qt's offscreen platform
// when no Qt application runs.
int RenderCommand(const std::vector<std::string>& args, const std::string& app_path,
                  std::ostream& out, ScriptedUi& ui);

// `plot SCRIPT.Mst [--ctl OUT.ctl] [-o OUT.svg|pdf|png] [--width PIXELS]`.
int PlotCommand(const std::vector<std::string>& args, const std::string& app_path,
                std::ostream& out, ScriptedUi& ui);

// Draws page 1 of `script` into the picture `output` (SVG, PDF, PNG... by its
// extension), `width` pixels wide, and prints its path. 0 written, 1 refused.
int WriteScriptPicture(ScriptedUi& ui, const std::string& script, const std::string& output,
                       std::ostream& out, int width);

// "plot", "render" and "profile", for pluvane-cli's table.
std::vector<CliCommand> RenderCliCommands();

}  // namespace pluvane
