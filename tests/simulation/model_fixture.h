// Test fixture for model generation: the placement fixture's drawing (map
// X = Xlog, Y = 10000 - Ylog), a model folder in a temporary folder, and the
// reference network that the expected files under expected/ describe.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "foundation/test_files.h"
#include "network/default_tags.h"
#include "network/hidden_record.h"
#include "network/placement_fixture.h"
#include "simulation/model_context.h"

namespace pluvane {

class ModelTest : public PlacementTest {
 protected:
  ModelTest() {
    state.ScenarioName = "Scn-1";
    state.NetworkFile = folder.File("reseau.mtf");
    state.ModelFolder = folder.File("Scn-1");
    std::filesystem::create_directories(state.ModelFolder);
  }

  std::string ModelFile(const std::string& extension) const {
    return state.ModelFolder + "/Scn-1_reseau" + extension;
  }
  std::string Expected(const std::string& name) const {
    return ReadBytes(std::string(PLUVANE_TESTS) + "/simulation/expected/" + name);
  }

  // Writes tags on an object as its editor would.
  void Set(int number, const TagList& tags) {
    const int saved = surface.CurrentObject();
    surface.SetCurrentObject(number);
    for (const auto& [name, value] : tags) surface.SetObjTag(name, value);
    surface.SetCurrentObject(saved);
  }
  // A library record (section, scenario...) with its tags.
  int Record(const TagList& tags) {
    const int n = AddHiddenRecord(surface, state);
    Set(n, tags);
    return n;
  }
  // A reach of that number with its collectors.
  int Reach(int number, const std::vector<std::string>& collectors) {
    const int n = AddHiddenRecord(surface, state);
    state.PendingReach = number;
    CreateDefaultTags(surface, state, "X_BIEF", false);
    state.PendingReach = 0;
    TagList tags = {{"NbColl", std::to_string(collectors.size())}};
    for (std::size_t i = 0; i < collectors.size(); ++i) {
      tags.emplace_back("IdColl" + std::to_string(i + 1), collectors[i]);
      tags.emplace_back("InameColl" + std::to_string(i + 1), "5");
    }
    Set(n, tags);
    return n;
  }
  int Scenario(const std::string& id, const std::string& rain = "P1") {
    return Record({{"iName", "111"},
                   {"iGroup", "-1"},
                   {"Id", id},
                   {"UsId", "Scénario de référence"},
                   {"CalcDuree", "120"},
                   {"CalcDt", "2.5"},
                   {"CalcMode", "2: mode dimensionnement"},
                   {"IdPluie", rain}});
  }

  // The network described by the expected files reference.*: four nodes, two
  // catchments and one element of every kept kind, a gauge, two reaches, two
  // sections and the scenario "Scn-1".
  void BuildReference();

  ModelContext Context() { return {surface, state, ui}; }

