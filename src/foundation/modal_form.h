// How a form opens another one modally: the caller hands the new form's
// controller to the host, which shows it and returns once it is closed. The
// desktop program runs a window loop; tests script the form in place.
#pragma once

#include <functional>

#include "foundation/form_controller.h"

namespace pluvane {

using ShowModal = std::function<void(FormController& form)>;

}  // namespace pluvane
