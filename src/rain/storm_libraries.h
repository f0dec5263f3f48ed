// The four libraries of design storms (Caquot, simple triangle, double
// triangle, synthetic I(t)): one design, the kind, prefix and title apart;
// the button of a row opens the storm's edition form.
#pragma once

#include <memory>
#include <string>

#include "rain/rain_library.h"

namespace pluvane {

// The library of one kind of design storm, 104 to 107.
class FrmStormBib : public RainLibrary {
 public:
  FrmStormBib(EditorContext& context, int kind);

 protected:
  std::unique_ptr<FormController> MakeEditor(const std::string& id, int number) override;
};

class FrmCaqBib : public FrmStormBib {
 public:
  explicit FrmCaqBib(EditorContext& context) : FrmStormBib(context, 104) {}
};
class FrmPstBib : public FrmStormBib {
 public:
  explicit FrmPstBib(EditorContext& context) : FrmStormBib(context, 105) {}
};
class FrmPdtBib : public FrmStormBib {
 public:
  explicit FrmPdtBib(EditorContext& context) : FrmStormBib(context, 106) {}
};
class FrmPitBib : public FrmStormBib {
 public:
  explicit FrmPitBib(EditorContext& context) : FrmStormBib(context, 107) {}
};

}  // namespace pluvane
