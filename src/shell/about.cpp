#include "shell/about.h"

namespace pluvane {

namespace {

constexpr const char* kVersion = "0.1";

}  // namespace

AboutText About() {
  return {"A propos de Pluvane", "Pluvane", std::string("Version ") + kVersion,
          "Modélisation des réseaux d'assainissement pluvial urbain.\n"
          "Saisie du réseau sur fond de plan, description des pluies,\n"
          "scénarios de calcul, génération des fichiers du moteur\n"
          "hydraulique et exploitation des résultats."};
}

}  // namespace pluvane
