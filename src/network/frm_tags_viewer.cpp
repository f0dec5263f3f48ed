#include "network/frm_tags_viewer.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/bulk_maintenance.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

constexpr const char* kNotFound = "Ces obj sont introuvables.";
constexpr double kDegreesPerRadian = 180 / std::numbers::pi;

std::string JoinTabs(const std::vector<std::string>& entries) {
  std::string text;
  for (const std::string& entry : entries) text += (text.empty() ? "" : "\t") + entry;
  return text;
}

bool Skipped(const std::string& name) {
  return name == kTagIGroup || name == kTagIName || name == kTagXlog || name == kTagYlog;
}

}  // namespace

const std::vector<std::string>& FamilyEntries() {
  static const std::vector<std::string> entries = {
      "99 : les noeuds", " 1 : elements uninodaux", " 2 : elements binodaux",
      " 3 : elements posés sur un noeud", "?? : rentrez un nombre entier suivi de 2 points"};
  return entries;
}

const std::vector<std::string>& TypeEntries() {
  static const std::vector<std::string> entries = {
      "99 : NOD  (les noeuds)",
      " 1 : BV   (BV du complexe hydrologique)",
      " 21: BVS  (BV nodale simple)",
      " 2 : ROUT (Routage d'hydrogramme)",
      " 3 : HYBV (Exutoire de Bassin versant)",
      " 4 : HY   (Injection d'hydrogramme)",
      " 5 : CAC  (Collecteur circulaire)",
      " 6 : CAF  (Collecteur fermé)",
      " 7 : CAO  (Collecteur ouvert)",
      " 8 : DQQ  (Déversoir d'orage paramétrique)",
      " 9 : DQZ  (Déversoir d'orage géométrique)",
      "10 : RS   (Bassin de retenu à débit constant)",
      "11 : RSP  (Bassin de retenu à débit variable)",
      " : PLU  (Pluviographe)",
      "13 : TR   (Translation d'hydrogramme)",
      "14 : CLAV (Condition limite aval)",
      "150: Pt   (Point de calage)",
      "15 : MRK  (Marquage de sortie)"};
  return entries;
}

FrmTagsViewer::FrmTagsViewer(
    Surface& surface, NetworkState& /*state*/, UserInterface& ui, std::string mode,
    std::function<void(const std::string&, const std::vector<std::string>&)> show_report)
    : surface_(surface),
      ui_(ui),
      mode_(std::move(mode)),
      show_report_(std::move(show_report)),
      choice_(1, 2) {
  choice_.SetCaption(Caption());
  choice_.SetColHead(1, "Choix");
  choice_.SetColWidth(1, 45);
  choice_.SetText(0, 1, "Famille");
  choice_.SetText(0, 2, "Type");
  choice_.SetType(1, 1, CellType::List(JoinTabs(FamilyEntries())));
  choice_.SetType(1, 2, CellType::List(JoinTabs(TypeEntries())));
}

std::string FrmTagsViewer::Caption() const {
  if (mode_ == "ETIQ") return "Etiqueter les objets";
  if (mode_ == "APPSYMBOLE") return "Changer les symboles";
  return "Visionneuse des étiquettes";
}

std::vector<FormCommand> FrmTagsViewer::Commands() {
  return {{"cmdGo", "&Go", [this] { cmdGo(); }}, {"cmdQuit", "&Quitter", [this] { Close(); }}};
}

void FrmTagsViewer::cmdGo() {
  report_.clear();
  if (surface_.ObjectCount(kPage) == 0) {
    ui_.ShowMessage(kMaintenanceNoNetwork, Caption(), MessageIcon::kExclamation);
    return;
  }
  const bool by_type = !Trim(choice_.Text(1, 2)).empty();
  const std::string entry = Trim(choice_.Text(1, by_type ? 2 : 1));
  const std::optional<int> value = TypeOfChoice(entry);
  if (entry.empty() || !value) {
    ui_.ShowMessage("La valeur de l'option sélectionnée n'est pas renseignée ?", Caption(),
                    MessageIcon::kExclamation);
    return;
  }
  const std::string tag = by_type ? kTagIName : kTagIGroup;
  const std::vector<int> objects = FindObjectList(surface_, tag, std::to_string(*value));
  if (mode_ == "ETIQ") return Label(objects);
  if (mode_ == "APPSYMBOLE") return ChangeSymbol(tag, *value, objects);
  Scan(tag, *value, objects);
}

