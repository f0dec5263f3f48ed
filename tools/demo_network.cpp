// The demonstration network: a small town's storm-water network draining
// eastwards to the river. A trunk sewer of ten reaches takes three side
// branches; a flow divider (DQQ) sends part of the trunk into a relief sewer,
// a weir divider (DQZ) spills into a storm tank (RS) that leaks back to the
// outlet and overflows to the river; a retention basin with laws (RSP) sits on
// the southern branch; an industrial hydrograph is injected upstream of the
// northern one. The map is Lambert-93: one logical unit is 25 mm.
#include <array>

#include "network/catalogue.h"
#include "shell/app_state.h"
#include "tools/network_builder.h"

namespace pluvane {

namespace {

// The map: X = kX0 + kScale * Xlog, Y = kY0 - kScale * Ylog.
constexpr double kX0 = 649750;
constexpr double kY0 = 6863250;
constexpr double kScale = 0.025;

struct NodePlace {
  std::int32_t x;
  std::int32_t y;
  double invert;
  const char* label;  // nullptr keeps the Id
};

// Nodes Nod_1 to Nod_30, in the order of their numbers.
constexpr std::array<NodePlace, 30> kNodes = {{
    {22000, 50000, 48.40, "Église"},
    {28000, 50000, 47.60, nullptr},
    {34000, 50000, 46.80, "Rue des Écoles"},
    {40000, 50000, 46.00, nullptr},
    {46000, 50000, 45.20, "Noeud é"},
    {52000, 50000, 44.40, nullptr},
    {58000, 50000, 43.60, "Déversoir"},
    {64000, 50000, 42.80, "Dérivation"},
    {70000, 50000, 42.00, nullptr},
    {76000, 50000, 41.20, "Exutoire"},
    {34000, 32000, 50.40, nullptr},
    {34000, 38000, 49.30, nullptr},
    {34000, 44000, 48.10, nullptr},
    {46000, 68000, 49.00, nullptr},
    {46000, 62000, 47.80, "Bassin des Prés"},
    {46000, 56000, 46.40, nullptr},
    {52000, 32000, 48.50, "Zone d'activités"},
    {52000, 38000, 47.40, nullptr},
    {52000, 44000, 46.00, nullptr},
    {64000, 60000, 42.20, nullptr},
    {72000, 62000, 41.80, nullptr},
    {64000, 38000, 42.00, "Bassin Écluse"},
    {70000, 42000, 41.70, nullptr},
    {70000, 30000, 41.00, "Rejet en Seine"},
    {50000, 59000, 46.90, nullptr},
    {28000, 26000, 51.50, "Hameau"},
    {58000, 64000, 47.00, nullptr},
    {58000, 58000, 45.30, nullptr},
    {16000, 50000, 49.20, "Tête amont"},
    {58000, 40000, 46.80, nullptr},
}};

// A catchment of the complex on a node: area (ha), flow path (m), slope,
// imperviousness, routing length (m).
struct Catchment {
  int node;
  double area;
  double path;
  double slope;
  double imperviousness;
  double routing;
};

constexpr std::array<Catchment, 9> kCatchments = {{
    {29, 6.80, 320, 0.012, 0.45, 180},
    {1, 4.20, 260, 0.010, 0.65, 140},
    {2, 3.50, 210, 0.009, 0.70, 120},
    {26, 12.40, 480, 0.018, 0.25, 260},
    {12, 5.10, 300, 0.014, 0.55, 150},
    {14, 7.60, 350, 0.011, 0.40, 200},
    {18, 8.90, 380, 0.008, 0.75, 210},
    {30, 3.20, 190, 0.010, 0.60, 110},
    {27, 4.70, 240, 0.015, 0.50, 130},
}};

// A circular collector: from node, to node, diameter (m).
struct Circular {
  int from;
  int to;
  double diameter;
};

constexpr const char* kOvoid = "OV150";
constexpr const char* kDitch = "FOSSE";

// The node of the hamlet, whose rural catchment has laws of its own.
constexpr int kHamlet = 26;

class DemoBuilder {
 public:
  explicit DemoBuilder(NetworkBuilder& b) : b_(b) {}

