// The maintenance commands of the Util and myUtil menus: identifiers and
// labels regenerated, the tags that bind links and nodes rewritten from the
// drawing, deletion of texts, of an Id or of a whole type. Each command checks
// that a network is loaded, asks what it needs, and tells what it did; a
// cancelled question changes nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/user_interface.h"
#include "drawing/surface.h"

namespace pluvane {

inline constexpr const char* kMaintenanceNoNetwork = "Un réseau doit être chargé.";
inline constexpr const char* kDeleteTextTitle = "Suppression de texte";
inline constexpr const char* kResetLabelsTitle = "Réinitialiser les libellés";

// The type number of an entry of the type lists: what stands before the colon
// (" 5 : CAC  (Collecteur circulaire)" gives 5, "42:" gives 42); 0 for a blank
// answer (every type); nothing when it is not a number.
std::optional<int> TypeOfChoice(std::string_view entry);

// The logic, apart from the questions. `i_name` 0: every type.
// Id = the type's prefix and the rank of the element in its type, then the label repaired.
int RegenerateIds(Surface& surface, int i_name);
// libell = Id.
int RegenerateLabels(Surface& surface, int i_name);
// Node labels written in capitals become lower case.
int LowerNodeLabels(Surface& surface);
// The links' sNodAm and sNodAv = the Ids of the objects at their ends.
int WriteIdInNodsOfLink(Surface& surface);
// The point elements' sNodAm = the Id of the node under them.
int WriteIdInNodsOfIgroup1(Surface& surface);
// The downstream tags of the regulators (iGroup 3) naming a link by its Id or
// its label rewritten with its `tag` ("Id" or "libell").
int WriteLinkTagInGroup3(Surface& surface, std::string_view tag);
// Deletes every object of that type; how many went.
int DeleteByIName(Surface& surface, int i_name);
// Deletes the selected texts one at a time; how many went.
int DeleteSelectedTexts(Surface& surface);

// The menu commands.
void mnuMyUtil_IdRegen(Surface& surface, UserInterface& ui);
void mnuMyUtil_WriteIdI2LibInNods(Surface& surface, UserInterface& ui);
void mnuUtil_MajObjByIname(Surface& surface, UserInterface& ui);
void mnuMyUtil_WriteNodsLib2lib(Surface& surface, UserInterface& ui);
void mnuMyUtil_Nod_iLinkUpdate(Surface& surface, UserInterface& ui);
void mnuMyUtil_WriteIdInNods(Surface& surface, UserInterface& ui);
void mnuMyUtil_WriteLinkIdInGroup3(Surface& surface, UserInterface& ui);
void mnuMyUtil_WriteLinkLibInGroup3(Surface& surface, UserInterface& ui);
void mnuMyUtil_Tst1(Surface& surface, UserInterface& ui);
void mnuMyUtil_Tst2(Surface& surface, UserInterface& ui);
void MnuDelTxt(Surface& surface, UserInterface& ui);

}  // namespace pluvane
