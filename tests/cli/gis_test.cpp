// pluvane-cli gis-export and gis-import, started as a user starts them: the
// example network written as GIS layers, read back by ogrinfo, and imported
// into a network holding its library alone, whose model is then the same, byte
// for byte, as the example's own for what the layers carry (nodes and
// collectors).
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>

#include "cli/program_folder.h"
#include "foundation/test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

std::string TagOf(const Json& object, const std::string& name) {
  for (const Json& tag : object["tags"]) {
    if (tag[0] == name) return tag[1].get<std::string>();
  }
  return "";
}

class GisCli : public ::testing::Test {
 protected:
  GisCli() {
    // The example in Lambert-93, where its coordinates are.
    Json demo = Json::parse(ReadBytes(programs_.Work("Exemples/Demo.mtf")));
    for (Json& object : demo["objects"]) {
      if (TagOf(object, "Id") == "ParamReseau") object["tags"].push_back({"SysCoord", "EPSG:2154"});
    }
    WriteBytes(programs_.Work("demo.mtf"), demo.dump());
    // The example with its library and nodes and collectors (by kind, in the
    // order of the layers), and with its library alone.
    Write(demo, {"99", "5", "6", "7"}, "ref/reseau.mtf");
    Write(demo, {}, "vide.mtf");
  }

  static int Kind(const Json& object) {
    const std::string i_name = TagOf(object, "iName");
    return i_name.empty() ? 1000 : std::atoi(i_name.c_str());
  }

  void Write(const Json& demo, const std::vector<std::string>& kinds, const std::string& name) {
    const Json& objects = demo["objects"];
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < objects.size(); ++i) {
      if (Kind(objects[i]) >= 100) kept.push_back(i);
    }
    for (const std::string& kind : kinds) {
      for (std::size_t i = 0; i < objects.size(); ++i) {
        if (TagOf(objects[i], "iName") == kind) kept.push_back(i);
      }
    }
    std::map<std::size_t, std::size_t> position;
    for (std::size_t i = 0; i < kept.size(); ++i) position[kept[i]] = i;
    Json out = demo;
    out["objects"] = Json::array();
    for (std::size_t i : kept) {
      Json object = objects[i];
      if (object.contains("ends")) {
        for (Json& end : object["ends"]) end = position.at(end.get<std::size_t>());
      }
      out["objects"].push_back(object);
    }
    fs::create_directories(fs::path(programs_.Work(name)).parent_path());
    WriteBytes(programs_.Work(name), out.dump());
  }

  // The model's files of a network, but its message log, by name.
  std::map<std::string, std::string> Model(const std::string& network) {
    const SplitRun run = programs_.Cli("generate " + network);
    EXPECT_EQ(run.status, 0) << run.err;
    std::map<std::string, std::string> files;
    std::string folder = run.out;
    while (!folder.empty() && folder.back() == '\n') folder.pop_back();
    for (const auto& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".msg") continue;
      files[entry.path().filename().string()] = ReadBytes(entry.path().string());
    }
    return files;
  }

  ProgramFolder programs_;
};