  bool Build() {
    if (!b_.Calibrate(kX0, kY0, kScale, {{10000, 10000}, {10000, 90000}, {90000, 90000}})) {
      return false;
    }
    Nodes();
    Catchments();
    Collectors();
    Elements();
    Library();
    b_.Reach(1, {cac_[{3, 4}], cac_[{4, 5}], caf_[{5, 6}], caf_[{6, 7}], caf_[{7, 8}]});
    Scenario();
    b_.PicturesByName();
    b_.ViewWholeNetwork();
    return b_.ok();
  }

 private:
  using Ends = std::pair<int, int>;

  int N(int k) const { return nodes_[static_cast<std::size_t>(k - 1)]; }

  void Nodes() {
    for (const NodePlace& place : kNodes) {
      const int node = b_.Node(place.x, place.y, place.invert, 2.8);
      if (place.label) b_.Tags(node, {{"libell", place.label}});
      nodes_.push_back(node);
    }
  }

  void Catchments() {
    HydrologicalComplex hamlet;
    for (const Catchment& c : kCatchments) {
      const HydrologicalComplex made = b_.Complex(N(c.node));
      if (c.node == kHamlet) hamlet = made;
      b_.Tags(made.catchment, {{"S", c.area},
                               {"L", c.path},
                               {"m", c.slope},
                               {"ci", c.imperviousness},
                               {"Fpluie1", c.imperviousness}});
      b_.Tags(made.outlet, {{"Qsec", 0.002}});
      b_.Tags(made.route, {{"S", 0.5}, {"L", c.routing}, {"m", c.slope}});
    }
    // The hamlet's rural catchment: losses after Horner, an imposed response time.
    b_.Tags(hamlet.catchment, {{"Fpluie", "2. selon Horner"},
                               {"Fpluie1", 0.35},
                               {"Fpluie2", 0.05},
                               {"Fpluie3", ""},
                               {"fp_Alpha", 0.35},
                               {"fp_Beta", 0.05},
                               {"Fruissel", "4. k (imposé) + réservoir linéaire"},
                               {"K", 25},
                               {"fr_K", 25}});
    // A catchment released straight on the head of the northern branch.
    const int bvs = b_.OnNode("X_BVS", N(11));
    b_.Tags(
        bvs,
        {{"S", 2.3}, {"L", 160}, {"m", 0.02}, {"ci", 0.55}, {"Fpluie1", 0.55}, {"Qsec", 0.001}});
  }

  void Circulars(const std::vector<Circular>& list) {
    for (const Circular& c : list) {
      const int link = b_.Collector("X_CAC", N(c.from), N(c.to));
      b_.Tags(link, {{"Dn", c.diameter}, {"K", 70}, {"HD", 2.0}});
      cac_[{c.from, c.to}] = link;
    }
  }

  void Closed(int from, int to) {
    const int link = b_.Collector("X_CAF", N(from), N(to));
    b_.Tags(link, {{"IdSect", kOvoid}, {"K", 65}, {"HD", 2.2}});
    caf_[{from, to}] = link;
  }

  void Open(int from, int to) {
    const int link = b_.Collector("X_CAO", N(from), N(to));
    b_.Tags(link, {{"IdSect", kDitch}, {"Kmin", 30}, {"Largeur", 25}, {"Kmaj", 15}});
    cao_[{from, to}] = link;
  }

  void Collectors() {
    Circulars({{29, 1, 0.40}, {1, 2, 0.50}, {2, 3, 0.60}, {3, 4, 0.80}, {4, 5, 0.80}});
    Closed(5, 6);
    Closed(6, 7);
    Closed(7, 8);
    Open(8, 9);
    Open(9, 10);
    Circulars({{11, 12, 0.30}, {12, 13, 0.40}, {13, 3, 0.40}});
    Circulars({{14, 15, 0.40}, {15, 16, 0.50}, {15, 25, 0.50}, {25, 16, 0.50}, {16, 5, 0.60}});
    Circulars({{17, 18, 0.40}, {18, 19, 0.50}, {30, 19, 0.40}, {19, 6, 0.60}});
    Circulars({{27, 28, 0.40}, {28, 7, 0.50}});
    // The relief sewer of the divider, back to the outlet.
    Circulars({{8, 20, 0.80}, {20, 21, 0.80}});
    Open(21, 10);
    // The storm tank: filled over the weir, emptied by its leak, spilling to the river.
    Closed(7, 22);
    Circulars({{22, 23, 0.30}, {23, 10, 0.40}});
    Open(22, 24);
    b_.Tags(cao_[{22, 24}], {{"ZRam", 44.50}});
    // The hamlet's ditch joins the network as a connection.
    b_.Link("X_TR", N(kHamlet), N(11));
  }

