#include "network/calibration_points.h"

#include <utility>
#include <vector>

#include "foundation/numbers.h"
#include "drawing/surface_guards.h"
#include "network/catalogue.h"
#include "network/hidden_record.h"
#include "drawing/surface_helpers.h"
#include "drawing/symbol_file.h"
#include "network/network_tags.h"

namespace pluvane {

namespace {

using TagList = std::vector<std::pair<std::string, std::string>>;

TagList TagsOf(Surface& surface, int number) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(number);
  TagList tags;
  for (int i = 0; i < surface.ObjTagCount(); ++i) {
    tags.emplace_back(surface.ObjTagName(i), surface.ObjTagValue(i));
  }
  return tags;
}

// Writes the tags in their order on the current object, iName replaced.
void WriteTags(Surface& surface, const TagList& tags, int i_name) {
  for (const auto& [name, value] : tags) {
    if (name == kTagIName) {
      surface.SetObjTag(name, i_name);
    } else {
      surface.SetObjTag(name, value);
    }
  }
}

std::string TagValue(const TagList& tags, const std::string& name) {
  for (const auto& [tag, value] : tags) {
    if (tag == name) return value;
  }
  return "";
}

// A calibration symbol SymbolSize wide and high centred on the point; it is
// left current.
int AddCalibrationSymbol(Surface& surface, const NetworkState& state, std::int32_t x, std::int32_t y) {
  const std::int32_t left = x - ToLong(state.SymbolSize / 2);
  const std::int32_t top = y - ToLong(state.SymbolSize / 2);
  const std::int32_t size = RoundLong(state.SymbolSize);
  const int number = surface.AddObject(kKindPicture, left, top, left + size, top + size);
  surface.SetObjectPicture(FindSymbolFile(state.SymbolDir, kCalibrationSymbol));
  return number;
}

// Replaces each object of iName `from` by the object `make` creates, which
// takes its tags with iName `to`.
template <typename Make>
int Convert(Surface& surface, int from, int to, Make make) {
  CursorKeeper keeper(surface);
  int count = 0;
  for (int number : FindObjectList(surface, kTagIName, from)) {
    const TagList tags = TagsOf(surface, number);
    surface.DeleteObject(number);
    make(tags);
    WriteTags(surface, tags, to);
    ++count;
  }
  return count;
}

}  // namespace

std::string CalibrationPointId(int index) { return "Pt" + std::to_string(index); }

int FindCalibrationPoint(Surface& surface, const std::string& id) {
  CursorKeeper keeper(surface);
  return FindObject2(surface, kTagId, id, kTagIName, kINameCalage);
}

int ShowCalibrationPoints(Surface& surface, const NetworkState& state) {
  return Convert(surface, kINameHiddenCalage, kINameCalage, [&](const TagList& tags) {
    AddCalibrationSymbol(surface, state, RoundLong(Val(TagValue(tags, kTagXlog))),
                         RoundLong(Val(TagValue(tags, kTagYlog))));
  });
}

int HideCalibrationPoints(Surface& surface, const NetworkState& state) {
  return Convert(surface, kINameCalage, kINameHiddenCalage,
                 [&](const TagList&) { AddHiddenRecord(surface, state); });
}

void AddCalibrationPoints(Surface& surface, const NetworkState& state) {
  CursorKeeper keeper(surface);
  const Calibration& c = state.calibration;
  for (int i = 1; i <= kCalibrationPointCount; ++i) {
    AddCalibrationSymbol(surface, state, c.logic_x[i], c.logic_y[i]);
    surface.SetObjTag(kTagIName, kINameCalage);
    surface.SetObjTag(kTagId, CalibrationPointId(i));
    surface.SetObjTag(kTagXlog, c.logic_x[i]);
    surface.SetObjTag(kTagYlog, c.logic_y[i]);
    surface.SetObjTag("Xcal", c.user_x[i]);
    surface.SetObjTag("Ycal", c.user_y[i]);
  }
}

void ReadCalibrationPoint(Surface& surface, int number, Calibration& calibration, int index) {
  CursorKeeper keeper(surface);
  surface.SetCurrentObject(number);
  calibration.logic_x[index] = RoundLong(Val(surface.ObjTag(kTagXlog)));
  calibration.logic_y[index] = RoundLong(Val(surface.ObjTag(kTagYlog)));
  calibration.user_x[index] = Val(surface.ObjTag("Xcal"));
  calibration.user_y[index] = Val(surface.ObjTag("Ycal"));
}

bool ReadCalibrationPoints(Surface& surface, int i_name, Calibration& calibration) {
  CursorKeeper keeper(surface);
  int found[kCalibrationPointCount + 1] = {};
  for (int i = 1; i <= kCalibrationPointCount; ++i) {
    found[i] = FindObject2(surface, kTagId, CalibrationPointId(i), kTagIName, i_name);
    if (found[i] < 1) return false;
  }
  for (int i = 1; i <= kCalibrationPointCount; ++i) {
    ReadCalibrationPoint(surface, found[i], calibration, i);
  }
  return true;
}

}  // namespace pluvane
