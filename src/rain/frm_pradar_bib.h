// The library of radar rain events (kind 108): each event names two files
// prepared elsewhere, the active surfaces of the catchment cut-outs (.Crb) and
// the hyetographs of the radar cells (.Prf); the generation copies both paths.
#pragma once

#include <string>

#include "rain/rain_library.h"

namespace pluvane {

class FrmPradarBib : public RainLibrary {
 public:
  static constexpr int kColCrb = 3;
  static constexpr int kColPrf = 5;

  explicit FrmPradarBib(EditorContext& context);

 protected:
  std::string ChooseFile(int col) override;
};

}  // namespace pluvane
