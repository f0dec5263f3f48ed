// `pluvane-cli profile`: the long profile of reaches of a network, as
// Option > Bief de collecteurs > Profil en long writes it with those reaches
// ticked, and, with a picture writer, page 1 of it drawn into a picture.
#pragma once

#include <functional>
#include <ostream>
#include <string>

#include "shell/cli.h"

namespace pluvane {

class ScriptedUi;

// Draws page 1 of a plot script into a picture chosen by its extension and
// prints its path; the exit status (0 drawn, 1 refused with its message).
using ScriptPictureWriter = std::function<int(ScriptedUi& ui, const std::string& script,
                                              const std::string& picture, std::ostream& out)>;

// `profile NETWORK.mtf --reach ID [--reach ID ...] [--dir DIR] [-o PICTURE]`.
// Without a writer, -o is bad usage.
CliCommand ProfileCliCommand(ScriptPictureWriter draw = {});

}  // namespace pluvane
