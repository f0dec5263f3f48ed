#include "simulation/data_recap.h"

#include "network/network_tags.h"
#include "simulation/scenario_records.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/processes.h"
#include "foundation/text.h"
#include "drawing/surface_helpers.h"
#include "simulation/scenario_records.h"

namespace pluvane {

namespace {

// Writes the lines of the report for one drawing.
class RecapWriter {
 public:
  RecapWriter(const Surface& surface, const SimulationState& state) : s_(surface), state_(state) {}

  std::vector<std::string> lines;

  // A tag of the element being written.
  std::string Tag(const std::string& tag) const { return std::string(s_.TagOf(at_, tag)); }

  void Line(const std::string& text) { lines.push_back(text); }
  // A data line: a tab, the label, the value.
  void Data(const std::string& label, const std::string& value) { Line("\t" + label + value); }
  // The number a tag holds, in the plain form.
  std::string Num(const std::string& tag) const { return NumToText(Val(Tag(tag))); }
  std::string Text(const std::string& tag) const { return Trim(Tag(tag)); }
  void Field(const std::string& label, const std::string& tag) { Data(label, Num(tag)); }
  void TextField(const std::string& label, const std::string& tag) { Data(label, Text(tag)); }
  // A table of numbered tags: its head, then one row per point.
  void Table(const std::vector<std::string>& heads, const std::vector<std::string>& prefixes,
             const std::string& count_tag) {
    std::string head;
    for (const auto& h : heads) head += "\t" + h;
    Line(head);
    const int count = ValRoundLong(Tag(count_tag));
    for (int i = 1; i <= count; ++i) {
      std::string row;
      for (std::size_t k = 0; k < prefixes.size(); ++k) {
        row += "\t" + Num(prefixes[k] + std::to_string(i));
      }
      Line(row);
    }
  }

  void Head(const std::string& network) {
    Line("");
    Line("Réseau : " + network);
    Line("Scénario : " + state_.ScenarioName);
    Rain();
  }

  // One section: skipped when the kind has no element.
  void Section(std::vector<int> i_names, const std::string& title, const std::string& id_label,
               const std::function<void()>& fields, bool one_line = false) {
    std::vector<int> elements;
    for (int i_name : i_names) {
      for (int n : s_.FindAllByTag(kTagIName, i_name)) elements.push_back(n);
    }
    // Search order is creation order.
    std::sort(elements.begin(), elements.end());
    if (elements.empty()) return;
    Line("");
    Line(title + std::to_string(elements.size()));
    Line("");
    for (int element : elements) {
      at_ = element;
      if (one_line) {
        fields();
        continue;
      }
      Data(id_label, Text("libell") + " (" + Tag(kTagId) + ")");
      fields();
      Line("");
    }
  }

 private:
  void Rain() {
    const int scenario =
        FindFirstWithBoth(s_, kTagIName, kINameScenario, kTagId, state_.ScenarioName);
    at_ = scenario;
    const int kind = scenario > 10 ? ValRoundLong(Tag("iPluie")) : 0;
    const std::string rain_id = scenario > 10 ? Trim(Tag("IdPluie")) : "";
    const std::string radar_name = scenario > 10 ? Tag("UsIdPluie") : "";
    // The rain is found as the rain file finds it: Id trimmed, in any case.
    const int rain = kind > 0 ? FindRecordIn(s_, kind, rain_id) : 0;
    if (rain) at_ = rain;
    if (rain < 11 && kind != kINameRadar) {
      Line("Scénario de pluie non renseigné.");
      return;
    }
    auto name = [&] { return Text("Design") + " (" + Tag(kTagId) + ")"; };
    auto pair = [&](const char* a, const char* b) { return Num(a) + ", " + Num(b); };
    switch (kind) {
      case kINameCaquot:
      case kINameSimpleTriangle:
        Line((kind == kINameCaquot ? "Pluie Caquot " : "Pluie simple triangle ") + name());
        Line("Période de retour      = " + Num("Pret"));
        Line("Coef a et b de Montana = " + pair("Ca", "Cb"));
        if (kind == kINameSimpleTriangle) {
          Line("Durée de la précipitation (mn) = " + Num("Duree"));
          Line("Instant du pic pluvieux (mn)   = " + Num("Timax"));
          Place();
        }
        break;
      case kINameDoubleTriangle:
        Line("Pluie double triangle " + name());
        Line("Période de retour de l'épisode total         = " + Num("PretTot"));
        Line("Période de retour de l'épisode intense       = " + Num("PretInt"));
        Line("Coef a et b de Montana  de l'épisode total   = " + pair("CaTot", "CbTot"));
        Line("Coef a et b de Montana  de l'épisode intense = " + pair("CaInt", "CbInt"));
        Line("Durée de l'épisode total   (mn) = " + Num("DureeTot"));
        Line("Durée de l'épisode intense (mn) = " + Num("DureeInt"));
        Line("Instant du pic pluvieux (mn)    = " + Num("Timax"));
        Place();
        break;
      case kINameSynthetic: {
        Line("Hyétogramme PPHYE");
        Line("Temps (mn)\tI (mm/h)");
        const int count = ValRoundLong(Tag("NbPt"));
        for (int i = 1; i <= count; ++i) {
          Line(Num("X" + std::to_string(i)) + "\t" + Num("Y" + std::to_string(i)));
        }
        Place();
        break;
      }
      case kINameRealRain:
        Recorded();
        break;
      case kINameRadar:
        Line("Pluie Radar " + radar_name);
        break;
      default:
        // Rains imported from outside show their designation.
        Line(Text("Design") + " (" + Tag(kTagId) + ")");
        break;
    }
  }

