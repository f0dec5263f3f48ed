#include "foundation/processes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "expect_message.h"
#include "foundation/scripted_ui.h"
#include "test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

// Writes an executable shell script and returns its path.
std::string Script(const TempFolder& dir, const std::string& name, const std::string& body) {
  std::string path = dir.File(name);
  WriteBytes(path, "#!/bin/sh\n" + body + "\n");
  ::chmod(path.c_str(), 0755);
  return path;
}

TEST(SplitCommandLine, QuotesKeepBlanksAndDisappear) {
  using Args = std::vector<std::string>;
  EXPECT_EQ(SplitCommandLine("  prog  a\tb  "), (Args{"prog", "a", "b"}));
  EXPECT_EQ(SplitCommandLine("\"/mes docs/prog\" \"x y\" \"\" 'z'"),
            (Args{"/mes docs/prog", "x y", "", "'z'"}));
  EXPECT_EQ(SplitCommandLine("wine C:\\Velmar.exe ab\"c d\"e"),
            (Args{"wine", "C:\\Velmar.exe", "abc de"}));
  EXPECT_EQ(SplitCommandLine("   "), Args{});
}

TEST(RunAndWait, RunsInTheWorkingFolderAndWaits) {
  ScriptedUi ui;
  TempFolder dir;
  fs::create_directory(dir.File("model"));
  std::string script = Script(dir, "engine", "sleep 0.2\npwd > here.txt\necho \"$1\" >> here.txt");
  EXPECT_EQ(RunAndWait(ui, "\"" + script + "\" \"Scn 1\"", dir.File("model")), 0);
  EXPECT_EQ(ReadBytes(dir.File("model/here.txt")),
            fs::canonical(dir.File("model")).string() + "\nScn 1\n");
  EXPECT_TRUE(ui.Empty());
  EXPECT_GT(ui.PumpCount(), 0);
}

TEST(RunAndWait, ExitCodeOfTheProgramIsNotLookedAt) {
  ScriptedUi ui;
  TempFolder dir;
  EXPECT_EQ(RunAndWait(ui, Script(dir, "fails", "exit 3"), dir.Path()), 0);
  EXPECT_TRUE(ui.Empty());
}

TEST(RunAndWait, FailedStartShowsTheCodeAndReturnsIt) {
  ScriptedUi ui;
  EXPECT_EQ(RunAndWait(ui, "/nonexistent/Velmar scenario", ""), 2);
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(
      ui, "Le fichier spécifié est introuvable.\rerreur no 2 (/nonexistent/Velmar scenario)",
      "Pluvane (erreur n°2, L0)", MessageIcon::kExclamation);
}

TEST(RunAndWait, MissingWorkingFolderIsAFailedStart) {
  ScriptedUi ui;
  TempFolder dir;
  std::string script = Script(dir, "engine", "exit 0");
  EXPECT_EQ(RunAndWait(ui, script, dir.File("absent")), 2);
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().text, "Le fichier spécifié est introuvable.\rerreur no 2 (" + script + ")");
}

TEST(RunAndWait, FileThatIsNotAProgram) {
  ScriptedUi ui;
  TempFolder dir;
  WriteBytes(dir.File("data.txt"), "x");
  EXPECT_EQ(RunAndWait(ui, dir.File("data.txt"), ""), 13);
  EXPECT_EQ(ui.Last().text, "Accès refusé.\rerreur no 13 (" + dir.File("data.txt") + ")");
  EXPECT_EQ(ui.Last().title, "Pluvane (erreur n°13, L0)");
}

TEST(RunAndWait, EmptyCommandLineIsAFailedStart) {
  ScriptedUi ui;
  EXPECT_EQ(RunAndWait(ui, "  ", ""), 2);
  EXPECT_EQ(ui.Last().text, "Le fichier spécifié est introuvable.\rerreur no 2 (  )");
}

TEST(ShellAndWait, ReturnsTheExitCode) {
  ScriptedUi ui;
  TempFolder dir;
  EXPECT_EQ(ShellAndWait(ui, Script(dir, "ok", "exit 0")), 0);
  EXPECT_EQ(ShellAndWait(ui, Script(dir, "three", "exit 3"), 1), 3);
  EXPECT_EQ(ShellAndWait(ui, Script(dir, "killed", "kill -9 $$"), 99), 128 + 9);
  EXPECT_TRUE(ui.Empty());
}

TEST(ShellAndWait, SlowProgramLetsEventsRun) {
  ScriptedUi ui;
  TempFolder dir;
  EXPECT_EQ(ShellAndWait(ui, Script(dir, "slow", "sleep 0.35\nexit 4")), 4);
  EXPECT_GE(ui.PumpCount(), 2);
}

TEST(ShellAndWait, FailedStartGivesTheCodePlusTheObjectErrorBase) {
  ScriptedUi ui;
  EXPECT_EQ(ShellAndWait(ui, "/nonexistent/vistrel Vistrel.Mst"), 2 - 2147221504);
  EXPECT_TRUE(ui.Empty());
}

TEST(EditFile, HandsTheFileToTheEditor) {
  ScriptedUi ui;
  EXPECT_TRUE(EditFile(ui, "/data/Scn_1/Scn_1_res.msg", "/opt/pluvane"));
  EXPECT_EQ(ui.EditedFiles(), std::vector<std::string>{"/data/Scn_1/Scn_1_res.msg"});
  EXPECT_TRUE(ui.Empty());
}

TEST(EditFile, NoEditorSaysWhereToPutOne) {
  ScriptedUi ui;
  ui.edit_file_succeeds = false;
  EXPECT_FALSE(EditFile(ui, "/data/r.msg", "/opt/pluvane"));
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui,
                    "L'éditeur NotePad.exe ou WordPad.exe non trouvé dans votre système.\r\n"
                    "Placez-le dans le répertoire/opt/pluvane",
                    "Editer /data/r.msg", MessageIcon::kInformation);
}

TEST(GetWinVersion, NoWindowsVersionHere) { EXPECT_EQ(GetWinVersion(), ""); }

}  // namespace
}  // namespace pluvane
