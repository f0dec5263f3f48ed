#include "network/bulk_maintenance.h"

#include <cctype>
#include <unordered_map>
#include <vector>

#include "foundation/numbers.h"
#include "foundation/text.h"
#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "network/catalogue.h"
#include "network/network_tags.h"
#include "network/node_links.h"

namespace pluvane {

namespace {

constexpr const char* kTypePrompt =
    "Rentrez le type des éléments (le nombre avant les 2 points), vide pour tous les types :";
constexpr const char* kNotANumber = "rentrez un nombre entier suivi de 2 points";

bool NoNetwork(Surface& surface, UserInterface& ui, const std::string& title) {
  if (surface.ObjectCount(kPage) > 0) return false;
  ui.ShowMessage(kMaintenanceNoNetwork, title, MessageIcon::kExclamation);
  return true;
}

// Asks the type of the elements a command works on; nothing when cancelled.
std::optional<int> AskType(UserInterface& ui, const std::string& title) {
  const std::optional<std::string> answer = ui.AskText(kTypePrompt, title, "");
  if (!answer) return std::nullopt;
  const std::optional<int> type = TypeOfChoice(*answer);
  if (!type) ui.ShowMessage(kNotANumber, title, MessageIcon::kExclamation);
  return type;
}

// Types whose Id is a prefix and a number.
bool RegeneratedType(int i_name) {
  return (i_name >= kINameBV && i_name <= kINameCLAV) || i_name == kINameMark ||
         i_name == kINameNode;
}

// Element types: those a label is given to.
bool LabelledType(int i_name) {
  return (i_name >= kINameBV && i_name <= kINameMark) || i_name == kINameBVS ||
         i_name == kINameNode;
}

bool Matches(int i_name, int wanted) { return wanted == 0 || i_name == wanted; }

void Report(UserInterface& ui, const std::string& text, const std::string& title) {
  ui.ShowMessage(text, title, MessageIcon::kInformation);
}

bool Inside(double x, double y, const Box& box) {
  return x >= box.left && x <= box.right && y >= box.top && y <= box.bottom;
}

}  // namespace

std::optional<int> TypeOfChoice(std::string_view entry) {
  std::string number = Trim(entry.substr(0, std::min(entry.find(':'), entry.size())));
  if (number.empty()) return 0;
  for (char c : number) {
    if (!std::isdigit(static_cast<unsigned char>(c))) return std::nullopt;
  }
  if (number.size() > 6) return std::nullopt;
  return std::stoi(number);
}

int RegenerateIds(Surface& surface, int i_name) {
  CursorKeeper keeper(surface);
  std::unordered_map<int, int> ranks;
  int count = 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int type = ValInt(surface.ObjTag(kTagIName));
    if (!RegeneratedType(type) || !Matches(type, i_name)) continue;
    const ElementType* row = ElementTypeOfIName(type);
    const std::string prefix = row ? std::string(row->prefix) : std::string();
    surface.SetObjTag(kTagId, prefix + std::to_string(++ranks[type]));
    // Labels of older files were kept under "Libell".
    const std::string old_label = surface.ObjTag("Libell");
    if (!Trim(old_label).empty()) {
      surface.SetObjTag("libell", old_label);
      surface.SetObjTag("Libell", "");
    }
    if (Trim(surface.ObjTag("libell")).empty()) surface.SetObjTag("libell", surface.ObjTag(kTagId));
    ++count;
  }
  return count;
}

int RegenerateLabels(Surface& surface, int i_name) {
  CursorKeeper keeper(surface);
  int count = 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int type = ValInt(surface.ObjTag(kTagIName));
    if (!LabelledType(type) || !Matches(type, i_name)) continue;
    surface.SetObjTag("libell", surface.ObjTag(kTagId));
    ++count;
  }
  return count;
}

int LowerNodeLabels(Surface& surface) {
  CursorKeeper keeper(surface);
  int count = 0;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (ValInt(surface.ObjTag(kTagIName)) != kINameNode) continue;
    const std::string label = surface.ObjTag("libell");
    if (label.empty() || UCase(label) != label || LCase(label) == label) continue;
    surface.SetObjTag("libell", LCase(label));
    ++count;
  }
  return count;
}

