// A network holding every kind of element, for the text exports: four nodes
// (one with a long label, one named by its Libell, one with no name at all),
// two catchments, two outlets, three hydrograph injections, collectors of the
// three kinds, and one element of each other kind, which no export writes.
// Its map: X = 1000 + Xlog / 10, Y = 5000 - Ylog / 10, also kept in
// ParamReseau so that the network opened from its file has the same.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "drawing/surface.h"
#include "drawing/surface_object.h"
#include "network/network_state.h"

namespace pluvane {

using ExportTags = std::vector<std::pair<std::string, std::string>>;

inline int AddExportObject(Surface& surface, int i_name, const std::string& id,
                           const ExportTags& tags, std::int32_t left = 0, std::int32_t top = 0,
                           std::int32_t right = 10, std::int32_t bottom = 10) {
  const int n = surface.AddObject(kKindPicture, left, top, right, bottom);
  surface.SetObjTag("iName", std::to_string(i_name));
  surface.SetObjTag("Id", id);
  for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
  return n;
}

inline Calibration ExportCalibration() {
  Calibration c;
  c.XORI = -1000;
  c.YORI = -5000;
  c.XMUCOS = 1;
  c.XMUSIN = 0;
  c.XLAMU = 10;
  c.XLASIN = 0;
  c.XLACOS = 1;
  return c;
}

inline void BuildExportNetwork(Surface& surface) {
  const int param = surface.AddObject(kKindRectangle, 0, 0, 10, 10);
  surface.SetCurrentObject(param);
  surface.SetObjTag("Id", "ParamReseau");
  for (const auto& [name, value] : ExportTags{{"XORI", "-1000"}, {"YORI", "-5000"},
                                              {"XMUCOS", "1"}, {"XMUSIN", "0"},
                                              {"XLAMU", "10"}, {"XLASIN", "0"},
                                              {"XLACOS", "1"}}) {
    surface.SetObjTag(name, value);
  }
  AddExportObject(surface, 99, "Nod_1",
                  {{"iGroup", "99"}, {"libell", "N1"}, {"Xus", "1000.5"}, {"Yus", "4990.25"},
                   {"Zus", "101.456"}});
  AddExportObject(surface, 1, "Bv_1",
                  {{"iGroup", "1"}, {"libell", "BV1"}, {"Xus", "0"}, {"Yus", "0"}, {"S", "5"},
                   {"L", "50"}, {"m", "0.005"}, {"ci", "0.60"}},
                  1000, 2000, 1100, 2100);
  AddExportObject(surface, 99, "Nod_2",
                  {{"iGroup", "99"}, {"libell", "NOEUD_LONG_DE_VINGT_CAR"}, {"UsId", "REGARD2"},
                   {"Xus", "1200"}, {"Yus", "4800"}, {"Zus", "98.7"}});
  AddExportObject(surface, 99, "Nod_3",
                  {{"iGroup", "99"}, {"libell", ""}, {"Libell", "Regard é"}, {"Xus", "-15.5"},
                   {"Yus", "0"}, {"Zus", ""}});
  AddExportObject(surface, 99, "Nod_4",
                  {{"iGroup", "99"}, {"libell", ""}, {"Libell", ""}, {"Xus", "123456789.5"},
                   {"Yus", "1"}, {"Zus", "2.5"}});
  AddExportObject(surface, 1, "Bv_2",
                  {{"iGroup", "1"}, {"libell", ""}, {"S", "1234567.891"}, {"L", "12345678.5"},
                   {"m", "0.0123456"}, {"ci", "1"}},
                  0, 0, 10, 10);
  AddExportObject(surface, 2, "Rout_1", {{"iGroup", "2"}, {"libell", "ROUT1"}, {"S", "1"}});
  AddExportObject(surface, 3, "HyBv_1",
                  {{"iGroup", "1"}, {"libell", "EXU1"}, {"sNodAm", "Nod_1"}, {"Qsec", "0.0126"},
                   {"SR", "250"}});
  AddExportObject(surface, 3, "HyBv_2",
                  {{"iGroup", "1"}, {"libell", ""}, {"Libell", "EXU_B"}, {"Qsec", ""},
                   {"SR", ""}});
  AddExportObject(surface, 4, "Hy_1",
                  {{"iGroup", "1"}, {"libell", "HY1"}, {"sNodAm", "Nod_1"}, {"Qsec", "0.5"},
                   {"SR", "10"}, {"NbPt", "3"}, {"X1", "0"}, {"Y1", "0"}, {"X2", "10"},
                   {"Y2", ""}, {"X3", "20"}, {"Y3", "1.5"}});
  AddExportObject(surface, 4, "Hy_2",
                  {{"iGroup", "1"}, {"libell", "HY2"}, {"sNodAm", "Nod_2"}, {"NbPt", "0"}});
  AddExportObject(surface, 4, "Hy_3",
                  {{"iGroup", "1"}, {"libell", "HY3"}, {"sNodAm", ""}, {"NbPt", "2"},
                   {"X1", "5"}, {"Y1", "0.25"}, {"X2", ""}, {"Y2", "3"}});
  AddExportObject(surface, 5, "Cac_1",
                  {{"iGroup", "2"}, {"libell", "C1"}, {"sNodAm", "Nod_1"}, {"sNodAv", "Nod_2"},
                   {"ZRam", "98.5"}, {"ZRav", "97.25"}, {"Dn", "0.8"}, {"L", "120.456"},
                   {"K", "70"}, {"HD", "0.1"}, {"SR", "0"}});
  AddExportObject(surface, 6, "Caf_1",
                  {{"iGroup", "2"}, {"libell", "F1"}, {"sNodAm", "Nod_2"}, {"sNodAv", "Nod_4"},
                   {"ZRam", "97"}, {"ZRav", "96"}, {"IdSect", "OV150"}, {"L", "80"},
                   {"K", "65"}, {"HD", "0.2"}, {"SR", "5"}});
  AddExportObject(surface, 5, "Cac_2",
                  {{"iGroup", "2"}, {"libell", ""}, {"Libell", ""}, {"sNodAm", "Nod_3"},
                   {"sNodAv", "Nod_9"}});
  AddExportObject(surface, 7, "Cao_1",
                  {{"iGroup", "2"}, {"libell", "O1"}, {"sNodAm", "Nod_1"}, {"sNodAv", "Nod_3"},
                   {"ZRam", "99"}, {"ZRav", "98"}, {"IdSect", ""}, {"L", "200"},
                   {"Kmin", "50"}, {"Largeur", "100"}, {"Kmaj", "30"}});
  // The kinds that no text export writes.
  const std::vector<std::pair<int, std::string>> others = {
      {8, "Dqq_1"},  {9, "Dqz_1"},   {10, "Rs_1"},   {11, "Rsp_1"}, {12, "Plu_1"},
      {13, "Tr_1"},  {14, "Clav_1"}, {15, "Cal_1"},  {16, "Mark_1"}, {17, "Rayon"},
      {21, "Bvs_1"}, {100, "1"},     {101, "OV150"}};
  for (const auto& [i_name, id] : others) {
    AddExportObject(surface, i_name, id,
                    {{"libell", "AUTRE_" + std::to_string(i_name)}, {"sNodAm", "Nod_1"},
                     {"Xus", "1"}, {"Yus", "2"}, {"Zus", "3"}});
  }
}

}  // namespace pluvane
