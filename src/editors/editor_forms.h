// The element editors by form name ("frmCac", "frmBV"...): the main window
// opens the one that the editing of an element or a menu names.
#pragma once

#include <memory>
#include <string>

#include "editors/editor_context.h"
#include "foundation/form_controller.h"

namespace pluvane {

// The form of that name on the surface's current object; null when no editor
// has that name.
std::unique_ptr<FormController> MakeEditorForm(const std::string& name, EditorContext& context);

}  // namespace pluvane
