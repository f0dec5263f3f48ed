// The main window's free drawing: the tools of "Tools de dessin" and of the
// actions pop-up arm their edit mode in the interaction machine; the
// attributes, the texts' pop-up and the arrangement of the selection run on
// the selection, each its own undo step.
#include "network/bulk_maintenance.h"
#include "drawing/surface_guards.h"
#include "shell/drawing_attributes.h"
#include "shell/frm_param_reseau.h"
#include "shell/menu_state.h"
#include "shell/interaction_modes.h"
#include "ui/main_window.h"

namespace pluvane {

void MainWindow::BindDrawingCommands() {
  const auto tool = [this](const char* name) {
    return [this, name] {
      if (const std::optional<InteractionResult> result = interaction_->DrawingTool(name)) {
        binder_->Apply(*result);
      }
    };
  };
  commands_["mnuSelectEditMode"] = tool("mnuSelectEditMode");
  commands_["mnuSelectSelectionMode"] = tool("mnuSelectSelectionMode");
  commands_["mnuSelectViewMode"] = tool("mnuSelectViewMode");
  commands_["mnuSelectRotationMode"] = tool("mnuSelectRotationMode");
  commands_["MnuPlaceLine"] = tool("MnuPlaceLine");
  commands_["MnuPlaceCotation"] = tool("MnuPlaceCotation");
  commands_["MnuPlacePolyLine"] = tool("MnuPlacePolyLine");
  commands_["MnuPlacePolygon"] = tool("MnuPlacePolygon");
  commands_["MnuPlaceRectangle"] = tool("MnuPlaceRectangle");
  commands_["MnuPlaceEllipse"] = tool("MnuPlaceEllipse");
  commands_["MnuPlaceArc"] = tool("MnuPlaceArc");
  commands_["MnuPlacePie"] = tool("MnuPlacePie");
  commands_["MnuPlaceChord"] = tool("MnuPlaceChord");
  commands_["MnuPlaceBezier"] = tool("MnuPlaceBezier");
  commands_["MnuPlaceTxt"] = tool("MnuPlaceTxt");
  commands_["mnuUtil_PlaceTxt"] = tool("mnuUtil_PlaceTxt");
  commands_["mnuPlaceLink"] = tool("mnuPlaceLink");
  // The actions pop-up: modes, then the shapes.
  commands_["mySELECTION"] = tool("mnuSelectSelectionMode");
  commands_["myROTATE"] = tool("mnuSelectRotationMode");
  commands_["myMOVE"] = [this] { binder_->ToolClick("MDMOVE"); };
  commands_["myDELETE"] = [this] { binder_->Apply(interaction_->Key(46, 0)); };
  commands_["myARC"] = tool("myARC");
  commands_["myCHORD"] = tool("myCHORD");
  commands_["myDIMLINE"] = tool("myDIMLINE");
  commands_["myELLIPSE"] = tool("myELLIPSE");
  commands_["myLINE"] = tool("myLINE");
  commands_["myPIE"] = tool("myPIE");
  commands_["myPOLYGON"] = tool("myPOLYGON");
  commands_["myPOLYLINE"] = tool("myPOLYLINE");
  commands_["myRECT"] = tool("myRECT");
  commands_["myTEXT"] = tool("myTEXT");

  // The attributes and the arrangement act on the selection.
  const auto attribute = [this](const char* name) {
    return [this, name] {
      RunDrawingAttribute(name, surface_, application_->state(), ui_);
      AfterCommand();
    };
  };
  commands_["MnAtFillCo"] = attribute("MnAtFillCo");
  commands_["MnAtFill"] = attribute("MnAtFill");
  commands_["MnAtLineCo"] = attribute("MnAtLineCo");
  commands_["MnAtLst"] = attribute("MnAtLst");
  commands_["MnAtlWei"] = attribute("MnAtlWei");
  commands_["TxtFormat_Font"] = attribute("TxtFormat_Font");
  commands_["TxtFOrmat_Ori"] = attribute("TxtFOrmat_Ori");
  commands_["MnTxAli"] = attribute("MnTxAli");
  commands_["mnuPopUp_txt_Police"] = attribute("mnuPopUp_txt_Police");
  commands_["mnuPopUp_txt_Co"] = attribute("mnuPopUp_txt_Co");
  commands_["mnuPopUp_txt_Size"] = attribute("mnuPopUp_txt_Size");
  commands_["mnuPopUp_txt_Ori"] = attribute("mnuPopUp_txt_Ori");
  commands_["mnuMyUtil_Group"] = attribute("mnuMyUtil_Group");
  commands_["mnuMyUtil_unGroup"] = attribute("mnuMyUtil_unGroup");
  commands_["mnuMyUtil_Upper"] = attribute("mnuMyUtil_Upper");
  commands_["mnuMyUtil_Down"] = attribute("mnuMyUtil_Down");
  commands_["myGROUP"] = attribute("myGROUP");
  commands_["myUNGROUP"] = attribute("myUNGROUP");
  commands_["myFRONT"] = attribute("myFRONT");
  commands_["myBACK"] = attribute("myBACK");
  commands_["mnuMyUtil_SetParamReg"] = [this] {
    if (!NetworkLoaded(application_->state(), ui_)) return;
    {
      UndoStep step(surface_, "Annuler : Set Param regionaux");
      mnuMyUtil_SetParamReg(surface_, application_->state(), ui_);
    }
    AfterCommand();
  };
  // Turning texts with the mouse.
  commands_["mnuPopUp_txt_Rotation"] = [this] { binder_->ToolClick(kModeRotate); };
  commands_["TxtFormat_ModeOri"] = [this] { binder_->ToolClick(kModeRotate); };
  commands_["mnuPopUp_txt_Del"] = [this] {
    {
      UndoStep step(surface_, "Annuler : Supprimer les textes");
      MnuDelTxt(surface_, ui_);
    }
    AfterCommand();
  };
}

}  // namespace pluvane