int WriteIdInNodsOfLink(Surface& surface) {
  CursorKeeper keeper(surface);
  std::vector<int> links;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    if (surface.ObjectKind() == kKindLink && ValInt(surface.ObjTag(kTagIGroup)) == kGroupLink)
      links.push_back(n);
  }
  for (int link : links) {
    surface.SetCurrentObject(link);
    const int upstream = surface.LinkEndObject(0);
    const int downstream = surface.LinkEndObject(1);
    surface.SetObjTag(kTagSNodAm, upstream > 0 ? TagOfObject(surface, upstream, kTagId) : "");
    surface.SetCurrentObject(link);
    surface.SetObjTag(kTagSNodAv, downstream > 0 ? TagOfObject(surface, downstream, kTagId) : "");
  }
  return static_cast<int>(links.size());
}

int WriteIdInNodsOfIgroup1(Surface& surface) {
  CursorKeeper keeper(surface);
  struct Node {
    Box box;
    std::string id;
  };
  std::vector<Node> nodes;
  std::vector<int> points;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int type = ValInt(surface.ObjTag(kTagIName));
    if (type == kINameNode) {
      nodes.push_back({surface.ObjectShape(n)->box, surface.ObjTag(kTagId)});
    } else if (ValInt(surface.ObjTag(kTagIGroup)) == kGroupPoint && LabelledType(type)) {
      points.push_back(n);
    }
  }
  int count = 0;
  for (int point : points) {
    const auto [x, y] = ObjectCentre(surface, point);
    for (const Node& node : nodes) {
      if (!Inside(x, y, node.box)) continue;
      surface.SetCurrentObject(point);
      surface.SetObjTag(kTagSNodAm, node.id);
      ++count;
      break;
    }
  }
  return count;
}

int WriteLinkTagInGroup3(Surface& surface, std::string_view tag) {
  CursorKeeper keeper(surface);
  // Each link under its Id and its label.
  std::unordered_map<std::string, int> links;
  std::vector<int> regulators;
  for (int n = surface.FirstObject(); n > 0; n = surface.NextObject()) {
    const int group = ValInt(surface.ObjTag(kTagIGroup));
    if (group == kGroupRegulator) regulators.push_back(n);
    if (group != kGroupLink) continue;
    links.emplace(surface.ObjTag(kTagId), n);
    links.emplace(surface.ObjTag("libell"), n);
  }
  links.erase("");
  int count = 0;
  for (int regulator : regulators) {
    for (const char* name : {"IdAval", "IdDer_a", "IdDer_b", "IdDer_c", "IdSurv"}) {
      surface.SetCurrentObject(regulator);
      const std::string value = surface.ObjTag(name);
      const auto found = links.find(value);
      if (Trim(value).empty() || found == links.end()) continue;
      const std::string written = TagOfObject(surface, found->second, tag);
      surface.SetCurrentObject(regulator);
      surface.SetObjTag(name, written);
    }
    ++count;
  }
  return count;
}

int DeleteByIName(Surface& surface, int i_name) {
  CursorKeeper keeper(surface);
  const std::vector<int> numbers = FindObjectList(surface, kTagIName, std::to_string(i_name));
  int count = 0;
  for (int number : numbers) {
    if (surface.ObjectShape(number) && surface.DeleteObject(number) > 0) ++count;
  }
  return count;
}

int DeleteSelectedTexts(Surface& surface) {
  int count = 0;
  // Deleting changes the walk: it starts again after each deletion.
  for (bool again = true; again;) {
    again = false;
    for (int n = surface.FirstSelected(); n > 0; n = surface.NextSelected()) {
      surface.SetCurrentObject(n);
      if (surface.ObjectKind() != kKindText) continue;
      surface.DeleteObject(n);
      ++count;
      again = true;
      break;
    }
  }
  return count;
}

void mnuMyUtil_IdRegen(Surface& surface, UserInterface& ui) {
  const std::string title = "Regenerer les Id des Elm";
  if (NoNetwork(surface, ui, title)) return;
  const std::optional<int> type = AskType(ui, title);
  if (!type) return;
  Report(ui, "ok, " + std::to_string(RegenerateIds(surface, *type)) + " Id régénérés", title);
}

void mnuMyUtil_WriteIdI2LibInNods(Surface& surface, UserInterface& ui) {
  if (NoNetwork(surface, ui, kResetLabelsTitle)) return;
  const std::optional<int> type = AskType(ui, kResetLabelsTitle);
  if (!type) return;
  Report(ui, "ok, " + std::to_string(RegenerateLabels(surface, *type)) + " libellés régénérés",
         kResetLabelsTitle);
}

