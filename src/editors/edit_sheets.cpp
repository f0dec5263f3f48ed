#include "editors/edit_sheets.h"

#include "network/catalogue.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

constexpr const char* kId = "Id. (16 car maxi)";
constexpr double kLevel = 99999999.99;
constexpr double kBig = 9999999999.99;

SheetColumn Label() { return {kId, "libell", SheetCell::kText}; }
SheetColumn Number(const char* head, const char* tag, double min, double max, int decimals) {
  return {head, tag, SheetCell::kNumber, min, max, decimals};
}
SheetColumn Link(const char* head, const char* tag) { return {head, tag, SheetCell::kLink}; }
SheetColumn Button(const char* head) { return {head, nullptr, SheetCell::kButton}; }

std::vector<SheetColumn> CatchmentColumns(bool simple) {
  std::vector<SheetColumn> columns{
      Label(),
      Number("Surface (ha)", "S", 0, kBig, 2),
      Number("Longueur de cheminement (m)", "L", 0, kBig, 2),
      Number("Pente moyenne (-)", "m", -99.99999, 99.99999, 5),
      Number("Coeff. imperméabilisation (-)", "ci", 0, 1, 2),
      {"Fonction de production Pluie nette", "Fpluie", SheetCell::kProduction},
      {"", "Fpluie1", SheetCell::kParameter, -999.999, 999.999, 3},
      {"", "Fpluie2", SheetCell::kParameter, -999.999, 999.999, 3},
      {"", "Fpluie3", SheetCell::kParameter, 0, 99999999.999, 3},
      {"Fonction de production Ruissellement", "Fruissel", SheetCell::kTransfer},
      Number("Temps de réponse du BV (mn)", "K", -99999.99, 99999.99, 2)};
  if (simple) columns.push_back(Number("Débit temps sec (m3/s)", "Qsec", 0, 99999.999, 3));
  return columns;
}