  TempFolder folder;
  // Objects of the reference network.
  int n1 = 0, n2 = 0, n3 = 0, n4 = 0, bv1 = 0, bv2 = 0;
};

inline void ModelTest::BuildReference() {
  n1 = Node(1000, 1000);
  n2 = Node(3000, 1000);
  n3 = Node(5000, 2500);
  n4 = Node(7001, 1000);
  Set(n1, {{"libell", "Noeud é"}, {"iLink", "3"}});
  Set(n3, {{"libell", ""}});
  Set(n4, {{"libell", "Noeud de sortie du reseau"}});
  bv1 = Symbol("X_BV", 1000, 4000);
  Set(bv1, {{"libell", "BV Centre"}, {"S", "12.5"}, {"K", "15"}});
  Set(Link("X_ROUT", bv1, n1), {{"L", "350"}});
  Set(Link("X_CAC", n1, n2), {{"ZRam", "10.5"},
                              {"ZRav", "10.25"},
                              {"Dn", "0.8"},
                              {"L", "2000"},
                              {"K", "70"},
                              {"HD", "1.5"},
                              {"SR", "20"}});
  Set(Link("X_CAF", n2, n3), {{"ZRam", "9.8"},
                              {"ZRav", "9.1"},
                              {"IdSect", "Ovoide T180 prolonge"},
                              {"L", "1500"},
                              {"K", "65"},
                              {"HD", "2"}});
  Set(Link("X_CAO", n3, n4), {{"libell", "Riviere"},
                              {"ZRam", "9"},
                              {"ZRav", "8.5"},
                              {"IdSect", "Trapeze"},
                              {"L", "2100.75"},
                              {"Kmin", "25"},
                              {"Largeur", "12.5"},
                              {"Kmaj", "15"}});
  Set(Symbol("X_HYBV", 0, 0, n1), {{"sNodAm", "nod_1 "}, {"Qsec", "0.1"}, {"SR", "5"}});
  Set(Symbol("X_HY", 0, 0, n2), {{"libell", "Rejet usine"},
                                 {"NbPt", "3"},
                                 {"X2", "30"},
                                 {"Y2", "1.5"},
                                 {"X3", "60.4"},
                                 {"Y3", "0.25"},
                                 {"Qsec", "0.05"},
                                 {"SR", "2"}});
  Set(Symbol("X_DQQ", 0, 0, n3), {{"IdAval", "Riviere"},
                                  {"NbDer", "2"},
                                  {"IdDer_a", "Caf_1"},
                                  {"IdDer_b", "Inconnu"},
                                  {"IdDer_c", "Cac_1"},
                                  {"NbPt", "2"},
                                  {"X2", "1.5"},
                                  {"Y2", "1"},
                                  {"Z2", "0.5"},
                                  {"T2", "0"}});
  TagList level_law = {{"IdAval", "cac_1"}, {"NbDer", "1"},     {"IdDer_a", "Rejet usine"},
                       {"TypeAval", "2"},   {"TypeDer_a", "1"}, {"NbPtDa", "2"},
                       {"Xda1", "1"},       {"Yda1", "2"},      {"Xda2", "3"},
                       {"Yda2", "4"},       {"Xda3", "5"},      {"Yda3", "6"}};
  for (int i = 1; i <= 10; ++i) {
    level_law.emplace_back("Xav" + std::to_string(i), std::to_string(i));
    level_law.emplace_back("Yav" + std::to_string(i), std::to_string(10 * i));
  }
  Set(Symbol("X_DQZ", 0, 0, n4), level_law);
  Set(Symbol("X_RS", 0, 0, n1), {{"IdAval", "Cac_1"},
                                 {"IdSurv", "Riviere"},
                                 {"Qf", "0.2"},
                                 {"Z0", "1.5"},
                                 {"NbPt", "2"},
                                 {"X1", "0"},
                                 {"Y1", "100"},
                                 {"X2", "2"},
                                 {"Y2", "150"}});
  Set(Symbol("X_RSP", 0, 0, n2), {{"IdAval", "Nulle part"},
                                  {"Z0", "0.5"},
                                  {"NbPt", "1"},
                                  {"X1", "1"},
                                  {"Y1", "50"},
                                  {"Z1", "0.01"}});
  Link("X_TR", n4, n2);
  Set(Symbol("X_CLAV", 0, 0, n4), {{"Export", "1"}});
  Set(Symbol("X_MARK", 0, 0, n3), {{"Export", "1"}});
  Symbol("X_PLU", 9000, 9000);
  Set(Symbol("X_BVS", 0, 0, n2), {{"libell", "BVS Nord"}, {"Qsec", "0.01"}});
  bv2 = Symbol("X_BV", 6000, 6000);
  Reach(3, {"Cac_1", "Caf_1"});
  Set(Reach(7, {}), {{"Id", "123456789012"}});
  Record({{"iName", "101"},
          {"Id", "Trapeze"},
          {"NbPt", "3"},
          {"X1", "0"},
          {"X2", "1.5"},
          {"X3", "2"},
          {"Y1", "2"},
          {"Y2", "4"},
          {"Y3", "4.5"}});
  Record({{"iName", "101"}, {"Id", "Vide"}, {"NbPt", "0"}});
  Scenario("Scn-1");
}

}  // namespace pluvane