  void Elements() {
    const int hy = b_.OnNode("X_HY", N(17));
    b_.Tags(hy, {{"libell", "Rejet industriel"}, {"Qsec", 0.01}, {"SR", 0}, {"NbPt", 5}});
    b_.Table(hy, {"X", "Y"}, {{0, 0.01}, {30, 0.15}, {60, 0.40}, {90, 0.20}, {150, 0.01}});

    const int dqq = b_.OnNode("X_DQQ", N(8));
    b_.Tags(dqq, {{"IdAval", b_.IdOf(cao_[{8, 9}])},
                  {"NbDer", 1},
                  {"IdDer_a", b_.IdOf(cac_[{8, 20}])},
                  {"NbPt", 4}});
    b_.Table(dqq, {"X", "Y", "Z", "T"},
             {{0, 0, 0, 0}, {0.8, 0, 0, 0}, {1.6, 0.5, 0, 0}, {3.0, 1.4, 0, 0}});

    const int dqz = b_.OnNode("X_DQZ", N(7));
    b_.Tags(dqz, {{"IdAval", b_.IdOf(caf_[{7, 8}])},
                  {"NbDer", 1},
                  {"IdDer_a", b_.IdOf(caf_[{7, 22}])},
                  {"TypeAval", "3. Strickler"},
                  {"TypeDer_a", "1. Seuil"},
                  {"TypeDer_b", "3. Strickler"},
                  {"TypeDer_c", "3. Strickler"},
                  {"NbPtAv", 1},
                  {"NbPtDa", 3},
                  {"Xav1", 65},
                  {"Xda1", 44.40},
                  {"Xda2", 2.50},
                  {"Xda3", 0.40}});

    const int rs = b_.OnNode("X_RS", N(22));
    b_.Tags(rs, {{"libell", "Bassin Écluse"},
                 {"IdAval", b_.IdOf(cac_[{22, 23}])},
                 {"IdSurv", b_.IdOf(cao_[{22, 24}])},
                 {"Qf", 0.10},
                 {"Z0", 42.00},
                 {"NbPt", 4}});
    b_.Table(rs, {"X", "Y"}, {{42.00, 1200}, {43.00, 1500}, {44.00, 1800}, {45.00, 2100}});

    const int rsp = b_.OnNode("X_RSP", N(15));
    b_.Tags(rsp, {{"libell", "Bassin des Prés"},
                  {"IdAval", b_.IdOf(cac_[{15, 16}])},
                  {"IdSurv", b_.IdOf(cac_[{15, 25}])},
                  {"Z0", 46.80},
                  {"NbPt", 4}});
    // Level, area, leak flow, overflow.
    b_.Table(rsp, {"X", "Y", "Z", "T"},
             {{46.80, 400, 0, 0},
              {47.80, 650, 0.05, 0},
              {48.80, 900, 0.08, 0.2},
              {49.50, 1100, 0.10, 1.5}});

    const int clav = b_.OnNode("X_CLAV", N(10));
    b_.Tags(clav, {{"libell", "Exutoire Seine"}, {"Export", 1}});
    const int mark = b_.OnNode("X_MARK", N(24));
    b_.Tags(mark, {{"libell", "Surverse bassin"}, {"Export", 1}});
    const int gauge = b_.Free("X_PLU", 40000, 40000);
    b_.Tags(gauge, {{"libell", "Pluvio Mairie"}});
  }

  // Points are (top width, height above the invert), in metres.
  void Section(const char* id, const std::vector<std::vector<double>>& points) {
    const int section = b_.Record({{"Id", id},
                                   {"iName", kINameSection},
                                   {"iGroup", kGroupLibrary},
                                   {"NbPt", static_cast<int>(points.size())}});
    b_.Table(section, {"X", "Y"}, points);
  }

