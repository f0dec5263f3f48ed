// The names of the programs' settings file and of its sections and keys, in
// one place for every reader and writer of the file.
#pragma once

namespace pluvane {

// The settings file, beside the programs or in the user's folder.
inline constexpr const char* kIniFileName = "pluvane.ini";

// Sections.
inline constexpr const char* kSectionParameters = "Paramètres";
inline constexpr const char* kSectionOthers = "Autres";
inline constexpr const char* kSectionRecentFiles = "Fichiers recents";
inline constexpr const char* kSectionScale = "Co Echelle";

// Keys of "Paramètres".
inline constexpr const char* kKeyResourceFile = "Fichier Ressource";
inline constexpr const char* kKeySymbolFolder = "Répertoire des symboles";
inline constexpr const char* kKeyResolution = "Résolution Maxi";
inline constexpr const char* kKeyToolBandPosition = "Position de la BO";
inline constexpr const char* kKeyLinkThick = "Epaisseur de trait";
inline constexpr const char* kKeySymbolSize = "Taille des symboles";
inline constexpr const char* kKeyDisplayFactor = "Facteur d'affichage";

// Keys of "Autres".
inline constexpr const char* kKeyScreenBackColor = "CoBack Ecran";
inline constexpr const char* kKeyZoomFactor = "Zoom Ini";
inline constexpr const char* kKeyZoomLeft = "Zoom Dx";
inline constexpr const char* kKeyZoomTop = "Zoom Dy";
inline constexpr const char* kKeyFlashScreen = "FlashScreen";
inline constexpr const char* kKeyLauncher = "Lanceur";
inline constexpr const char* kKeyCleanRun = "Place Nette";

// Keys of "Fichiers recents" (besides the files' ranks 1, 2...).
inline constexpr const char* kKeyRecentMax = "nbMaxFichiers";
inline constexpr const char* kKeyRecentCount = "nbFichiers";

// Keys of "Co Echelle" (besides the classes Co1, Co2...).
inline constexpr const char* kKeyScaleCount = "Nombre de Co";

}  // namespace pluvane
