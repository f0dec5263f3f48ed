#include "shell/drawing_attributes.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>

#include "drawing/surface_guards.h"
#include "drawing/surface_helpers.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace pluvane {

namespace {

constexpr const char* kFillPrompt =
    "Remplissage (0 plein, 1 aucun, 2 horizontal, 3 vertical, 4 diagonal /, 5 diagonal \\, "
    "6 croisé, 7 croisé en diagonale) :";
constexpr const char* kLineStylePrompt =
    "Style de trait (0 plein, 1 pointillé, 2 tirets, 3 tiret-point, 4 tiret-point-point, "
    "5 invisible) :";
constexpr const char* kLineWidthPrompt =
    "Epaisseur de trait (en pixels, négative en unités du dessin) :";
constexpr const char* kAnglePrompt = "Orientation du texte (en degrés) :";
constexpr const char* kAlignPrompt = "Alignement du texte (0 à gauche, 1 à droite, 2 centré) :";
constexpr const char* kSizePrompt = "Taille du texte (en points) :";
constexpr const char* kNotANumber = "Rentrez un nombre.";

bool TakesLineAndFill(int kind) {
  return kind == kKindLine || kind == kKindPolyline || kind == kKindPolygon ||
         kind == kKindRectangle || kind == kKindEllipse;
}

std::vector<int> SelectedOfKind(Surface& surface, bool (*wanted)(int)) {
  std::vector<int> out;
  for (int n : SelectedObjects(surface)) {
    const Shape* shape = surface.ObjectShape(n);
    if (shape != nullptr && wanted(shape->kind)) out.push_back(n);
  }
  return out;
}

// The number typed, asked with the present value; nullopt when the user
// cancelled or typed no number (said so).
std::optional<double> AskNumber(UserInterface& ui, const char* prompt, const char* title,
                                double present) {
  const std::optional<std::string> answer = ui.AskText(prompt, title, NumToText(present));
  if (!answer) return std::nullopt;
  const std::string text = Trim(*answer);
  const bool number = !text.empty() && (std::isdigit(static_cast<unsigned char>(text[0])) ||
                                        ((text[0] == '-' || text[0] == '+' || text[0] == '.') &&
                                         text.size() > 1));
  if (!number) {
    ui.ShowMessage(kNotANumber, title, MessageIcon::kExclamation);
    return std::nullopt;
  }
  return Val(text);
}

// A whole number from `low` to `high`, asked the same way.
std::optional<int> AskChoice(UserInterface& ui, const char* prompt, const char* title,
                             int present, int low, int high) {
  const std::optional<double> value = AskNumber(ui, prompt, title, present);
  if (!value) return std::nullopt;
  if (*value != std::floor(*value) || *value < low || *value > high) {
    ui.ShowMessage("Rentrez un nombre de " + std::to_string(low) + " à " + std::to_string(high) +
                       ".",
                   title, MessageIcon::kExclamation);
    return std::nullopt;
  }
  return static_cast<int>(*value);
}

// Logical units of a pixel at the present zoom: text sizes in points are
// pixels on the screen as it stands.
double PerPixel(const Surface& surface, const DrawingSettings& settings) {
  return surface.ViewHeight() / std::max<std::int32_t>(settings.ClientHeight, 1);
}

// Writes to every object of the list, as one undo step.
template <typename Write>
bool WriteEach(Surface& surface, const std::vector<int>& objects, const std::string& caption,
               Write write) {
  CursorKeeper keep(surface);
  UndoStep step(surface, "Annuler : " + caption);
  for (int n : objects) {
    surface.SetCurrentObject(n);
    write();
  }
  surface.Refresh();
  return true;
}

bool ShapeAttribute(const std::string& menu, Surface& surface, UserInterface& ui) {
  const std::vector<int> shapes = SelectedShapes(surface);
  if (shapes.empty()) {
    ui.ShowMessage(kNoShapeSelected, kShapeAttributeTitle, MessageIcon::kExclamation);
    return false;
  }
  const Shape& first = *surface.ObjectShape(shapes.front());
  if (menu == "MnAtFillCo") {
    const std::optional<std::int32_t> colour = ui.ChooseColour(first.fill_color);
    if (!colour) return false;
    return WriteEach(surface, shapes, "Couleur de remplissage", [&] {
      surface.SetFillColor(*colour);
      // A colour chosen for a shape without fill is meant to be seen.
      if (surface.FillStyle() == 1) surface.SetFillStyle(0);
    });
  }
  if (menu == "MnAtLineCo") {
    const std::optional<std::int32_t> colour = ui.ChooseColour(first.line_color);
    if (!colour) return false;
    return WriteEach(surface, shapes, "Couleur de trait",
                     [&] { surface.SetLineColor(*colour); });
  }
  if (menu == "MnAtFill") {
    const auto style = AskChoice(ui, kFillPrompt, kShapeAttributeTitle, first.fill_style, 0, 7);
    if (!style) return false;
    return WriteEach(surface, shapes, "Remplissage", [&] { surface.SetFillStyle(*style); });
  }
  if (menu == "MnAtLst") {
    const auto style =
        AskChoice(ui, kLineStylePrompt, kShapeAttributeTitle, first.line_style, 0, 5);
    if (!style) return false;
    return WriteEach(surface, shapes, "Style de trait", [&] { surface.SetLineStyle(*style); });
  }
  // MnAtlWei
  const auto width = AskNumber(ui, kLineWidthPrompt, kShapeAttributeTitle, first.line_width);
  if (!width) return false;
  return WriteEach(surface, shapes, "Epaisseur de trait", [&] { surface.SetLineWidth(*width); });
}

bool TextAttribute(const std::string& menu, Surface& surface, const DrawingSettings& settings,
                   UserInterface& ui) {
  const std::vector<int> texts = SelectedTexts(surface);
  if (texts.empty()) {
    ui.ShowMessage(kNoTextSelected, kTextFormatTitle, MessageIcon::kExclamation);
    return false;
  }
  const TextFormat& first = surface.ObjectShape(texts.front())->text;
  const double per_pixel = PerPixel(surface, settings);
  const double points = first.size < 0 ? std::round(-first.size / per_pixel) : first.size;
  if (menu == "TxtFormat_Font" || menu == "mnuPopUp_txt_Police") {
    FontChoice initial{first.font.empty() ? "Arial" : first.font, points > 0 ? points : 10,
                       first.bold, first.italic, first.underline, first.strike, first.color};
    const std::optional<FontChoice> font = ui.ChooseFont(initial);
    if (!font) return false;
    return WriteEach(surface, texts, "Police", [&] {
      surface.SetTextFontName(font->name);
      surface.SetTextSize(-std::max(1.0, std::round(font->size * per_pixel)));
      surface.SetTextBold(font->bold);
      surface.SetTextItalic(font->italic);
      surface.SetTextUnderline(font->underline);
      surface.SetTextStrike(font->strike);
    });
  }
  if (menu == "mnuPopUp_txt_Co") {
    const std::optional<std::int32_t> colour = ui.ChooseColour(first.color);
    if (!colour) return false;
    return WriteEach(surface, texts, "Couleur du texte", [&] { surface.SetTextColor(*colour); });
  }
  if (menu == "mnuPopUp_txt_Size") {
    const std::optional<double> size = AskNumber(ui, kSizePrompt, kTextFormatTitle, points);
    if (!size) return false;
    if (*size <= 0) {
      ui.ShowMessage("Rentrez une taille positive.", kTextFormatTitle, MessageIcon::kExclamation);
      return false;
    }
    return WriteEach(surface, texts, "Taille du texte",
                     [&] { surface.SetTextSize(-std::max(1.0, std::round(*size * per_pixel))); });
  }
  if (menu == "MnTxAli") {
    const auto align = AskChoice(ui, kAlignPrompt, kTextFormatTitle, first.align, 0, 2);
    if (!align) return false;
    return WriteEach(surface, texts, "Alignement", [&] { surface.SetTextAlign(*align); });
  }
  // TxtFOrmat_Ori, mnuPopUp_txt_Ori
  const std::optional<double> angle = AskNumber(ui, kAnglePrompt, kTextFormatTitle, first.angle);
  if (!angle) return false;
  double a = std::fmod(*angle, 360.0);
  if (a < 0) a += 360;
  return WriteEach(surface, texts, "Orientation", [&] { surface.SetTextAngle(a); });
}

bool Arrangement(const std::string& menu, Surface& surface, UserInterface& ui) {
  if (surface.ObjectCount(kSelection) == 0) {
    ui.ShowMessage(kNoSelection, kArrangeTitle, MessageIcon::kExclamation);
    return false;
  }
  CursorKeeper keep(surface);
  int action = 0;
  std::string caption = "Grouper";
  if (menu == "mnuMyUtil_unGroup" || menu == "myUNGROUP") {
    action = 1, caption = "Dégrouper";
  } else if (menu == "mnuMyUtil_Upper" || menu == "myFRONT") {
    action = 3, caption = "Premier plan";
  } else if (menu == "mnuMyUtil_Down" || menu == "myBACK") {
    action = 2, caption = "Arrière plan";
  }
  UndoStep step(surface, "Annuler : " + caption);
  surface.SetCurrentObject(kSelection);
  const bool done = surface.Arrange(action);
  surface.Refresh();
  return done;
}

bool IsShapeAttribute(const std::string& menu) {
  return menu == "MnAtFillCo" || menu == "MnAtFill" || menu == "MnAtLineCo" ||
         menu == "MnAtLst" || menu == "MnAtlWei";
}

bool IsTextAttribute(const std::string& menu) {
  return menu == "TxtFormat_Font" || menu == "TxtFOrmat_Ori" || menu == "MnTxAli" ||
         menu == "mnuPopUp_txt_Police" || menu == "mnuPopUp_txt_Co" ||
         menu == "mnuPopUp_txt_Size" || menu == "mnuPopUp_txt_Ori";
}

bool IsArrangement(const std::string& menu) {
  return menu == "mnuMyUtil_Group" || menu == "mnuMyUtil_unGroup" || menu == "mnuMyUtil_Upper" ||
         menu == "mnuMyUtil_Down" || menu == "myGROUP" || menu == "myUNGROUP" ||
         menu == "myFRONT" || menu == "myBACK";
}

}  // namespace

std::vector<int> SelectedShapes(Surface& surface) {
  return SelectedOfKind(surface, TakesLineAndFill);
}

std::vector<int> SelectedTexts(Surface& surface) {
  return SelectedOfKind(surface, [](int kind) { return kind == kKindText; });
}

bool IsDrawingAttribute(const std::string& menu) {
  return IsShapeAttribute(menu) || IsTextAttribute(menu) || IsArrangement(menu);
}

bool RunDrawingAttribute(const std::string& menu, Surface& surface,
                         const DrawingSettings& settings, UserInterface& ui) {
  if (IsShapeAttribute(menu)) return ShapeAttribute(menu, surface, ui);
  if (IsTextAttribute(menu)) return TextAttribute(menu, surface, settings, ui);
  if (IsArrangement(menu)) return Arrangement(menu, surface, ui);
  return false;
}

}  // namespace pluvane
