#include "editors/editor_forms.h"

#include <functional>
#include <map>

#include "editors/frm_bv.h"
#include "editors/frm_cac.h"
#include "editors/frm_caf.h"
#include "editors/frm_cao.h"
#include "editors/frm_clav.h"
#include "editors/frm_dqq.h"
#include "editors/frm_dqz.h"
#include "editors/frm_edit.h"
#include "editors/frm_hy.h"
#include "editors/frm_hy_bv.h"
#include "editors/frm_mark.h"
#include "editors/frm_rout.h"
#include "editors/frm_rs.h"
#include "editors/frm_rsp.h"
#include "editors/frm_sect.h"
#include "editors/frm_trans.h"

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
      {"frmBV", Make<FrmBV>()},
      {"frmRout", Make<FrmRout>()},
      {"frmHyBv", Make<FrmHyBv>()},
      {"frmHy", Make<FrmHy>()},
      {"frmCac", Make<FrmCac>()},
      {"frmCaf", Make<FrmCaf>()},
      {"frmCao", Make<FrmCao>()},
      {"frmDqq", Make<FrmDqq>()},
      {"frmDqz", Make<FrmDqz>()},
      {"frmRs", Make<FrmRs>()},
      {"frmRsp", Make<FrmRsp>()},
      {"frmTrans", Make<FrmTrans>()},
      {"frmClav", Make<FrmClav>()},
      {"frmMark", Make<FrmMark>()},
      // The section library, opened from the Option menu.
      {"frmSect", Make<FrmSect>()},
      // The general editor of all the elements.
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
