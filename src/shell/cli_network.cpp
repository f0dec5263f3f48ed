#include "shell/cli_network.h"

#include "network/persistence.h"

namespace pluvane {

bool CliNetwork::Open(const std::string& app_path, const std::string& path) {
  if (!Start(app_path)) return false;
  NetworkSession session = application.session();
  return OpenNetwork(session, true, path);
}

bool CliNetwork::OpenDrawing(const std::string& app_path, const std::string& path,
                             const std::string& title) {
  if (!Start(app_path)) return false;
  if (surface.LoadFile(path, 0)) return true;
  ui_.ShowMessage("Le fichier " + path + " ne peut pas être lu comme un réseau Pluvane.", title,
                  MessageIcon::kExclamation);
  return false;
}

}  // namespace pluvane
