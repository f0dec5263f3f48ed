#include "foundation/paths.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "expect_message.h"
#include "foundation/errors.h"
#include "foundation/scripted_ui.h"
#include "test_files.h"

namespace pluvane {
namespace {

namespace fs = std::filesystem;

struct Parts {
  std::string folder, name, base, ext;
};

Parts Split(std::string_view path) {
  Parts p;
  SplitPath(path, p.folder, p.name, p.base, p.ext);
  return p;
}

TEST(SplitPath, WindowsPathKeepsItsCase) {
  Parts p = Split("c:\\data\\x.tar.gz");
  EXPECT_EQ(p.folder, "c:\\data");
  EXPECT_EQ(p.name, "x.tar.gz");
  EXPECT_EQ(p.base, "x");
  EXPECT_EQ(p.ext, "tar.gz");
}

TEST(SplitPath, SlashesBlanksAndAccents) {
  Parts p = Split("  /home/Eau/ Réseau.MTF  ");
  EXPECT_EQ(p.folder, "/home/Eau");
  EXPECT_EQ(p.name, "Réseau.MTF");
  EXPECT_EQ(p.base, "Réseau");
  EXPECT_EQ(p.ext, "MTF");
  p = Split("dir/sub\\a.b.c");
  EXPECT_EQ(p.folder, "dir/sub");
  EXPECT_EQ(p.base, "a");
  EXPECT_EQ(p.ext, "b.c");
}

TEST(SplitPath, NameWithoutFolderOrDot) {
  Parts p = Split("Lisezmoi");
  EXPECT_EQ(p.folder, "");
  EXPECT_EQ(p.name, "Lisezmoi");
  EXPECT_EQ(p.base, "Lisezmoi");
  EXPECT_EQ(p.ext, "");
  p = Split(".cache");
  EXPECT_EQ(p.base, "");
  EXPECT_EQ(p.ext, "cache");
  p = Split("");
  EXPECT_EQ(p.folder, "");
  EXPECT_EQ(p.name, "");
}

TEST(SplitPath, RootAndTrailingSeparator) {
  EXPECT_EQ(Split("/x.txt").folder, "/");
  EXPECT_EQ(Split("c:\\x.txt").folder, "c:");
  Parts p = Split("a/b/");
  EXPECT_EQ(p.folder, "a/b");
  EXPECT_EQ(p.name, "");
}

TEST(DirOfAndFileNameOf, SameSteps) {
  EXPECT_EQ(DirOf("c:\\Data\\Velmar\\x.nod"), "c:\\Data\\Velmar");
  EXPECT_EQ(DirOf("x.nod"), "");
  EXPECT_EQ(FileNameOf("/a/B/Résultat.Sor"), "Résultat.Sor");
  EXPECT_EQ(FileNameOf("a\\b"), "b");
}

TEST(JoinPath, PlatformSeparatorOnce) {
  EXPECT_EQ(JoinPath("/a", "x"), "/a/x");
  EXPECT_EQ(JoinPath("/a/", "x"), "/a/x");
  EXPECT_EQ(JoinPath("", "x"), "x");
  EXPECT_EQ(JoinPath("/", "x"), "/x");
}

TEST(FileExist, PlainFilesOnly) {
  TempFolder dir;
  WriteBytes(dir.File("a.txt"), "x");
  EXPECT_TRUE(FileExist(dir.File("a.txt")));
  EXPECT_FALSE(FileExist(dir.File("A.TXT")));
  EXPECT_FALSE(FileExist(dir.Path()));
  EXPECT_FALSE(FileExist(dir.File("b.txt")));
  EXPECT_FALSE(FileExist(""));
  EXPECT_TRUE(FolderExist(dir.Path()));
  EXPECT_FALSE(FolderExist(dir.File("a.txt")));
  EXPECT_FALSE(FolderExist(dir.File("none")));
  EXPECT_FALSE(FolderExist(""));
}

TEST(MakeFolder, CreatesOneLevel) {
  TempFolder dir;
  EXPECT_TRUE(MakeFolder(dir.File("Scn1")));
  EXPECT_TRUE(FolderExist(dir.File("Scn1")));
  EXPECT_TRUE(MakeFolder(dir.File("Scn2/")));
  EXPECT_TRUE(FolderExist(dir.File("Scn2")));
  EXPECT_FALSE(MakeFolder(dir.File("Scn1")));
  EXPECT_FALSE(MakeFolder(dir.File("none/Scn1")));
  EXPECT_FALSE(MakeFolder(""));
}

TEST(FindFileNoCase, FindsTheNameOnDisk) {
  TempFolder dir;
  WriteBytes(dir.File("Scn_Reseau.SOR"), "x");
  fs::create_directory(dir.File("sub.sor"));
  EXPECT_EQ(FindFileNoCase(dir.Path(), "scn_reseau.sor"), dir.File("Scn_Reseau.SOR"));
  EXPECT_EQ(FindFileNoCase(dir.Path(), "Scn_Reseau.SOR"), dir.File("Scn_Reseau.SOR"));
  EXPECT_EQ(FindFileNoCase(dir.Path(), "SUB.SOR"), "");
  EXPECT_EQ(FindFileNoCase(dir.Path(), "autre.sor"), "");
  EXPECT_EQ(FindFileNoCase(dir.Path(), ""), "");
  EXPECT_EQ(FindFileNoCase(dir.File("none"), "x"), "");
}

TEST(FindFileNoCase, ExactNameFirstThenSortedOrder) {
  TempFolder dir;
  WriteBytes(dir.File("b.MIF"), "1");
  WriteBytes(dir.File("B.mif"), "2");
  WriteBytes(dir.File("b.mif"), "3");
  EXPECT_EQ(FindFileNoCase(dir.Path(), "b.mif"), dir.File("b.mif"));
  EXPECT_EQ(FindFileNoCase(dir.Path(), "B.MIF"), dir.File("B.mif"));
}

TEST(BaseOfAndExtOf, NameOnDiskOfAnExistingFile) {
  TempFolder dir;
  WriteBytes(dir.File("Res.Tar.GZ"), "x");
  WriteBytes(dir.File("Lisezmoi"), "x");
  EXPECT_EQ(BaseOf(dir.File("res.tar.gz")), "Res");
  EXPECT_EQ(ExtOf(dir.File("res.tar.gz")), "Tar.GZ");
  EXPECT_EQ(BaseOf(dir.File("Lisezmoi")), "Lisezmoi");
  EXPECT_EQ(ExtOf(dir.File("Lisezmoi")), "");
  EXPECT_EQ(BaseOf(dir.File("absent.txt")), "");
  EXPECT_EQ(ExtOf(dir.File("absent.txt")), "");
}

TEST(MatchesPattern, WildcardsCaseBlind) {
  EXPECT_TRUE(MatchesPattern("abc.TXT", "*.txt"));
  EXPECT_TRUE(MatchesPattern("été.txt", "?TÉ.TXT"));
  EXPECT_TRUE(MatchesPattern("Vistrel.mst", "vistrel.MST"));
  EXPECT_TRUE(MatchesPattern("abc", "a*"));
  EXPECT_TRUE(MatchesPattern("a.b.c", "*.c"));
  EXPECT_TRUE(MatchesPattern("sans", "*.*"));
  EXPECT_TRUE(MatchesPattern("", "*"));
  EXPECT_FALSE(MatchesPattern("ab", "a?c"));
  EXPECT_FALSE(MatchesPattern("x.tmpx", "*.tmp"));
  EXPECT_FALSE(MatchesPattern("x", ""));
  EXPECT_TRUE(MatchesPattern("aXbXc", "a*b*c"));
}

TEST(CountLines, LinesToTheEnd) {
  TempFolder dir;
  WriteBytes(dir.File("empty"), "");
  WriteBytes(dir.File("crlf"), "a\r\nb\r\n");
  WriteBytes(dir.File("lf"), "a\nb\n\nlast");
  EXPECT_EQ(CountLines(dir.File("empty")), 0);
  EXPECT_EQ(CountLines(dir.File("crlf")), 2);
  EXPECT_EQ(CountLines(dir.File("lf")), 4);
}

TEST(CountLines, MissingFileSurfacesAsAnError) {
  TempFolder dir;
  try {
    CountLines(dir.File("absent"));
    FAIL() << "no error raised";
  } catch (const AppError& error) {
    EXPECT_EQ(error.number(), 53);
    EXPECT_EQ(error.description(), "Fichier introuvable");
  }
  EXPECT_THROW(CountLines(dir.Path()), AppError);
}

TEST(AppendFile, AppendsLinesInWindows1252WithCrLf) {
  TempFolder dir;
  WriteBytes(dir.File("src.log"), "Vérif\nligne 2");
  WriteBytes(dir.File("run.msg"), "début\r\n");
  AppendFile(dir.File("src.log"), dir.File("run.msg"));
  EXPECT_EQ(ReadBytes(dir.File("run.msg")), "début\r\nV\xE9rif\r\nligne 2\r\n");
}

TEST(AppendFile, CreatesTheDestination) {
  TempFolder dir;
  WriteBytes(dir.File("src.log"), "a\r\n");
  AppendFile(dir.File("src.log"), dir.File("new.msg"));
  EXPECT_EQ(ReadBytes(dir.File("new.msg")), "a\r\n");
}

TEST(AppendFile, MissingSourceDoesNothing) {
  TempFolder dir;
  AppendFile(dir.File("absent.log"), dir.File("new.msg"));
  EXPECT_FALSE(FileExist(dir.File("new.msg")));
}

TEST(AppendFile, UnwritableDestinationSurfacesAsAnError) {
  TempFolder dir;
  WriteBytes(dir.File("src.log"), "a\r\n");
  EXPECT_THROW(AppendFile(dir.File("src.log"), dir.File("none/x.msg")), AppError);
}

TEST(vbFileKill, EmptyFolderGivesZero) {
  ScriptedUi ui;
  TempFolder dir;
  EXPECT_EQ(vbFileKill(ui, dir.Path(), "*.*"), 0);
  EXPECT_EQ(vbFileKill(ui, dir.File("absent"), "*.tmp"), 0);
  EXPECT_TRUE(ui.Empty());
}

TEST(vbFileKill, DeletesMatchingPlainFilesCaseBlind) {
  ScriptedUi ui;
  TempFolder dir;
  WriteBytes(dir.File("a.tmp"), "");
  WriteBytes(dir.File("B.Tmp"), "");
  WriteBytes(dir.File("c.tmpx"), "");
  WriteBytes(dir.File("Vistrel.mst"), "");
  fs::create_directory(dir.File("d.tmp"));
  EXPECT_EQ(vbFileKill(ui, dir.Path(), "*.TMP"), 2);
  EXPECT_FALSE(FileExist(dir.File("a.tmp")));
  EXPECT_FALSE(FileExist(dir.File("B.Tmp")));
  EXPECT_TRUE(FileExist(dir.File("c.tmpx")));
  EXPECT_TRUE(FolderExist(dir.File("d.tmp")));
  EXPECT_EQ(vbFileKill(ui, dir.Path() + "/", "vistrel.MST"), 1);
  EXPECT_EQ(vbFileKill(ui, dir.Path(), "*.*"), 1);
  EXPECT_FALSE(FileExist(dir.File("c.tmpx")));
  EXPECT_TRUE(ui.Empty());
}

TEST(vbFileKill, FailureShowsTheErrorAndGivesZero) {
  // No one, not even root, may delete the files of /proc.
  ScriptedUi ui;
  EXPECT_EQ(vbFileKill(ui, "/proc/self", "COMM"), 0);
  ASSERT_EQ(ui.Messages().size(), 1u);
  ExpectLastMessage(ui, "Permission refusée\rvbFileKill /proc/self/comm",
                    "Pluvane (erreur n°70, L0)", MessageIcon::kExclamation);
}

TEST(vbFileKill, ReadOnlyFolderShowsTheError) {
  if (::geteuid() == 0) GTEST_SKIP() << "root deletes in a read-only folder";
  ScriptedUi ui;
  TempFolder dir;
  fs::create_directory(dir.File("ro"));
  WriteBytes(dir.File("ro/b.tmp"), "");
  ::chmod(dir.File("ro").c_str(), 0555);
  EXPECT_EQ(vbFileKill(ui, dir.File("ro"), "*.tmp"), 0);
  ::chmod(dir.File("ro").c_str(), 0755);
  ASSERT_EQ(ui.Messages().size(), 1u);
  EXPECT_EQ(ui.Last().text, "Permission refusée\rvbFileKill " + dir.File("ro/b.tmp"));
}

TEST(ChangeDir, MakesTheFolderCurrent) {
  TempFolder dir;
  const fs::path before = fs::current_path();
  ChangeDir(dir.Path());
  EXPECT_EQ(fs::current_path(), fs::canonical(dir.Path()));
  fs::current_path(before);
  try {
    ChangeDir(dir.File("absent"));
    FAIL() << "no error raised";
  } catch (const AppError& error) {
    EXPECT_EQ(error.number(), 76);
    EXPECT_EQ(error.description(), "Chemin d'accès introuvable");
  }
  EXPECT_EQ(fs::current_path(), before);
}

}  // namespace
}  // namespace pluvane