  void Recorded() {
    const int event = at_;
    Line("Désignation de l'événement : " + Text("Design") + " (" + Tag(kTagId) + ")");
    Line(ValRoundLong(Tag("iModePluie")) == 2 ? "Méthode d'abattement : distance pondérée"
                                              : "Méthode d'abattement : Thiessen");
    const std::vector<int> gauges = s_.FindAllByTag(kTagIName, kINamePLU);
    Line("Nombre de pluviographes = " + std::to_string(gauges.size()));
    for (int gauge : gauges) {
      at_ = gauge;
      Line("Id. Pluviographe : " + Text("libell"));
      Line("Coord. X,Y = " + Num(kTagXus) + ", " + Num(kTagYus));
    }
    at_ = event;
    Line("Temps (mn)\tHauteur cumulée (mm)");
    const int rows = ValRoundLong(Tag("NbPt"));
    for (int i = 2; i <= rows; ++i) Line(Tag("Pt" + std::to_string(i)));
  }

  // Where a design storm falls: the radius of action, when one stands.
  void Place() {
    const int radius = FindFirstWithBoth(s_, kTagIName, kINameRayon, kTagId, "Rayon");
    if (radius > 10) {
      const int storm = at_;
      at_ = radius;
      Line("X,Y de l'épicentre = " + Num(kTagXus) + ", " + Num(kTagYus));
      Line("Rayon d'action (m) = " + Num("Rayon"));
      at_ = storm;
    } else {
      Line("Rayon d'action non renseigné");
    }
  }

