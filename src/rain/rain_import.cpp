#include "rain/rain_import.h"

#include <set>

#include "drawing/object_tags.h"
#include "drawing/surface_guards.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "rain/rain_records.h"
#include "rain/rain_text.h"

namespace pluvane {

namespace {

constexpr const char* kImportTitle = "Controle de cohérence d'import de pluie";

void SayExists(UserInterface& ui, const std::string& name) {
  ui.ShowMessage("Import d'une pluie existante non autorisé: \r\n\r\nla pluie '" + name +
                     "' existe déjà dans la base de données \r\nVous devez supprimer ou renommer "
                     "cette pluie dans\r\nla base Kld ou dans le fichier pluie.",
                 kImportTitle, MessageIcon::kExclamation);
}

void SayFault(UserInterface& ui, const RainTextBlock& block, const RainBlockFault& fault) {
  if (block.keyword == "PR") {
    std::string text = "Format de fichier incorrect pour\r";
    if (fault.kind == RainBlockFault::kGaugeState) text += "- Pluviomètre " + fault.gauge + "\r";
    text += "- Evenement " + block.name;
    ui.ShowMessage(text, "Import de données issues des pluviomètres", MessageIcon::kExclamation);
    return;
  }
  ui.ShowMessage("Format de fichier incorrect pour\r- Pluie " + block.name + "\r- Ligne " +
                     std::to_string(block.head_line),
                 kImportTitle, MessageIcon::kExclamation);
}

// Writes the tags on the new record, current: those it holds already by name,
// the others added at its end at once (a gauge table has a tag per row, and
// looking each one up would cost the square of their count).
void WriteNewTags(Surface& surface, const std::vector<std::pair<std::string, std::string>>& tags) {
  std::set<std::string> present;
  for (int i = 0; i < surface.ObjTagCount(); ++i) present.insert(surface.ObjTagName(i));
  std::vector<const std::pair<std::string, std::string>*> added;
  for (const auto& tag : tags) {
    if (present.count(tag.first) != 0) {
      surface.SetObjTag(tag.first, tag.second);
    } else if (present.insert(tag.first).second) {
      added.push_back(&tag);
    }
  }
  const int base = surface.ObjTagCount();
  surface.SetObjTagCount(base + static_cast<int>(added.size()));
  for (std::size_t i = 0; i < added.size(); ++i) {
    surface.SetObjTagName(base + static_cast<int>(i), added[i]->first);
    surface.SetObjTagValue(base + static_cast<int>(i), added[i]->second);
  }
}

}  // namespace

int ImportedKind(const std::string& key) {
  const std::string k = UCase(Trim(key));
  if (k == "PR") return kINameRealRain;
  if (k == "CAQ") return kINameCaquot;
  if (k == "PPST") return kINameSimpleTriangle;
  if (k == "PPDT") return kINameDoubleTriangle;
  if (k == "PPHY") return kINameSynthetic;
  if (k == "PRAD") return kINameRadar;
  return 0;
}

bool CheckGaugeExists(Surface& surface, UserInterface& ui, const std::string& name) {
  CursorKeeper keeper(surface);
  for (int gauge : RecordsOfKind(surface, kINamePLU)) {
    if (IdKey(RecordTag(surface, gauge, kTagId)) == IdKey(name) ||
        IdKey(RecordTag(surface, gauge, "libell")) == IdKey(name)) {
      return true;
    }
  }
  ui.ShowMessage("Le pluviomètre " + name +
                     " spécifié dans le fichier\r\ndoit exister dans le réseau\r\nVous devez créer "
                     "ce pluviomètre avant d'importer ses enregistrements",
                 "Controle d'existence de pluviomètre", MessageIcon::kExclamation);
  return false;
}

RainImportResult ImportRainFile(Surface& surface, const NetworkState& state, UserInterface& ui,
                                const std::string& key, const std::string& path) {
  RainImportResult result;
  std::vector<std::string> lines;
  if (!FileExist(path) || !ReadTextLines(path, lines)) {
    ui.ShowMessage("fichier introuvable:\r" + path, kImportTitle, MessageIcon::kExclamation);
    result.refused = true;
    return result;
  }
  bool empty = true;
  for (const std::string& line : lines) empty = empty && Trim(line).empty();
  if (empty) {
    ui.ShowMessage("attention le fichier des pluies est vide.", kImportTitle,
                   MessageIcon::kExclamation);
    result.refused = true;
    return result;
  }
  const std::string wanted = UCase(Trim(key));
  const int kind = ImportedKind(wanted);
  std::vector<RainTextBlock> blocks;
  for (RainTextBlock& block : ReadRainBlocks(ui, lines)) {
    if (kind != 0 && block.keyword == wanted) blocks.push_back(std::move(block));
  }

  // The names pass: a name that stands already, in the network or earlier in
  // the file, stops everything.
  std::set<std::string> seen;
  for (const RainTextBlock& block : blocks) {
    if (FindRainRecord(surface, kind, block.name) != 0 || !seen.insert(IdKey(block.name)).second) {
      SayExists(ui, block.name);
      result.refused = true;
      return result;
    }
  }

  CursorKeeper keeper(surface);
  const std::size_t total = lines.size();
  for (const RainTextBlock& block : blocks) {
    ui.ShowProgress(static_cast<int>(100.0 * block.head_line / static_cast<double>(total)));
    ui.PumpEvents();
    DecodedRain rain;
    RainBlockFault fault;
    if (!DecodeRainBlock(ui, block, rain, fault)) {
      SayFault(ui, block, fault);
      continue;
    }
    bool gauges_exist = true;
    for (const std::string& gauge : rain.gauges) {
      if (!CheckGaugeExists(surface, ui, gauge)) {
        gauges_exist = false;
        break;
      }
    }
    if (!gauges_exist) continue;
    AddRainRecord(surface, state, kind, block.name);
    WriteNewTags(surface, rain.tags);
    ++result.imported;
  }
  ui.ShowProgress(-1);
  ui.ShowStatus(result.imported == 1
                    ? std::string("ok une pluie a été importée.")
                    : "ok " + std::to_string(result.imported) + " pluies ont été importées.");
  return result;
}

}  // namespace pluvane