std::vector<SheetLayout> MakeSheets() {
  const SheetCurve basin{2, {"Z retenue (ngf)", "Surface au miroir (m2)", "", ""}, "", 10};
  const SheetCurve basin_laws{4,
                              {"Z retenue (ngf)", "Surface au miroir (m2)", "Debit de fuite (m3/s)",
                               "Debit de surverse (m3/s)"},
                              "",
                              10};
  const SheetCurve shares{
      4,
      {"Débit amont (m3/s)", "Débit der1 (m3/s)", "Débit der2 (m3/s)", "Débit der3 (m3/s)"},
      "",
      10};
  const SheetCurve hydrograph{2, {"Temps (mn)", "Debit (m3/s)", "", ""}, "Hydrogramme", 100};
  return {
      {kINamePLU,
       "Pluviographes",
       {Label(), Number("Coordonnée X (m)", kTagXus, -kLevel, kLevel, 2),
        Number("Coordonnée Y (m)", kTagYus, -kLevel, kLevel, 2)},
       {}},
      {kINameRSP,
       "Bassins RSP",
       {Label(), Link("Id. de la restitution aval", "IdAval"), Link("Id. du surverse", "IdSurv"),
        Number("Z initiale dans le bassin (ngf)", "Z0", -kLevel, kLevel, 2),
        Button("Courbes caractériques")},
       basin_laws},
      {kINameRS,
       "Bassins RS",
       {Label(), Link("Id. de la restitution aval", "IdAval"), Link("Id. du surverse", "IdSurv"),
        Number("Débit de fuite (m3/s)", "Qf", 0, 99999.999, 3),
        Number("Z initiale dans le bassin (ngf)", "Z0", -kLevel, kLevel, 2),
        Button("Courbe de remplissage S=f(Z)")},
       basin},
      {kINameDQZ,
       "Déversoirs DQZ",
       {Label(), Link("Id. de l'élément aval", "IdAval"),
        Link("Id. de la 1ère dérivation", "IdDer_a"), Link("Id. de la 2ème dérivation", "IdDer_b"),
        Link("Id. de la 3ème dérivation", "IdDer_c"),
        Button("Détail de la répartition de débits")},
       {}},
      {kINameDQQ,
       "Déversoirs DQQ",
       {Label(), Link("Id. de l'élément aval", "IdAval"),
        Link("Id. de la    1ère dérivation", "IdDer_a"),
        Link("Id. de la 2ème dérivation", "IdDer_b"), Link("Id. de la 3ème dérivation", "IdDer_c"),
        Button("Courbes de répartition des débits")},
       shares},
      {kINameCAO,
       "Collecteurs ouverts",
       {Label(),
        Number("Z radier amont (ngf)", "ZRam", -kLevel, kLevel, 2),
        Number("Z radier aval (ngf)", "ZRav", -kLevel, kLevel, 2),
        {" Id.  de la section", "IdSect", SheetCell::kSection},
        Number("Longueur (m)", "L", 0, kLevel, 2),
        Number("Coef. de Strickler du lit mineur(-)", "Kmin", 0, kLevel, 2),
        Number("Largeur du lit majeur (m)", "Largeur", 0, kLevel, 2),
        Number(" Coef. de Strickler du lit majeur(-)", "Kmaj", 0, kLevel, 2)},
       {}},
      {kINameCAF,
       "Collecteurs fermés",
       {Label(),
        Number("Z radier amont (ngf)", "ZRam", -kLevel, kLevel, 2),
        Number("Z radier aval (ngf)", "ZRav", -kLevel, kLevel, 2),
        {" Id.  de la section", "IdSect", SheetCell::kSection},
        Number("Longueur (m)", "L", 0, kLevel, 2),
        Number("Coef. de Strickler (-)", "K", 0, kLevel, 2),
        Number(" Hm sous chaussée (m)", "HD", 0, kLevel, 2),
        Number(" Surface du réservoir fictif (m2)", "SR", 0, kLevel, 2)},
       {}},
      {kINameCAC,
       "Collecteurs circulaires",
       {Label(), Number("Z radier amont (ngf)", "ZRam", -kLevel, kLevel, 2),
        Number("Z radier aval (ngf)", "ZRav", -kLevel, kLevel, 2),
        Number("Diamètre (m)", "Dn", 0, kLevel, 2), Number("Longueur (m)", "L", 0, kLevel, 2),
        Number("Coef. de Strickler (-)", "K", 0, kLevel, 2),
        Number(" Hmoy sous chaussée (m)", "HD", 0, kLevel, 2),
        Number(" Surface du réservoir fictif (m2)", "SR", 0, kLevel, 2)},
       {}},
      {kINameHY,
       "Hydrogrammes",
       {Label(), Number("Débit de temps sec (m3/s)", "Qsec", 0, 99999999.999, 3),
        Number("Surface eq. du réseau aval (m2)", "SR", 0, kLevel, 2), Button("Courbe Hy")},
       hydrograph},
      {kINameHYBV,
       "Exutoires de BV",
       {Label(), Number("Débit de temps sec (m3/s)", "Qsec", 0, 99999.999, 3),
        Number("Surface eq. du réseau amont (m2)", "SR", 0, kLevel, 2)},
       {}},
      {kINameRout,
       "Routages",
       {Label(), Number("Section du collecteur (m2)", "S", 0, kLevel, 2),
        Number("Longueur de routage (m)", "L", 0, kLevel, 2),
        Number("Pente moyenne du collecteur (-)", "m", -9.99999, 9.99999, 5)},
       {}},
      {kINameBV,
       "Bassins versants",
       CatchmentColumns(false),
       {},
       "1. K Desbordes\t2. K Giandotti\t3. K Passini\t4. K imposé\t5. Tc imposé"},
      {kINameBVS,
       "BV nodales simples",
       CatchmentColumns(true),
       {},
       "1. K Desbordes\t2. K Giandotti\t3. K Passini\t4. K imposé\t5. K SCS"},
  };
}

}  // namespace

const std::vector<SheetLayout>& EditSheets() {
  static const std::vector<SheetLayout> kSheets = MakeSheets();
  return kSheets;
}

std::array<std::string, 3> ProductionParameterHeads(int function) {
  switch (function) {
    case 1:
      return {"Coef. de ruissellement", "", ""};
    case 2:
      return {"Coef. de perte initial (alpha)", "Coef. de recharge (beta)", ""};
    case 3:
      return {"Vitesse d'infiltration à saturation fc", "Vitesse d'infiltration à sec A",
              "Capacité de stockage du sol T"};
    case 4:
      return {"Capacité de rétention J(mm)", "Durée caractéristique du BV (mn)", ""};
    default:
      return {"", "", ""};
  }
}

}  // namespace pluvane
