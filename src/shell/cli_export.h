// `pluvane-cli export`: the text exports of Fichier > Exporter without a
// window, as if the folder dialog had returned the folder given and the
// chooser the types listed.
#pragma once

#include "shell/cli.h"

namespace pluvane {

// `export nodes|app|links NETWORK.mtf [--types T,T...] [--dir DIR]`.
CliCommand ExportCliCommand();

}  // namespace pluvane