  void Library() {
    // Sections: top width (m) at each height above the invert (m).
    Section(
        kOvoid,
        {{0, 0}, {0.60, 0.25}, {0.88, 0.50}, {1.00, 0.90}, {0.90, 1.20}, {0.60, 1.40}, {0, 1.50}});
    Section(kDitch, {{1.00, 0}, {2.00, 0.50}, {3.00, 1.00}, {4.00, 1.50}});

    struct Montana {
      const char* id;
      const char* period;
      const char* a;
      const char* b;
    };
    for (const Montana& m :
         {Montana{"Mont1", "10", "5.9", "0.59"}, Montana{"Mont2", "2", "3.4", "0.62"},
          Montana{"Mont3", "30", "7.4", "0.57"}}) {
      b_.Record({{"iName", "102"},
                 {"Id", m.id},
                 {"Design", "Paris-Montsouris"},
                 {"Pret", m.period},
                 {"Ca", m.a},
                 {"Cb", m.b}});
    }

    b_.Record({{"iName", "103"},
               {"Id", "Orage1"},
               {"Design", "Orage du 14 juin"},
               {"iModePluie", "1. Thiessen"},
               {"UsId", "Averse orageuse enregistrée"},
               {"NbPt", 6},
               {"Pt1", "Etat pluvio ->\t1"},
               {"Pt2", "0\t0"},
               {"Pt3", "15\t4.5"},
               {"Pt4", "30\t16.2"},
               {"Pt5", "45\t24.8"},
               {"Pt6", "60\t27.0"}});

    const TagSet decennial{{"IdMonta", "Mont1"},
                           {"Design", "Paris-Montsouris"},
                           {"Pret", 10},
                           {"Ca", 5.9},
                           {"Cb", 0.59}};
    TagSet caquot = StormHead("CAQ_1", "Pluie décennale de Caquot", kINameCaquot);
    caquot.insert(caquot.end(), decennial.begin(), decennial.end());
    b_.Record(caquot);

    TagSet simple = StormHead("PST_1", "Simple triangle décennal", kINameSimpleTriangle);
    simple.insert(simple.end(), decennial.begin(), decennial.end());
    simple.insert(simple.end(), {{"Duree", 240}, {"Timax", 60}});
    b_.Record(simple);

    TagSet twin = StormHead("PDT_1", "Double triangle décennal", kINameDoubleTriangle);
    twin.insert(twin.end(), {{"IdTot", "Mont2"},
                             {"DesignTot", "Paris-Montsouris"},
                             {"PretTot", 2},
                             {"CaTot", 3.4},
                             {"CbTot", 0.62},
                             {"IdInt", "Mont1"},
                             {"DesignInt", "Paris-Montsouris"},
                             {"PretInt", 10},
                             {"CaInt", 5.9},
                             {"CbInt", 0.59},
                             {"DureeTot", 240},
                             {"DureeInt", 30},
                             {"Timax", 75}});
    b_.Record(twin);

    TagSet synthetic = StormHead("PIT_1", "Hyétogramme de projet", kINameSynthetic);
    synthetic.insert(synthetic.end(), {{"NbPt", 6}});
    b_.Table(b_.Record(synthetic), {"X", "Y"},
             {{0, 0}, {15, 12}, {30, 48}, {45, 20}, {60, 6}, {90, 0}});
  }

  // What the library form writes first, then what the edition form rewrites.
  static TagSet StormHead(const char* id, const char* comment, int kind) {
    return {{"Id", id}, {"UsId", comment}, {"iName", kind}, {"iGroup", kGroupLibrary}};
  }

  void Scenario() {
    b_.Record({{"Id", "Decennale"},
               {"UsId", "Diagnostic sous pluie décennale"},
               {"iName", kINameScenario},
               {"iGroup", kGroupLibrary},
               {"CalcDuree", 240},
               {"CalcDt", 1},
               {"CalcMode", "1: mode diagnostic "},
               {"IdPluie", "CAQ_1"},
               {"UsIdPluie", "Pluie décennale de Caquot"},
               {"iPluie", kINameCaquot},
               {"iModePluie", ""},
               {"Design", "Diagnostic décennal"}});
    b_.Record({{"Id", "Decennale"},
               {"UsId", "Diagnostic sous pluie décennale"},
               {"iName", kINameCurrentScenario},
               {"iGroup", kGroupLibrary}});
    AppState& state = b_.state();
    state.ScenarioName = "Decennale";
    state.CalcDuree = 240;
    state.CalcDt = 1;
    state.CalcMode = 0;
  }

  NetworkBuilder& b_;
  std::vector<int> nodes_;
  std::map<Ends, int> cac_, caf_, cao_;
};

}  // namespace

bool BuildDemoNetwork(NetworkBuilder& builder) { return DemoBuilder(builder).Build(); }

}  // namespace pluvane
