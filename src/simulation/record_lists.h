// Three model files that list the records of one kind in search order:
// .BRN the collector reaches (iName 100), .SEC the section library (101) and
// .APP the injected hydrographs (iName "4").
#pragma once

#include <string>

#include "simulation/model_context.h"

namespace pluvane {

// Each returns the count of records written and throws AppError when its file
// cannot be written.
int GenFicBrn(ModelContext& context, const std::string& path);
int GenFicSec(ModelContext& context, const std::string& path);
int GenFicApp(ModelContext& context, const std::string& path);

}  // namespace pluvane
