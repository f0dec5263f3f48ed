#include "shell/cli_network.h"

#include "network/persistence.h"

namespace pluvane {

bool CliNetwork::Open(const std::string& app_path, const std::string& path) {
  if (!Start(app_path)) return false;
  NetworkSession session = application.session();
  return OpenNetwork(session, true, path);
}

}  // namespace pluvane
