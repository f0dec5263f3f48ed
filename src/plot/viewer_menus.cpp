#include "plot/viewer_menus.h"

namespace pluvane {

const std::vector<MenuItem>& ViewerMenus() {
  static const std::vector<MenuItem> kMenus = {
      {"mnuFi", "&Fichier", 0},
      {"mnuFi_SaveAs", "&Enregistrer sous...", 1},
      {"mnuFi_Print", "&Imprimer...", 1},
      {"mnuFi_Quit", "&Quitter", 1},
      {"mnuAff", "&Affichage", 0},
      {"mnuAff_Refreshr", "&Rafraîchir", 1},
      {"mnuAff_Zfen", "Zoom &fenêtre", 1},
      {"mnuAff_Ztout", "Zoom &tout", 1},
      {"mnuOpt", "&Options", 0},
      {"mnuOpt_Attrib", "&Attributs", 1},
      {"mnuOpt_Attrib_Dess", "&Dessin", 2},
      {"mnuOpt_Attrib_Dess_CoLine", "&Couleur du trait...", 3},
      {"mnuOpt_Attrib_Dess_WtLine", "&Epaisseur du trait...", 3},
      {"mnuOpt_Attrib_Text", "&Texte", 2},
      {"mnuOpt_Attrib_Text_Co", "&Couleur...", 3},
      {"mnuOpt_Attrib_Text_Font", "&Police...", 3},
      {"mnuOpt_Attrib_Text_Ori", "&Orientation...", 3},
      {"mnuOpt_Attrib_Text_Size", "&Taille...", 3},
      {"mnuOpt_Echelle", "&Echelle...", 1},
      {"mnuOpt_Placer", "&Placer", 1},
      {"mnuOpt_PlacerLigne", "une &ligne", 2},
      {"mnuOpt_PlacerRect", "un &rectangle", 2},
      {"mnuOpt_PlacerTxt", "un &texte", 2},
  };
  return kMenus;
}

}  // namespace pluvane
