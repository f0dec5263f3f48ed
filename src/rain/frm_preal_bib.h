// The library of recorded rain events in internal mode (kind 103): one row per
// event with its interpolation method; the button of a row edits the event's
// table of cumulated heights in a working file (the event's Id and ".tmp" in
// the working folder) that the save copies into the event's Pt tags. Closing
// the library removes every working file.
#pragma once

#include <memory>
#include <string>

#include "rain/rain_library.h"

namespace pluvane {

class FrmPrealBib : public RainLibrary {
 public:
  // Without any gauge on the drawing the library says why and closes at once.
  explicit FrmPrealBib(EditorContext& context);

  void mnClose() override;
  // The working file of the event `id`.
  std::string WorkingFile(const std::string& id) const;

 protected:
  bool CheckRows() override;
  void BeforeWrite() override;
  void WriteRow(int row) override;
  std::unique_ptr<FormController> MakeEditor(const std::string& id, int number) override;
};

}  // namespace pluvane
