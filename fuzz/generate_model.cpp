// Builds a random network from the bytes (elements of any type, links between
// them, scenarios and rains, any tag holding any text: numbers, words, empty,
// Ids of objects that do not exist) and generates its whole model: nothing
// may crash, whatever the tags say.
#include <unistd.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "foundation/scripted_ui.h"
#include "drawing/surface.h"
#include "shell/app_state.h"
#include "simulation/model_generation.h"

namespace {

// The element types the generation looks at, as their iName.
constexpr int kINames[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 99, 100,
                           103, 104, 105, 106, 107, 108, 111, 127, 128};
// The tags the generation reads.
constexpr const char* kTagNames[] = {
    "Id",      "libell",  "iName",    "iGroup", "UsId",    "Xlog",    "Ylog",    "Xcal",
    "Ycal",    "ZTN",     "ZRad",     "L",      "ZRam",    "ZRav",    "Dn",      "K",
    "HD",      "SR",      "IdSect",   "Kmin",   "Largeur", "Kmaj",    "IdAval",  "sNodAm",
    "sNodAv",  "iBief",   "NbColl",   "IdColl", "iLink",   "Surf",    "Coef",    "Pente",
    "IdPluie", "CalcDuree", "CalcDt", "CalcMode", "iMode", "FileSpec", "Montana", "Qmax",
    "Volume",  "IdNod",   "Tc",       "a",      "b",       "Duree",   "Pas",     "Hauteur"};

class Bytes {
 public:
  Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}
  bool Empty() const { return at_ >= size_; }
  int Next() { return at_ < size_ ? data_[at_++] : 0; }
  // A short text: a number, a word, nothing, or raw bytes.
  std::string Text() {
    const int length = Next() % 12;
    std::string text;
    for (int i = 0; i < length; ++i) text.push_back(static_cast<char>(Next()));
    return text;
  }

 private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t at_ = 0;
};

void SetTag(pluvane::Surface& surface, Bytes& bytes) {
  const char* name = kTagNames[bytes.Next() % std::size(kTagNames)];
  switch (bytes.Next() % 4) {
    case 0:
      surface.SetObjTag(name, std::to_string(bytes.Next() - 20));
      break;
    case 1:
      surface.SetObjTag(name, "Nod_" + std::to_string(bytes.Next() % 8));
      break;
    default:
      surface.SetObjTag(name, bytes.Text());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder =
      "/tmp/pluvane_fuzz_model_" + std::to_string(::getpid());
  std::filesystem::create_directories(folder);
  Bytes bytes(data, size);
  pluvane::Surface surface;
  std::vector<int> objects;
  while (!bytes.Empty() && objects.size() < 200) {
    const int op = bytes.Next() % 4;
    if (op == 0 || objects.size() < 2) {
      const int x = bytes.Next() * 40, y = bytes.Next() * 40;
      objects.push_back(surface.AddObject(pluvane::kKindPicture, x, y, x + 20, y + 20));
      surface.SetObjTag("iName", std::to_string(kINames[bytes.Next() % std::size(kINames)]));
      surface.SetObjTag("Id", "Nod_" + std::to_string(objects.size() % 8));
    } else if (op == 1) {
      const int from = objects[bytes.Next() % objects.size()];
      const int to = objects[bytes.Next() % objects.size()];
      if (from == to) continue;
      const int link = surface.AddLink(from, to);
      if (link <= 0) continue;
      objects.push_back(link);
      surface.SetObjTag("iName", std::to_string(kINames[bytes.Next() % 8]));
      surface.SetObjTag("iGroup", "2");
    } else {
      surface.SetCurrentObject(objects[bytes.Next() % objects.size()]);
      SetTag(surface, bytes);
    }
  }
  pluvane::AppState state;
  state.NetworkFile = folder + "/reseau.mtf";
  state.ScenarioName = "Nod_1";
  state.ModelFolder = folder;
  pluvane::ScriptedUi ui;
  pluvane::ModelContext context{surface, state, ui};
  pluvane::GenerateModel(context, "Nod_1_reseau");
  return 0;
}
