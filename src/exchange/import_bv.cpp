// ImportBV: the catchment centroids of a table with their hydrologic data.
#include <utility>

#include "exchange/fld_file.h"
#include "exchange/import_points.h"
#include "foundation/numbers.h"
#include "network/catalogue.h"

namespace pluvane {

namespace {

// The columns after the label, X and Y.
enum BVColumn { kArea = 4, kLength = 5, kSlope = 6, kImpervious = 7 };

}  // namespace

int ImportBV(ImportTarget target, const std::string& data_file, const std::string& fld_file,
             const std::string& separator) {
  // A catchment is drawn twice as large as a node.
  PointImport what{.i_name = kINameBV,
                   .symbols = {"BV.wmf", "Nod.wmf"},
                   .undo_caption = "Annuler : Importer des BV",
                   .id_prefix = "BV_",
                   .status_name = "BV",
                   .half_factor = 2,
                   .pump_every = 50,
                   .keep_plain_labels = true};
  what.more_tags = [](Surface& surface, const std::vector<int>& columns,
                      const std::vector<std::string>& fields, int count) {
    for (const auto& [column, tag] : {std::pair{kArea, "S"}, std::pair{kLength, "L"},
                                      std::pair{kSlope, "m"}, std::pair{kImpervious, "ci"}}) {
      const int at = FldColumn(columns, column);
      if (count >= at) surface.SetObjTag(tag, Val(Field(fields, at)));
    }
  };
  return ImportPointTable(target, data_file, fld_file, separator, what);
}

}  // namespace pluvane
