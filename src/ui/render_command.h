// The command "render" of pluvane-cli: the whole network drawn as the view
// draws it, written as an SVG, PDF or PNG picture without a window. It needs
// Qt to draw, so the program registers it with the core's command table.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace pluvane {

class ScriptedUi;

// `render NETWORK.mtf -o OUT.svg|pdf|png [--width PIXELS]`. 0 written, 1
// refused (a message says why), 2 bad usage. Starts Qt's offscreen platform
// when no Qt application runs.
int RenderCommand(const std::vector<std::string>& args, const std::string& app_path,
                  std::ostream& out, ScriptedUi& ui);

// Adds "render" to pluvane-cli's commands.
void RegisterRenderCommand();

}  // namespace pluvane