  const Surface& s_;
  const SimulationState& state_;
  int at_ = 0;  // the element being written
};

void Catchment(RecapWriter& w) {
  w.Field("  Superficie (ha)                          = ", "S");
  w.Field("  Longueur de cheminnement (m)             = ", "L");
  w.Field("  Pente moyenne (m/m)                      = ", "m");
  w.Field("  Coef d'imperméabilisation (-)            = ", "ci");
  w.TextField("  Fonction de production de la pluie nette = ", "Fpluie");
  static const std::vector<std::vector<const char*>> kParameters = {
      {"  Coef de ruissellement (-) = "},
      {"  Coef de perte initiale (alpha) = ", "  Coef de recharge        (beta) = "},
      {"  Vitesse d'infiltration de saturation fc(mm/h) = ",
       "  Vitesse d'infiltration à sec          A(mm/h) = ",
       "  Capacité de Stockage potentiel du sol   T(mm) = "},
      {"  Capacité d'interception     J(mm) = ", "  Temps de ressuyage du sol (jours) = "}};
  const int function = ValRoundLong(w.Tag("Fpluie"));
  if (function >= 1 && function <= 4) {
    const auto& labels = kParameters[function - 1];
    for (std::size_t k = 0; k < labels.size(); ++k) {
      w.Field(labels[k], "Fpluie" + std::to_string(k + 1));
    }
  }
  w.TextField("  Fonction de transformation pluis/débit = ", "Fruissel");
  w.Field("  Temps de réponse du BV (mn) = ", "K");
}

void DrySurface(RecapWriter& w, const char* tail) {
  w.Field("  Débit de temps sec     (m3/s) = ", "Qsec");
  w.Field("  Surface au miroir équivalente = ", "SR");
  w.Line(std::string("\t") + tail);
}

void RoadHeight(RecapWriter& w) {
  w.Field("  Hauteur moyenne sous chaussée (m) = ", "HD");
  w.Field("  Surface au miroir équivalente     = ", "SR");
  w.Line("\t           du réseau amont (m2)");
}

// The parameters of one outlet of a QZ divider, by its type.
void QzOutlet(RecapWriter& w, const std::string& type_tag, const std::string& x,
              const std::string& y, const std::string& count, bool branch) {
  switch (ValRoundLong(w.Tag(type_tag))) {
    case 1:
      w.Field("  Cote du seuil     (m) = ", x + "1");
      w.Field("  Largeur du seuil  (m) = ", x + "2");
      w.Field("  Coef. de seuil    (-) = ", x + "3");
      break;
    case 2:
      w.Field(branch ? "  Cote radier d'orifice   (m) = " : "  Cote radier d'orifice (m) = ",
              x + "1");
      w.Field(branch ? "  Diamètre de l'orifice   (m) = " : "  Diamètre de l'orifice (m) = ",
              x + "2");
      w.Field(branch ? "  Coefficient d'orifice   (-) = " : "  Coefficient d'orifice (-) = ",
              x + "3");
      break;
    case 3:
      w.Field(branch ? "  Coef. Strickler         (-) = " : "  Coef. strickler   (-) = ", x + "1");
      break;
    case 4:
      w.Table({"Z eau (m)", "Q (m3/s)"}, {x, y}, count);
      break;
    default:
      break;
  }
}

void QzDivider(RecapWriter& w) {
  w.TextField("  Identifiant de l'élément aval = ", "IdAval");
  w.TextField("  Type de l'élément aval        = ", "TypeAval");
  QzOutlet(w, "TypeAval", "Xav", "Yav", "NbPtAv", false);
  w.Field("  Nombre de dérivation          = ", "NbDer");
  const int branches = ValRoundLong(w.Tag("NbDer"));
  const char letters[] = {'a', 'b', 'c'};
  const char* prefixes[] = {"da", "db", "dc"};
  const char* counts[] = {"NbPtDa", "NbPtDb", "NbPtDc"};
  for (int b = 0; b < branches && b < 3; ++b) {
    const std::string letter(1, letters[b]);
    w.TextField("  Identif. de la dérivation " + letter + "   = ", "IdDer_" + letter);
    w.TextField("  Type de la dérivation " + letter + "       = ", "TypeDer_" + letter);
    QzOutlet(w, "TypeDer_" + letter, std::string("X") + prefixes[b],
             std::string("Y") + prefixes[b], counts[b], true);
  }
}

void WriteSections(RecapWriter& w, UserInterface& ui) {
  const std::vector<std::function<void()>> sections = {
      // Catchments standing on a node are catchments too.
      [&] {
        w.Section({kINameBV, kINameBVS}, "BASSINS VERSANTS : ",
                  "* Id. bassin versant ..................... = ", [&] { Catchment(w); });
      },
      [&] {
        const char* id_label = "* Id. Routage ...................... = ";
        w.Section({kINameRout}, "ROUTAGES HYDROLOGIQUES : ", id_label, [&] {
          w.Field("  Section moyenne du collecteur (m2) = ", "S");
          w.Field("  Longueur de routage            (m) = ", "L");
          w.Field("  Pente moyenne du collecteur  (m/m) = ", "m");
        });
      },
      [&] {
        w.Section({kINameHYBV}, "EXUTOIRES DE BASSIN VERSANT : ",
                  "* Id. Exutoire de BV .......... = ",
                  [&] { DrySurface(w, "          du réseau amont  (m2)"); });
      },
      [&] {
        const char* id_label = "* Id. Hydrogramme ............. = ";
        w.Section({kINameHY}, "INJECTIONS D'HYDROGRAMME : ", id_label, [&] {
          DrySurface(w, "          du réseau amont  (m2)");
          w.Table({"Temps (mn)", "Débit (m3/s)"}, {"X", "Y"}, "NbPt");
        });
      },
      [&] {
        w.Section({kINameCAC}, "COLLECTEURS CIRCULAIRES : ", "* Id. collecteur ...... = ", [&] {
          w.Field("  Cote radier amont (m) = ", "ZRam");
          w.Field("  Cote radier aval  (m) = ", "ZRav");
          w.Field("  Diamètre          (m) = ", "Dn");
          w.Field("  Longueur          (m) = ", "L");
          w.Field("  Coef Strickler    (-) = ", "K");
          RoadHeight(w);
        });
      },
      [&] {
        w.Section({kINameCAF}, "COLLECTEURS FERMES : ", "* Id. Collecteur .......... = ", [&] {
          w.Field("  Cote radier amont (m)     = ", "ZRam");
          w.Field("  Cote radier aval  (m)     = ", "ZRav");
          w.TextField("  Identifiant de la section = ", "IdSect");
          w.Field("  Longueur (m)              = ", "L");
          w.Field("  Coef Strickler (-)        = ", "K");
          RoadHeight(w);
        });
      },
      [&] {
        const char* id_label = "* Id. Collecteur ................. = ";
        w.Section({kINameCAO}, "COLLECTEURS OUVERTS : ", id_label, [&] {
          w.Field("  Cote radier amont (m)            = ", "ZRam");
          w.Field("  Cote radier aval  (m)            = ", "ZRav");
          w.TextField("  Identifiant de la section        = ", "IdSect");
          w.Field("  Longueur (m)                     = ", "L");
          w.Field("  Coef Strickler du lit mineur (-) = ", "Kmin");
          w.Field("  Etendue du lit majeur (m)        = ", "Largeur");
          w.Field("  Coef Strickler du lit majeur (-) = ", "Kmaj");
        });
      },
      [&] {
        const char* id_label = "* Id. Déversoir ................... = ";
        w.Section({kINameDQQ}, "DEVERSOIRS DE TYPE QQ : ", id_label, [&] {
          w.TextField("  Identifiant de l'élément aval     = ", "IdAval");
          w.Field("  Nombre de dérivation              = ", "NbDer");
          w.TextField("  Identifiant de la 1ère dérivation = ", "IdDer_a");
          w.TextField("  Identifiant de la 2ème dérivation = ", "IdDer_b");
          w.TextField("  Identifiant de la 3ème dérivation = ", "IdDer_c");
          w.Table({"Qamont (m3/s)", "Qd1 (m3/s)", "Qd2 (m3/s)", "Qd3 (m3/s)"},
                  {"X", "Y", "Z", "T"}, "NbPt");
        });
      },
      [&] {
        w.Section({kINameDQZ}, "DEVERSOIRS DE TYPE QZ : ", "* Id. Déversoir ............... = ",
                  [&] { QzDivider(w); });
      },
      [&] {
        w.Section({kINameRS}, "BASSINS DE STOCKAGE A DEBIT DE FUITE CONSTANT : ",
                  "* Id. Bassin ..................... = ", [&] {
                    w.TextField("  Id. du récepteur aval         = ", "IdAval");
                    w.TextField("  Id. du récepteur de surverse  = ", "IdSurv");
                    w.Field("  Débit de fuite         (m3/s) = ", "Qf");
                    w.Field("  Z initiale dans le bassin (m) = ", "Z0");
                    w.Table({"Z retenue (m)", "Surface (m2)"}, {"X", "Y"}, "NbPt");
                  });
      },
      [&] {
        w.Section({kINameRSP}, "BASSINS A DEBIT DE FUITE PARAMETRIQUE : ",
                  "* Id. Bassin .................. = ", [&] {
                    w.TextField("  Id. du récepteur aval         = ", "IdAval");
                    w.TextField("  Id. du récepteur de surverse  = ", "IdSurv");
                    w.Field("  Z initiale dans le bassin (m) = ", "Z0");
                    w.Table({"Z retenue (m)", "Surface (m2)", "Qfuite (m3/s)", "Qsurverse (m3/s)"},
                            {"X", "Y", "Z", "T"}, "NbPt");
                  });
      },
      [&] {
        w.Section({kINameCLAV}, "EXTREMITES AVAL DE RESEAU : ", "",
                  [&] { w.Line("\t* " + w.Tag(kTagId)); }, true);
      },
      [&] {
        w.Section({kINameMark}, "MARQUAGES DE SORTIE : ", "",
                  [&] { w.Line("\t* " + w.Text("libell") + " (" + w.Tag(kTagId) + ")"); },
                  true);
      },
      [&] {
        w.Section({kINameReach}, "BIEFS DE COLLECTEUR : ", "", [&] {
          w.Line("\t* Bief " + w.Tag(kTagId));
          const int count = ValRoundLong(w.Tag("NbColl"));
          for (int i = 1; i <= count; ++i) w.Line("\t  " + w.Tag("IdColl" + std::to_string(i)));
          w.Line("");
        }, true);
      },
  };
  for (std::size_t i = 0; i < sections.size(); ++i) {
    sections[i]();
    ui.ShowProgress(static_cast<int>((i + 1) * 100 / sections.size()));
  }
  ui.ShowProgress(0);
}

}  // namespace

std::string WriteDataRecap(const Surface& surface, SimulationState& state, UserInterface& ui) {
  if (Trim(state.ScenarioName).empty() || Trim(state.NetworkBase).empty()) return {};
  state.ModelName = state.ScenarioName + "_" + state.NetworkBase;
  const std::string path = JoinPath(state.ModelFolder, state.ModelName + ".Txt");
  std::remove(path.c_str());
  RecapWriter writer(surface, state);
  writer.Head(state.NetworkBase);
  WriteSections(writer, ui);
  if (!WriteTextLines(path, writer.lines)) return {};
  return path;
}

void mnuExploit_RecapData(const Surface& surface, SimulationState& state, UserInterface& ui) {
  const std::string path = WriteDataRecap(surface, state, ui);
  if (!path.empty()) EditFile(ui, path, state.AppPath);
}

}  // namespace pluvane
