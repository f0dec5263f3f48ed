// imp_GenNod_MidFile2TxtFile: the blank-separated twin of a nodes' .Mid.
#include <cerrno>

#include "exchange/import_table.h"
#include "foundation/errors.h"
#include "foundation/fixed_width.h"
#include "foundation/text.h"

namespace pluvane {

int imp_GenNod_MidFile2TxtFile(UserInterface& ui, const std::string& mid_file,
                               const std::string& txt_file) {
  constexpr std::size_t kLastField = 15;
  std::vector<std::string> lines;
  if (!ReadTextLines(mid_file, lines)) {
    const AppError error = FileError(ENOENT);
    ShowError(ui, &error, "erreur dans imp_GenNod_MidFile2TxtFile");
    return 0;
  }
  std::vector<std::string> out;
  std::vector<std::string> fields;
  for (const std::string& line : lines) {
    if (Trim(line).empty()) continue;
    if (SplitLine(ui, line, fields, ",") == 0) continue;
    std::string text = "\"" + Trim(fields[0]) + "\"";
    for (std::size_t i = 2; i <= fields.size() && i <= kLastField; ++i) {
      const std::string& field = fields[i - 1];
      text += "     ";
      if (i == 6 || i == 11) {
        text += "\"" + ReplaceText(Trim(field), " ", "_") + "\"";
      } else {
        text += field;
      }
    }
    out.push_back(std::move(text));
  }
  if (!WriteTextLines(txt_file, out)) {
    const AppError error = FileError(EACCES);
    ShowError(ui, &error, "erreur dans imp_GenNod_MidFile2TxtFile");
    return 0;
  }
  return static_cast<int>(out.size());
}

}  // namespace pluvane
