#include "exchange/obj_alpha_export.h"

#include <cerrno>
#include <utility>

#include "drawing/object_tags.h"
#include "drawing/surface_helpers.h"
#include "foundation/errors.h"
#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"

namespace pluvane {

namespace {

// The library kinds in the order of the list, and the text after each one's
// number. The sections' text carries its number already.
const std::pair<int, const char*> kKinds[] = {
    {101, "101: Section de collecteurs"},        {102, ": Coefficient de Montana"},
    {104, ": Pluie de projet type Caquot"},      {105, ": Pluie de projet type 1 triangle"},
    {106, ": Pluie de projet type 2 triangles"}, {107, ": Pluie de projet synthétique I(t)"},
    {103, ": Pluie réelle type pluvio H(t)"},    {108, ": Pluie réelle type Radar maillé M(t) "},
    {111, ": Scénario de simulation"},
};

// The list of objects has always started at the fifth object of the drawing.
constexpr int kSkippedObjects = 4;

constexpr const char* kContext = "frmExportObjAlpha";

// The error of a load or save that failed: the system's when it gave one,
// else the drawing file's own.
AppError DestinationError(int errno_code) {
  if (errno_code != 0) return FileError(errno_code);
  return AppError(321, "Format de fichier non valide");
}

}  // namespace

std::vector<std::string> ObjAlphaKinds(Surface& source) {
  std::vector<std::string> entries;
  for (const auto& [i_name, text] : kKinds) {
    if (CountByName(source, i_name) < 1) continue;
    entries.push_back(i_name == kINameSection ? std::string(text) : std::to_string(i_name) + text);
  }
  return entries;
}

bool ObjAlphaType(const std::string& text, std::string& type) {
  const std::size_t colon = text.find(':');
  if (colon == std::string::npos) return false;
  type = Trim(std::string_view(text).substr(0, colon));
  return true;
}

std::vector<int> ObjAlphaSources(Surface& source, const std::string& type) {
  std::vector<int> found;
  const TagMatch match(type);
  int rank = 0;
  for (int number = source.NextObjectNumber(0); number != 0;
       number = source.NextObjectNumber(number)) {
    if (++rank <= kSkippedObjects) continue;
    if (match.Matches(TagOfObject(source, number, kTagIName))) found.push_back(number);
  }
  return found;
}

ObjAlphaResult ExportObjAlpha(Surface& source, const NetworkState& state, UserInterface& ui,
                              const std::string& type_text, const std::string& destination) {
  ObjAlphaResult result;
  if (!ObjAlphaType(type_text, result.type)) return result;
  const std::vector<int> objects = ObjAlphaSources(source, result.type);
  if (objects.empty()) return result;
  if (!FileExist(destination)) {
    ui.ShowMessage("Un fichier Mtf doit être spécifié !", "Fichier Mtf introuvable",
                   MessageIcon::kInformation);
    result.outcome = ObjAlphaResult::kRefused;
    return result;
  }

  // The destination is worked on in a drawing of its own, never shown.
  Surface work;
  errno = 0;
  if (!work.LoadFile(destination, 0)) {
    const AppError error = DestinationError(errno);
    ShowError(ui, &error, kContext);
    result.outcome = ObjAlphaResult::kFailed;
    return result;
  }
  work.SetScale(source.LogicLeft(), source.LogicTop(), source.LogicWidth(), source.LogicHeight(),
                0);

  const int saved = source.CurrentObject();
  const int total = static_cast<int>(objects.size());
  for (int object : objects) {
    ui.ShowProgress(result.count * 100 / total);
    source.SetCurrentObject(object);
    const int tag_count = source.ObjTagCount();
    std::vector<std::string> names, values;
    std::string id;
    for (int i = 0; i < tag_count; ++i) {
      names.push_back(source.ObjTagName(i));
      values.push_back(source.ObjTagValue(i));
      if (names.back() == kTagId) id = values.back();
    }
    if (FindObject2(work, kTagIName, TagMatch(result.type), kTagId, TagMatch(id)) <= 0) {
      AddHiddenRecord(work, state);
    }
    // Tags the destination's record has and the source's lacks stay.
    for (int i = 0; i < tag_count; ++i) work.SetObjTag(names[i], values[i]);
    ++result.count;
  }
  source.SetCurrentObject(saved);
  ui.ShowProgress(-1);

  errno = 0;
  if (!work.SaveFile(destination, kNativeFormat, 0)) {
    const AppError error = DestinationError(errno);
    ShowError(ui, &error, kContext);
    result.outcome = ObjAlphaResult::kFailed;
    return result;
  }
  ui.ShowStatus("ok " + std::to_string(result.count) + " obj de type " + result.type +
                " ont été exportés dans " + destination);
  result.outcome = ObjAlphaResult::kDone;
  return result;
}

}  // namespace pluvane