void mnuUtil_MajObjByIname(Surface& surface, UserInterface& ui) {
  if (NoNetwork(surface, ui, kResetLabelsTitle)) return;
  if (!ui.AskYesNo("Les libellés des elm prendront les valeurs internes des identifiants",
                   kResetLabelsTitle)) {
    return;
  }
  const std::optional<int> type = AskType(ui, kResetLabelsTitle);
  if (!type) return;
  Report(ui, "ok, " + std::to_string(RegenerateLabels(surface, *type)) + " libellés régénérés",
         kResetLabelsTitle);
}

void mnuMyUtil_WriteNodsLib2lib(Surface& surface, UserInterface& ui) {
  const std::string title = "Copier les libellés des noeuds";
  if (NoNetwork(surface, ui, title)) return;
  Report(ui, "ok, " + std::to_string(LowerNodeLabels(surface)) + " libellés régénérés", title);
}

void mnuMyUtil_Nod_iLinkUpdate(Surface& surface, UserInterface& ui) {
  const std::string title = "Recompter les liaisons aux noeuds";
  if (NoNetwork(surface, ui, title)) return;
  Report(ui, std::to_string(RecountNodeLinks(surface)) + " obj ont été traités", title);
}

void mnuMyUtil_WriteIdInNods(Surface& surface, UserInterface& ui) {
  const std::string title = "Ecrire les identifiants des noeuds";
  if (NoNetwork(surface, ui, title)) return;
  const int count = WriteIdInNodsOfLink(surface) + WriteIdInNodsOfIgroup1(surface);
  Report(ui, std::to_string(count) + " obj ont été traités", title);
}

void mnuMyUtil_WriteLinkIdInGroup3(Surface& surface, UserInterface& ui) {
  const std::string title = "Ecrire les identifiants des liaisons";
  if (NoNetwork(surface, ui, title)) return;
  Report(ui, std::to_string(WriteLinkTagInGroup3(surface, kTagId)) + " obj ont été traités", title);
}

void mnuMyUtil_WriteLinkLibInGroup3(Surface& surface, UserInterface& ui) {
  const std::string title = "Ecrire les libellés des liaisons";
  if (NoNetwork(surface, ui, title)) return;
  Report(ui, std::to_string(WriteLinkTagInGroup3(surface, "libell")) + " obj ont été traités",
         title);
}

void mnuMyUtil_Tst1(Surface& surface, UserInterface& ui) {
  const std::string title = "DelObjById";
  if (NoNetwork(surface, ui, title)) return;
  const std::optional<std::string> id = ui.AskText("Entrez Id  à supprimer", title, "");
  if (!id || id->empty()) return;
  Report(ui, "Ok " + std::to_string(DeleteByTagId(surface, *id)) + " obj ont été traités", title);
}

void mnuMyUtil_Tst2(Surface& surface, UserInterface& ui) {
  const std::string title = "DelObjByIname";
  if (NoNetwork(surface, ui, title)) return;
  const std::optional<std::string> answer =
      ui.AskText("Rentrez la valeur de l'Obj Iname à supprimer.", title, "");
  if (!answer || Trim(*answer).empty()) return;
  const std::optional<int> type = TypeOfChoice(*answer);
  if (!type) {
    ui.ShowMessage(kNotANumber, title, MessageIcon::kExclamation);
    return;
  }
  Report(ui, "Ok " + std::to_string(DeleteByIName(surface, *type)) + " ont été supprimés.", title);
}

void MnuDelTxt(Surface& surface, UserInterface& ui) {
  if (NoNetwork(surface, ui, kDeleteTextTitle)) return;
  if (surface.ObjectCount(kSelection) == 0) {
    ui.ShowMessage("Les textes à supprimer doivent être sélectionnés !", kDeleteTextTitle,
                   MessageIcon::kExclamation);
    ui.ShowMessage("recommencez svp...", kDeleteTextTitle, MessageIcon::kInformation);
    return;
  }
  Report(ui, " ok " + std::to_string(DeleteSelectedTexts(surface)) + " textes ont été effacés",
         kDeleteTextTitle);
}

}  // namespace pluvane
