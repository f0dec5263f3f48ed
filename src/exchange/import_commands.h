// The menu commands of the imports (MnuFi_Import_Txt_* and MnuFi_Import_Mif_*):
// the checks, the choice of the file, the question of the node import on an
// uncalibrated drawing, the column dialog, then the importer.
#pragma once

#include <functional>
#include <string>

#include "exchange/kalder_import.h"
#include "foundation/form_controller.h"

namespace pluvane {

// The kinds of table: "NOD", "BV", "CI", "PF", "PO".
enum class ImportSource { kText, kMif };

struct ImportSession {
  Surface& surface;
  NetworkState& state;
  UserInterface& ui;
  // Shows a form modally until it closes.
  std::function<void(FormController&)> open_form;
};

// The checks that come before any import of the kind: a network must be
// loaded, and for catchments and collectors it must hold nodes. False after
// the message.
bool CheckImportPreconditions(Surface& surface, const NetworkState& state, UserInterface& ui,
                              const std::string& kind);

// The table the import reads for the file chosen: the file itself for a text
// source, the .Mid beside a .Mif (found case-blind; the name built with
// ".Mid", ".MID" for collectors, when there is none).
std::string ImportDataFile(const std::string& chosen, ImportSource source, const std::string& kind);
// The .Fld beside the table.
std::string FldFileOf(const std::string& data_file);

// The question of the node import when no calibration point stands: true to
// go on (answer "2").
bool AskNodeImportCalibration(Surface& surface, UserInterface& ui);

// The whole command. Returns the count imported, or -1 when nothing was
// imported (refused, cancelled).
int RunImportCommand(ImportSession& session, const std::string& kind, ImportSource source);

void MnuFi_Import_Txt_Nod(ImportSession& session);
void MnuFi_Import_Txt_BV(ImportSession& session);
void MnuFi_Import_Txt_Cana_CI(ImportSession& session);
void MnuFi_Import_Txt_Cana_PF(ImportSession& session);
void MnuFi_Import_Txt_Cana_PO(ImportSession& session);
void MnuFi_Import_Mif_Nod(ImportSession& session);
void MnuFi_Import_Mif_BV(ImportSession& session);
void MnuFi_Import_Mif_Cac_CI(ImportSession& session);
void MnuFi_Import_Mif_Cac_PF(ImportSession& session);
void MnuFi_Import_Mif_Cac_PO(ImportSession& session);

}  // namespace pluvane