TEST_F(GisCli, TheExampleComesBackWithTheSameModelThroughEachFormat) {
  const std::map<std::string, std::string> expected = Model("ref/reseau.mtf");
  ASSERT_GE(expected.size(), 8u);
  for (const std::string format : {"gpkg", "shp", "geojson"}) {
    SCOPED_TRACE(format);
    const std::string folder = "rt_" + format;
    fs::create_directories(programs_.Work(folder));
    fs::copy_file(programs_.Work("vide.mtf"), programs_.Work(folder + "/reseau.mtf"));
    SplitRun run = programs_.Cli("gis-export demo.mtf -o " + folder + "/couches." + format);
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out,
              "87 objets écrits dans " + programs_.Work(folder + "/couches." + format) + "\n");
    const auto source = [&](const std::string& layer) {
      if (format == "gpkg") return folder + "/couches.gpkg";
      if (format == "shp") return folder + "/couches";
      return folder + "/couches_" + layer + ".geojson";
    };
    run = programs_.Cli("gis-import " + folder + "/reseau.mtf " + source("noeuds") +
                        " --layer noeuds --as nodes -o " + folder + "/reseau.mtf");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "30\n");
    EXPECT_EQ(run.err, "");
    const std::map<std::string, std::string> counts = {{"ci", "23"}, {"pf", "4"}, {"po", "4"}};
    for (const auto& [kind, count] : counts) {
      run = programs_.Cli("gis-import " + folder + "/reseau.mtf " + source("collecteurs_" + kind) +
                          " --layer collecteurs_" + kind + " --as " + kind +
                          " --tolerance 0.01 -o " + folder + "/reseau.mtf");
      ASSERT_EQ(run.status, 0) << run.err;
      EXPECT_EQ(run.out, count + "\n");
    }
    const std::map<std::string, std::string> model = Model(folder + "/reseau.mtf");
    ASSERT_EQ(model.size(), expected.size());
    for (const auto& [name, bytes] : expected) {
      ASSERT_TRUE(model.count(name)) << name;
      EXPECT_TRUE(model.at(name) == bytes) << name;
    }
  }
}

