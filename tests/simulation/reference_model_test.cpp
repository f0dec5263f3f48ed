// The whole model of the reference network against the files written by hand
// under expected/.
#include <gtest/gtest.h>

#include "simulation/li2_description.h"
#include "simulation/model_fixture.h"
#include "simulation/model_generation.h"

namespace pluvane {
namespace {

class ReferenceModel : public ModelTest {
 protected:
  void SetUp() override {
    BuildReference();
    ModelContext context = Context();
    ASSERT_EQ(GenerateModel(context, " Scn-1_reseau "), 8);
  }
};

TEST_F(ReferenceModel, NodeFile) {
  EXPECT_EQ(ReadBytes(ModelFile(".NOD")), Expected("reference.NOD"));
}

TEST_F(ReferenceModel, GeneralFile) {
  EXPECT_EQ(ReadBytes(ModelFile(".GEN")), Expected("reference.GEN"));
}

TEST_F(ReferenceModel, TopologyFile) {
  EXPECT_EQ(ReadBytes(ModelFile(".LI1")), Expected("reference.LI1"));
}

TEST_F(ReferenceModel, ElementDataFile) {
  const std::string expected = Li2FromDescription(Expected("reference.LI2.txt"));
  ASSERT_EQ(expected.size(), 16u * 812u);
  const std::string written = ReadBytes(ModelFile(".LI2"));
  ASSERT_EQ(written.size(), expected.size());
  for (std::size_t r = 0; r < 16; ++r) {
    EXPECT_EQ(written.substr(r * 812, 812), expected.substr(r * 812, 812)) << "record " << r + 1;
  }
}

TEST_F(ReferenceModel, ReachSectionAndHydrographFiles) {
  EXPECT_EQ(ReadBytes(ModelFile(".BRN")), Expected("reference.BRN"));
  EXPECT_EQ(ReadBytes(ModelFile(".SEC")), Expected("reference.SEC"));
  EXPECT_EQ(ReadBytes(ModelFile(".APP")), Expected("reference.APP"));
}

TEST_F(ReferenceModel, AccentedLabelIsOneWindows1252Byte) {
  const std::string nod = ReadBytes(ModelFile(".NOD"));
  const std::string line = nod.substr(nod.find("\r\n") + 2, 60);
  EXPECT_EQ(line.substr(53), std::string("Noeud \xE9"));
}

TEST_F(ReferenceModel, CatchmentsKeepTheirNumbers) {
  EXPECT_EQ(TagOf(bv1, "sNodAm"), "5");
  EXPECT_EQ(TagOf(bv2, "sNodAm"), "6");
}

}  // namespace
}  // namespace pluvane
