#include "network/frm_bief_user_create.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "network/reach_fixture.h"

namespace pluvane {
namespace {

class FrmBiefUserCreateTest : public ReachTest {
 protected:
  void AddReach(int number) { MakeReach(number, {Collector(0, 1)}); }
};

TEST_F(FrmBiefUserCreateTest, TheGridListsTheNumbersInUseAndOffersOneRow) {
  AddReach(4);
  AddReach(2);
  FrmBiefUserCreate form(surface, state, ui);
  Grid& g = form.grid();
  EXPECT_EQ(g.ColHead(1), "N° Bief");
  EXPECT_EQ(form.UsedRows(), 2);
  EXPECT_EQ(g.MaxRows(), 3);
  EXPECT_EQ(g.Text(1, 1), "4");
  EXPECT_EQ(g.Text(1, 2), "2");
  EXPECT_TRUE(g.Locked(1, 1));
  EXPECT_FALSE(g.Locked(1, 3));
  EXPECT_EQ(g.ActiveRow(), 3);
  EXPECT_EQ(form.Caption(), "Création d'un nouveau Bief");
}

TEST_F(FrmBiefUserCreateTest, OkTakesTheNumberTyped) {
  FrmBiefUserCreate form(surface, state, ui);
  form.grid().SetText(1, 1, " 12 ");
  form.Run("cmdOk");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(form.Result(), "12");
  EXPECT_EQ(state.PendingReach, 12);
  EXPECT_TRUE(ui.Empty());
}

TEST_F(FrmBiefUserCreateTest, NoNumberKeepsTheFormWithItsMessage) {
  FrmBiefUserCreate form(surface, state, ui);
  form.Run("cmdOk");
  EXPECT_FALSE(form.Closed());
  ExpectLastMessage(ui,
                    "Le bief venant d'être créé n'a reçu aucun numéro ?\r\nVous devez lui "
                    "affecter un numéro disponible.",
                    "Création d'un nouveau Bief", MessageIcon::kExclamation);
  EXPECT_EQ(state.PendingReach, 0);
}

TEST_F(FrmBiefUserCreateTest, SeveralNumbersKeepTheFormWithItsMessage) {
  FrmBiefUserCreate form(surface, state, ui);
  form.Run("cmdAdd");
  form.Run("cmdAdd");
  ASSERT_EQ(form.grid().MaxRows(), 3);
  form.grid().SetText(1, 1, "5");
  form.grid().SetText(1, 3, "6");
  form.Run("cmdOk");
  EXPECT_FALSE(form.Closed());
  ExpectLastMessage(ui, "Vous avez affecté 2 numéros au bief ?\r\nUn seul numéro suffit.",
                    "Création d'un nouveau Bief", MessageIcon::kExclamation);
  EXPECT_EQ(form.grid().ActiveRow(), 3);
}

TEST_F(FrmBiefUserCreateTest, ANumberInUseIsRefused) {
  AddReach(4);
  FrmBiefUserCreate form(surface, state, ui);
  form.grid().SetText(1, 2, "4");
  form.Run("cmdOk");
  EXPECT_FALSE(form.Closed());
  ExpectLastMessage(ui, "4 existe déjà.", "Création d'un nouveau Bief",
                    MessageIcon::kExclamation);
}

TEST_F(FrmBiefUserCreateTest, CancelLeavesAnnul) {
  state.PendingReach = 9;
  FrmBiefUserCreate form(surface, state, ui);
  form.grid().SetText(1, 1, "5");
  form.Run("cmdAnnul");
  EXPECT_TRUE(form.Closed());
  EXPECT_EQ(form.Result(), "ANNUL");
  EXPECT_EQ(state.PendingReach, 0);
}

}  // namespace
}  // namespace pluvane
