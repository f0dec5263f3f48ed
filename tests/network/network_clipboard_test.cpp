#include "network/network_clipboard.h"

#include <gtest/gtest.h>

#include "foundation/expect_message.h"
#include "link_edit_fixture.h"
#include "drawing/surface_helpers.h"

namespace pluvane {
namespace {

constexpr const char* kPasteQuestion =
    "L'opération d'import d'éléments de réseau via Ctrl+V\r"
    "pourrait introduire des doublons d'élément et\r"
    "provoquerait des instabilités ou incohérences de traitement.\r"
    "\r"
    "Voulez-vous poursuivre ?";

class ClipboardTest : public LinkEditTest {
 protected:
  // Copies nodes A and B and the collector between them.
  void CopyAB() {
    ab_ = Collector(0, 1);
    Select({nodes_[0], nodes_[1], ab_});
    ASSERT_TRUE(CopySelectionToClipboard(context));
    ui.Clear();
  }
  int ab_ = 0;
};

TEST_F(ClipboardTest, TheSelectionIsCopiedInOurFormat) {
  ab_ = Collector(0, 1);
  Select({nodes_[0], nodes_[1], ab_});
  EXPECT_TRUE(CopySelectionToClipboard(context));
  EXPECT_EQ(ui.ClipboardData(kClipboardType), surface.CopySelection(0));
  EXPECT_EQ(ui.clipboard.size(), 1u);
  EXPECT_TRUE(ui.Empty());
  ASSERT_FALSE(ui.Statuses().empty());
  EXPECT_EQ(ui.Statuses().back(), " ok 3 elm ont été copiés et prêts à être collés...");
  EXPECT_EQ(surface.ObjectCount(kSelection), 3);
}

TEST_F(ClipboardTest, WithNoSelectionThePictureIsCopied) {
  surface.DeselectAll();
  EXPECT_TRUE(CopySelectionToClipboard(context));
  EXPECT_EQ(ui.ClipboardData(ScriptedUi::kPictureType), "picture");
  EXPECT_EQ(ui.ClipboardData(kClipboardType), "");
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(ui.Statuses().back(), " ok 0 elm ont été copiés et prêts à être collés...");
}

TEST_F(ClipboardTest, ANoPictureIsReported) {
  ui.clipboard_picture_succeeds = false;
  surface.DeselectAll();
  EXPECT_FALSE(CopySelectionToClipboard(context));
  ExpectLastMessage(ui, "Aucun Obj n'est copié !", "", MessageIcon::kNone);
  EXPECT_EQ(ui.Statuses().back(), " ok 0 elm ont été copiés et prêts à être collés...");
}

TEST_F(ClipboardTest, AnEmptyDrawingCopiesNothing) {
  surface.ClearDrawing();
  ui.clipboard = {{"text/plain", "avant"}};
  EXPECT_FALSE(CopySelectionToClipboard(context));
  ExpectLastMessage(ui, "Aucun Obj n'est copié !", "", MessageIcon::kNone);
  EXPECT_EQ(ui.ClipboardData("text/plain"), "avant");
  EXPECT_EQ(ui.Statuses().back(), " ok 0 elm ont été copiés et prêts à être collés...");
}

TEST_F(ClipboardTest, PastingIntoANetworkAsksFirst) {
  CopyAB();
  const int before = surface.ObjectCount(kPage);
  ui.QueueYes();
  EXPECT_EQ(PasteFromClipboard(context), 1);
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, kPasteQuestion, "Importation de données", MessageIcon::kQuestion, "yesno");
  EXPECT_EQ(surface.ObjectCount(kPage), before + 3);
  // The pasted objects are the selection, with the Ids they had.
  EXPECT_EQ(surface.ObjectCount(kSelection), 3);
  for (const int n : SelectedObjects(surface)) EXPECT_GT(n, ab_);
  EXPECT_EQ(CountByTag(surface, "Id", NodeId(0)), 2);
  EXPECT_EQ(CountByTag(surface, "Id", "Cac_1"), 2);
  EXPECT_EQ(surface.EditMode(), 11);
}

TEST_F(ClipboardTest, NoToTheQuestionPastesNothing) {
  CopyAB();
  const std::string before = Snapshot();
  ui.QueueNo();
  EXPECT_EQ(PasteFromClipboard(context), -1);
  ExpectLastMessage(ui, kPasteQuestion, "Importation de données", MessageIcon::kQuestion, "yesno");
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(ClipboardTest, ADrawingWithoutNodePastesWithoutAsking) {
  CopyAB();
  surface.ClearDrawing();
  EXPECT_EQ(PasteFromClipboard(context), 1);
  EXPECT_TRUE(ui.Empty());
  EXPECT_EQ(surface.ObjectCount(kPage), 3);
  EXPECT_EQ(surface.ObjectCount(kSelection), 3);
  EXPECT_EQ(CountByTag(surface, "Id", "Cac_1"), 1);
}

TEST_F(ClipboardTest, AnEmptyClipboardIsReported) {
  surface.ClearDrawing();
  EXPECT_EQ(PasteFromClipboard(context), 0);
  ExpectLastMessage(ui, "Le presse-papier est vide !", "", MessageIcon::kNone);
  EXPECT_EQ(surface.ObjectCount(kPage), 0);
}

TEST_F(ClipboardTest, ForeignContentIsReported) {
  ui.PutClipboardData("text/plain", "Bonjour");
  ui.QueueYes();
  const std::string before = Snapshot();
  EXPECT_EQ(PasteFromClipboard(context), 2);
  ExpectLastMessage(ui, "Le contenu du presse-papier n'est pas au format xpr!", "",
                    MessageIcon::kNone);
  EXPECT_EQ(Snapshot(), before);

  ui.Clear();
  ui.PutClipboardData(kClipboardType, "{ pas du json");
  ui.QueueYes();
  EXPECT_EQ(PasteFromClipboard(context), 2);
  ExpectLastMessage(ui, "Le contenu du presse-papier n'est pas au format xpr!", "",
                    MessageIcon::kNone);
  EXPECT_EQ(Snapshot(), before);
}

TEST_F(ClipboardTest, APasteIsOneUndoStep) {
  CopyAB();
  const std::string before = Snapshot();
  ui.QueueYes();
  ASSERT_EQ(PasteFromClipboard(context), 1);
  ASSERT_TRUE(surface.Undo());
  EXPECT_EQ(Snapshot(), before);
}

TEST(ScriptedClipboard, HoldsOneContentAtATime) {
  ScriptedUi ui;
  EXPECT_TRUE(ui.ClipboardEmpty());
  ui.PutClipboardData("text/plain", "a");
  EXPECT_FALSE(ui.ClipboardEmpty());
  EXPECT_EQ(ui.ClipboardData("text/plain"), "a");
  EXPECT_TRUE(ui.CopyDrawingPicture());
  EXPECT_EQ(ui.ClipboardData("text/plain"), "");
  EXPECT_EQ(ui.ClipboardData(ScriptedUi::kPictureType), "picture");
}

}  // namespace
}  // namespace pluvane
