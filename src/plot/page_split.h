// Cutting a plot script into its pages: P1.TMP, P2.TMP... in the work folder,
// one statement a line, checked for pairs of PAGE/ENDPAGE and CADRE/ENDCADRE.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

// The page file of page `number` in the work folder.
std::string PageFilePath(const std::string& work_dir, int number);

// Writes the page files of `script` into `work_dir` and counts the pages.
// Empty lines are dropped and lines are written trimmed; "END" stops the cut.
// An unpaired PAGE or CADRE shows its message and gives false (the page files
// are removed as told for each case). A missing script, or a line with no open
// page file to go to (before the first PAGE, between two pages), raises
// AppError for the caller's error report; the page files already cut stay.
bool SplitPages(UserInterface& ui, const std::string& script, const std::string& work_dir,
                int& pages);

// Removes the page files of the work folder, as the pattern "P??.TMP" does
// (one or two characters behind the P).
void KillPageFiles(UserInterface& ui, const std::string& work_dir);

}  // namespace pluvane
