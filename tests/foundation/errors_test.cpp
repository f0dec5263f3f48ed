#include "foundation/errors.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "expect_message.h"
#include "foundation/scripted_ui.h"

namespace pluvane {
namespace {

TEST(ShowError, NothingPendingShowsNothing) {
  ScriptedUi ui;
  ShowError(ui, nullptr, "GenFicLi1");
  EXPECT_TRUE(ui.Empty());
}

TEST(ShowError, DescriptionCarriageReturnContextAndNumberedTitle) {
  ScriptedUi ui;
  AppError error(53, "Fichier introuvable");
  ShowError(ui, &error, "GenFicLi1");
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, "Fichier introuvable\rGenFicLi1", "Pluvane (erreur n°53, L0)",
                    MessageIcon::kExclamation);
}

TEST(ShowError, SourceAndLineOfTheError) {
  ScriptedUi ui;
  AppError error(9, "L'indice n'appartient pas à la sélection", "modFile", 120);
  ShowError(ui, &error, "ExportObjData2TxtFile");
  EXPECT_EQ(ui.Last().text, "L'indice n'appartient pas à la sélection\rExportObjData2TxtFile");
  EXPECT_EQ(ui.Last().title, "modFile (erreur n°9, L120)");
}

TEST(AppError, CarriesItsFields) {
  AppError error(76, "Chemin d'accès introuvable", "x", 3);
  EXPECT_EQ(error.number(), 76);
  EXPECT_EQ(error.description(), "Chemin d'accès introuvable");
  EXPECT_STREQ(error.what(), "Chemin d'accès introuvable");
  EXPECT_EQ(error.source(), "x");
  EXPECT_EQ(error.line(), 3);
}

TEST(FileError, SystemCodesBecomeTheFileErrorsOfOld) {
  EXPECT_EQ(FileError(ENOENT).number(), 53);
  EXPECT_EQ(FileError(ENOENT).description(), "Fichier introuvable");
  EXPECT_EQ(FileError(EACCES).number(), 70);
  EXPECT_EQ(FileError(EACCES).description(), "Permission refusée");
  EXPECT_EQ(FileError(ENOTDIR).number(), 76);
  EXPECT_EQ(FileError(ENOTDIR).description(), "Chemin d'accès introuvable");
  EXPECT_EQ(FileError(EIO).number(), 75);
  EXPECT_EQ(FileError(EIO).description(), "Erreur d'accès au chemin/fichier");
  EXPECT_EQ(FileError(EIO).source(), "Pluvane");
}

TEST(SystemErrorText, FrenchDescriptions) {
  EXPECT_EQ(SystemErrorText(ENOENT), "Le fichier spécifié est introuvable.");
  EXPECT_EQ(SystemErrorText(EACCES), "Accès refusé.");
  EXPECT_EQ(SystemErrorText(ENOEXEC), "Format de fichier exécutable incorrect.");
  EXPECT_EQ(SystemErrorText(9999), "Erreur système 9999.");
}

}  // namespace
}  // namespace pluvane
