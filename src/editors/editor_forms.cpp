#include "editors/editor_forms.h"

#include <functional>
#include <map>

#include "editors/frm_cac.h"
#include "editors/frm_caf.h"
#include "editors/frm_cao.h"
#include "editors/frm_dqq.h"
#include "editors/frm_dqz.h"
#include "editors/frm_edit.h"

namespace pluvane {

namespace {

using Maker = std::function<std::unique_ptr<FormController>(EditorContext&)>;

template <typename Form>
Maker Make() {
  return [](EditorContext& context) { return std::make_unique<Form>(context); };
}

const std::map<std::string, Maker>& Editors() {
  // One line per form, in the order of the element kinds.
  static const std::map<std::string, Maker> kEditors = {
      {"frmCac", Make<FrmCac>()},
      {"frmCaf", Make<FrmCaf>()},
      {"frmCao", Make<FrmCao>()},
      {"frmDqq", Make<FrmDqq>()},
      {"frmDqz", Make<FrmDqz>()},
      {"frmEdit", Make<FrmEdit>()},
  };
  return kEditors;
}

}  // namespace

std::unique_ptr<FormController> MakeEditorForm(const std::string& name, EditorContext& context) {
  auto found = Editors().find(name);
  if (found == Editors().end()) return nullptr;
  return found->second(context);
}

}  // namespace pluvane