void FrmTagsViewer::Scan(const std::string& tag, int value, const std::vector<int>& objects) {
  CursorKeeper keeper(surface_);
  if (objects.empty()) {
    ui_.ShowMessage(kNotFound, Caption(), MessageIcon::kInformation);
    return;
  }
  report_.push_back("Données des " + tag + " = " + std::to_string(value));
  int rank = 0;
  for (int n : objects) {
    surface_.SetCurrentObject(n);
    report_.push_back("*" + surface_.ObjTag(kTagIName) + " " + surface_.ObjTag("libell") + " n° " +
                      std::to_string(++rank));
    for (int i = 0; i < surface_.ObjTagCount(); ++i) {
      const std::string name = surface_.ObjTagName(i);
      if (!Skipped(name)) report_.push_back(name + " : " + surface_.ObjTagValue(i));
    }
  }
  report_.push_back(std::to_string(objects.size()) + " obj ont été traités");
  if (show_report_) show_report_(Caption(), report_);
}

void FrmTagsViewer::Label(const std::vector<int>& objects) {
  const std::optional<FontChoice> font = ui_.ChooseFont(FontChoice{"Arial", 8});
  if (!font) return;
  int count = 0;
  for (int n : objects) {
    surface_.SetCurrentObject(n);
    const std::string label = surface_.ObjTag("libell");
    const bool link = surface_.ObjectKind() == kKindLink;
    double angle = 0;
    auto [x, y] = ObjectCentre(surface_, n);
    if (link) {
      const std::vector<Point> points = surface_.ObjectPoints();
      if (points.size() >= 2) {
        const Point& a = points.front();
        const Point& b = points.back();
        x = (static_cast<double>(a.x) + b.x) / 2;
        y = (static_cast<double>(a.y) + b.y) / 2;
        angle = -std::atan2(static_cast<double>(b.y) - a.y, static_cast<double>(b.x) - a.x) *
                kDegreesPerRadian;
      }
    }
    const auto cx = static_cast<std::int32_t>(std::lround(x));
    const auto cy = static_cast<std::int32_t>(std::lround(y));
    surface_.AddObject(kKindText, cx, cy, cx, cy);
    surface_.SetTextString(label);
    surface_.SetTextFontName(font->name);
    surface_.SetTextSize(font->size);
    surface_.SetTextBold(font->bold);
    surface_.SetTextItalic(font->italic);
    surface_.SetTextColor(font->color);
    if (link) surface_.SetTextAngle(angle);
    surface_.SetObjTag(kTagId, "ETIQ");
    ++count;
  }
  ui_.ShowMessage(" ok " + std::to_string(count) + " étiquettes ont été placés.", Caption(),
                  MessageIcon::kInformation);
}

void FrmTagsViewer::ChangeSymbol(const std::string& tag, int value,
                                 const std::vector<int>& objects) {
  CursorKeeper keeper(surface_);
  // The family of the elements: the one chosen, or that of the type.
  int family = value;
  if (tag == kTagIName) {
    family = 0;
    if (!objects.empty()) family = ValInt(TagOfObject(surface_, objects.front(), kTagIGroup));
  }
  if (family != 1 && family != 3) {
    ui_.ShowMessage("Le changement de symbole ne s'applique que sur les elm uninodaux.", Caption(),
                    MessageIcon::kExclamation);
    return;
  }
  const std::string file =
      ui_.AskOpenFile("Spécifier le metafile du symbole à charger",
                      "emf|*.emf|wmf|*.wmf|jpg|*.jpg|bmp|*.bmp", "emf", "");
  if (Trim(file).empty()) return;
  const std::string name = UCase(Trim(file));
  int count = 0;
  for (int n : objects) {
    surface_.SetCurrentObject(n);
    if (name == "ROND") {
      surface_.SetObjectKind(kKindEllipse);
    } else if (name == "CARRE") {
      surface_.SetObjectKind(kKindRectangle);
    } else {
      surface_.SetObjectKind(kKindPicture);
      surface_.SetObjectPicture(file);
    }
    ++count;
  }
  ui_.ShowMessage(std::to_string(count) + " elm ont été changés", Caption(),
                  MessageIcon::kInformation);
}

}  // namespace pluvane
