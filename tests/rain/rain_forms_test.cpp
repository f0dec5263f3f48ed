#include "rain/rain_forms.h"

#include <gtest/gtest.h>

#include "rain_fixture.h"

namespace pluvane {
namespace {

class RainFormsTest : public RainTest {};

TEST_F(RainFormsTest, EveryMenuEntryOpensItsForm) {
  AddGauge(10000, 20000, 10100, 20100);
  EditorContext context = Context();
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"mnuPlu_Proj_Montana", "Coefficients régionaux de Montana"},
      {"mnuPlu_Proj_Caquot", "Pluie Caquot (CAQ)"},
      {"mnuPlu_Proj_1Tri", "Bibliothèque Pluie Simple Triangle (PST)"},
      {"mnuPlu_Proj_2Tri", "Bibliothèque Pluie Double Triangle (PDT)"},
      {"mnuPlu_Proj_Synth", "Bibliothèque le la Pluie Synthétique (PIT)"},
      {"mnuPlu_Real_Pluvio", "Pluviométrie en mode interne"},
      {"mnuPlu_Real_Hyeto", "Bibliothèque des hyétogrammes externes"},
      {"mnuPlu_Real_PlvExt", "Bibliothèque des pluies réelles externes issues des pluviomètres"},
      {"mnuPlu_Real_Radar", "Bibliothèque des événements pluvieux de source radar"},
      {"frmPluXy", "Localisation du pluviographe"},
      {"frmPluRayon", "Rayon d'action de la pluie projet"},
  };
  for (const auto& [name, caption] : expected) {
    std::unique_ptr<FormController> form = MakeRainForm(name, context);
    ASSERT_NE(form, nullptr) << name;
    EXPECT_EQ(form->Caption(), caption);
    EXPECT_FALSE(form->Closed()) << name;
  }
  EXPECT_EQ(MakeRainForm("mnuPlu_Lst", context), nullptr);
  EXPECT_TRUE(ui_.Empty());
}

}  // namespace
}  // namespace pluvane