TEST_F(GisCli, OgrinfoReadsTheGeoPackage) {
  if (std::system("command -v ogrinfo >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "ogrinfo (gdal-bin) is not installed";
  }
  ASSERT_EQ(programs_.Cli("gis-export demo.mtf -o couches.gpkg").status, 0);
  const ProgramRun info =
      RunCommandLine("ogrinfo -ro -so -al '" + programs_.Work("couches.gpkg") + "' 2>&1");
  ASSERT_EQ(info.status, 0) << info.output;
  const std::map<std::string, std::string> layers = {{"noeuds", "Point"},
                                                     {"bassins_versants", "Point"},
                                                     {"collecteurs_ci", "Line String"},
                                                     {"collecteurs_pf", "Line String"},
                                                     {"collecteurs_po", "Line String"},
                                                     {"elements_singuliers", "Point"}};
  const std::map<std::string, int> features = {{"noeuds", 30},         {"bassins_versants", 10},
                                               {"collecteurs_ci", 23}, {"collecteurs_pf", 4},
                                               {"collecteurs_po", 4},  {"elements_singuliers", 16}};
  for (const auto& [layer, geometry] : layers) {
    const std::size_t at = info.output.find("Layer name: " + layer + "\n");
    ASSERT_NE(at, std::string::npos) << layer;
    const std::size_t next = info.output.find("Layer name: ", at + 1);
    const std::string block =
        info.output.substr(at, next == std::string::npos ? std::string::npos : next - at);
    EXPECT_NE(block.find("Geometry: " + geometry + "\n"), std::string::npos) << layer;
    EXPECT_NE(block.find("Feature Count: " + std::to_string(features.at(layer)) + "\n"),
              std::string::npos)
        << layer;
    EXPECT_NE(block.find("RGF93 v1 / Lambert-93"), std::string::npos) << layer;
    EXPECT_NE(block.find("ID[\"EPSG\",2154]"), std::string::npos) << layer;
  }
  // The fields of a collector: its tags, numbers as reals, and its nodes' labels.
  const std::size_t ci = info.output.find("Layer name: collecteurs_ci\n");
  const std::string block = info.output.substr(ci, info.output.find("Layer name: ", ci + 1) - ci);
  EXPECT_NE(block.find("libell: String"), std::string::npos);
  EXPECT_NE(block.find("ZRam: Real"), std::string::npos);
  EXPECT_NE(block.find("Dn: Real"), std::string::npos);
  EXPECT_NE(block.find("libAm: String"), std::string::npos);
}

TEST_F(GisCli, TheCollectorsCarryTheCapacityFiguresOfTheScenario) {
  if (std::system("command -v ogrinfo >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "ogrinfo (gdal-bin) is not installed";
  }
  fs::create_directories(programs_.Work("Decennale"));
  WriteBytes(programs_.Work("Decennale/Decennale_demo.Sor"),
             "  Mode de calcul : Diagnostic\r\n\"Cac_1     0.0 0.5 10 1.0 0.4 9 0\r\n");
  ASSERT_EQ(programs_.Cli("gis-export demo.mtf --scenario Decennale -o couches.gpkg").status, 0);
  const ProgramRun info = RunCommandLine("ogrinfo -ro -q '" + programs_.Work("couches.gpkg") +
                                         "' collecteurs_ci -where \"libell='Cac_1'\" 2>&1");
  ASSERT_EQ(info.status, 0) << info.output;
  EXPECT_NE(info.output.find("Taux (Real) = 50\n"), std::string::npos) << info.output;
  // Without results, no figures.
  ASSERT_EQ(programs_.Cli("gis-export demo.mtf --scenario Autre -o sans.gpkg").status, 0);
  const ProgramRun none = RunCommandLine("ogrinfo -ro -q '" + programs_.Work("sans.gpkg") +
                                         "' collecteurs_ci -where \"libell='Cac_1'\" 2>&1");
  EXPECT_EQ(none.output.find("Taux"), std::string::npos) << none.output;
}

TEST_F(GisCli, DoubtfulElementsArePrintedOneALine) {
  WriteBytes(programs_.Work("points.geojson"),
             "{\"type\":\"FeatureCollection\",\"name\":\"points\",\"crs\":{\"type\":\"name\","
             "\"properties\":{\"name\":\"urn:ogc:def:crs:EPSG::2154\"}},\"features\":["
             "{\"type\":\"Feature\",\"properties\":{\"Id\":\"Nod_1\"},\"geometry\":{\"type\":"
             "\"Point\",\"coordinates\":[650000,6860000]}},"
             "{\"type\":\"Feature\",\"properties\":{\"Id\":\"Nod_2\"},\"geometry\":{\"type\":"
             "\"Point\",\"coordinates\":[650000.3,6860000]}},"
             "{\"type\":\"Feature\",\"properties\":{\"Id\":\"Nod_3\"},\"geometry\":{\"type\":"
             "\"Point\",\"coordinates\":[651000,6861000]}}]}");
  const SplitRun run =
      programs_.Cli("gis-import vide.mtf points.geojson --layer points --as nodes -o r.mtf");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "Nod_2 : à moins de 0.5 m de Nod_1\n3\n");
  EXPECT_TRUE(fs::exists(programs_.Work("r.mtf")));
}

TEST_F(GisCli, RefusalsAndBadUsage) {
  SplitRun run = programs_.Cli("gis-export demo.mtf -o couches.kml");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(programs_.Cli("gis-export demo.mtf").status, 2);
  ASSERT_EQ(programs_.Cli("gis-export demo.mtf -o couches.gpkg").status, 0);
  EXPECT_EQ(programs_.Cli("gis-import vide.mtf couches.gpkg --as nodes -o r.mtf").status, 2);
  EXPECT_EQ(
      programs_.Cli("gis-import vide.mtf couches.gpkg --layer noeuds --as bv -o r.mtf").status, 2);
  EXPECT_EQ(
      programs_
          .Cli("gis-import vide.mtf couches.gpkg --layer noeuds --as nodes --fields Zus -o r.mtf")
          .status,
      2);
  EXPECT_EQ(
      programs_
          .Cli("gis-import vide.mtf couches.gpkg --layer noeuds --as nodes --tolerance x -o r.mtf")
          .status,
      2);
  run = programs_.Cli("gis-import vide.mtf couches.gpkg --layer puits --as nodes -o r.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "Import SIG: La couche puits est absente du fichier " +
                         programs_.Work("couches.gpkg") + ".\n");
  run = programs_.Cli("gis-import vide.mtf couches.gpkg --layer noeuds --as ci -o r.mtf");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "Import SIG: La couche noeuds du fichier " + programs_.Work("couches.gpkg") +
                         " n'est pas une couche de lignes.\n");
  EXPECT_FALSE(fs::exists(programs_.Work("r.mtf")));
}

}  // namespace
}  // namespace pluvane
