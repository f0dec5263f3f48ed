// Collectors edited through their forms, then the model generated: the .LI2
// record of each is what the engine will read.
#include <gtest/gtest.h>

#include "editors/frm_cac.h"
#include "editors/frm_caf.h"
#include "editors/frm_cao.h"
#include "editors/section_library.h"
#include "simulation/link_files.h"
#include "simulation/model_fixture.h"
#include "simulation/node_file.h"

namespace pluvane {
namespace {

class CollectorGeneration : public ModelTest {
 protected:
  CollectorGeneration() {
    n1 = Node(1000, 1000);
    n2 = Node(3000, 1000);
    n3 = Node(5000, 1000);
    n4 = Node(7000, 1000);
  }
  // Fills column 2 of the form's grid from row 1 on, then Ok.
  template <typename Form>
  void Edit(int element, const std::vector<std::string>& values) {
    surface.SetCurrentObject(element);
    Form form(context);
    for (std::size_t i = 0; i < values.size(); ++i)
      form.grid().SetText(2, static_cast<int>(i) + 1, values[i]);
    form.Run("cmdOk");
    ASSERT_TRUE(form.Closed());
  }
  std::string Li2() {
    ModelContext model = Context();
    GenFicNod(model, ModelFile(".NOD"));
    EXPECT_EQ(GenFicLi2(model, ModelFile(".LI2")), 3);
    return ReadBytes(ModelFile(".LI2"));
  }
  static std::string Bytes(std::initializer_list<int> bytes) {
    std::string s;
    for (int b : bytes) s += static_cast<char>(b);
    return s;
  }

  ViewerState viewer;
  EditorContext context{surface, state, ui, {}, viewer, {}};
};

TEST_F(CollectorGeneration, EachCollectorAsItsFormLeftIt) {
  const int cac = Link("X_CAC", n1, n2);
  const int caf = Link("X_CAF", n2, n3);
  const int cao = Link("X_CAO", n3, n4);
  AddSection(surface, state, "Ovoide T180");
  AddSection(surface, state, "Trapeze");
  Edit<FrmCac>(cac, {"Rue Haute", "10.5", "-2.25", "0.8", "120", "70", "1.5", "20"});
  Edit<FrmCaf>(caf, {"Rue Basse", "9.8", "9.1", "Ovoide T180", "1500", "65", "2", "0"});
  Edit<FrmCao>(cao, {"Riviere", "9", "-2.25", "Trapeze", "120", "25", "12.5", "15"});
  EXPECT_EQ(ui.Texts(),
            (std::vector<std::string>{"Ne pas oublier de MajUsIdDansIgroup/option de sortie"}));

  const std::string li2 = Li2();
  ASSERT_EQ(li2.size(), 3u * 812u);
  // Circular: ZRam, ZRav, Dn, L, K, HD, SR as singles, then zeros.
  const std::string cac_record =
      Bytes({0x00, 0x00, 0x28, 0x41, 0x00, 0x00, 0x10, 0xC0, 0xCD, 0xCC, 0x4C, 0x3F, 0x00, 0x00,
             0xF0, 0x42, 0x00, 0x00, 0x8C, 0x42, 0x00, 0x00, 0xC0, 0x3F, 0x00, 0x00, 0xA0, 0x41}) +
      std::string(812 - 28, '\0');
  EXPECT_EQ(li2.substr(0, 812), cac_record);
  // Closed: ZRam, ZRav, the section's name in 16 blank-filled characters, L, K, HD, SR.
  const std::string caf_record = Bytes({0xCD, 0xCC, 0x1C, 0x41, 0x9A, 0x99, 0x11, 0x41}) +
                                 "Ovoide T180     " +
                                 Bytes({0x00, 0x80, 0xBB, 0x44, 0x00, 0x00, 0x82, 0x42, 0x00, 0x00,
                                        0x00, 0x40, 0x00, 0x00, 0x00, 0x00}) +
                                 std::string(812 - 40, '\0');
  EXPECT_EQ(li2.substr(812, 812), caf_record);
  // Open: ZRam, ZRav, the section, L, Kmin, Largeur, Kmaj.
  const std::string cao_record = Bytes({0x00, 0x00, 0x10, 0x41, 0x00, 0x00, 0x10, 0xC0}) +
                                 "Trapeze         " +
                                 Bytes({0x00, 0x00, 0xF0, 0x42, 0x00, 0x00, 0xC8, 0x41, 0x00, 0x00,
                                        0x48, 0x41, 0x00, 0x00, 0x70, 0x41}) +
                                 std::string(812 - 40, '\0');
  EXPECT_EQ(li2.substr(2 * 812, 812), cao_record);
}

}  // namespace
}  // namespace pluvane
