// The free drawing of the main window: when the surface's EditMode is a shape
// number, the mouse draws that shape instead of selecting. Lines, dimension
// lines, rectangles, ellipses, arcs, pies and chords are dragged from one
// corner to the other; polylines, polygons and Bézier curves take a vertex a
// click and end on a double click or Enter; a text is a click and the text
// typed; a free link joins the two objects clicked one after the other. Edit
// mode 13 turns the selection about its centre by the angle the pointer
// sweeps. Each shape placed, and each turn, is one undo step. The shapes are
// plain objects of the drawing, with the defaults' style and no tags.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "drawing/drawing_settings.h"
#include "drawing/surface.h"
#include "foundation/user_interface.h"

namespace pluvane {

// Title and prompt of the text typed for a text placed on the drawing.
inline constexpr const char* kPlaceTextTitle = "Placer un texte";
inline constexpr const char* kPlaceTextPrompt = "Texte à placer :";
// Height of a new text on the screen, in pixels at the zoom of its placing.
inline constexpr double kTextPixels = 12;

inline constexpr const char* kDragStatus =
    "Tirez du premier coin jusqu'au coin opposé, bouton gauche enfoncé.";
inline constexpr const char* kVertexStatus =
    "Cliquez chaque sommet ; double-cliquez ou tapez <Entrée> pour finir, <Echap> pour annuler.";
inline constexpr const char* kTextStatus = "Cliquez à l'endroit du texte.";
inline constexpr const char* kFreeLinkStatus = "Cliquez le premier objet, puis le second.";
inline constexpr const char* kTurnStatus =
    "Tirez autour de la sélection pour la faire tourner.";

// What the view draws while a shape is being drawn: the shape's kind and its
// logical points so far; the pointer is the last point.
struct RubberShape {
  int kind = 0;
  std::vector<std::pair<double, double>> points;
};

// The edit mode a drawing tool of the menus sets, by the menu name (the
// menus of "Tools de dessin" and the shapes of the actions pop-up); nullopt
// for another name.
std::optional<int> DrawingEditModeOf(const std::string& menu);

// What the status line says when a drawing tool is picked ("" for none).
std::string DrawingToolStatus(int edit_mode);

// True for the edit modes that draw a shape, a text or a free link.
bool IsDrawingEditMode(int edit_mode);

class ShapeDrawing {
 public:
  ShapeDrawing(Surface& surface, const DrawingSettings& settings, UserInterface& ui)
      : surface_(surface), settings_(settings), ui_(ui) {}

  // Whether a shape is being drawn (a drag, vertices, a first link end or a turn).
  bool Pending() const { return pending_; }
  // Forgets what was being drawn.
  void Cancel();

  // The mouse in a drawing edit mode (`hit` is the object under the pointer).
  // Each returns true when something was placed or changed on the drawing.
  bool Press(int button, int hit, double x, double y);
  bool Release(int button, double x, double y);
  // A double click ends a polyline, a polygon or a Bézier curve.
  bool DoubleClick();
  // Enter ends a polyline, a polygon or a Bézier curve.
  bool Enter();
  // Turns only texts (the texts' pop-up), or every object that can turn.
  void SetTextsOnly(bool texts_only) { texts_only_ = texts_only; }
  // Dragged boxes square, of the larger side (a circle for the radius of action).
  void SetSquare(bool square) { square_ = square; }
  // The object that the last placement made.
  int LastPlaced() const { return last_placed_; }

  std::optional<RubberShape> Rubber() const;

  // The Bézier control points of a smooth curve through the points: 3(n-1)+1
  // points for n points.
  static std::vector<Point> SmoothBezier(const std::vector<Point>& through);

 private:
  bool PlaceDragged(int edit_mode, Point from, Point to);
  bool PlaceVertices();
  bool PlaceText(Point at);
  bool Turn(double x, double y);

  Surface& surface_;
  const DrawingSettings& settings_;
  UserInterface& ui_;
  bool pending_ = false;
  int mode_ = 0;  // the edit mode of what is pending
  std::vector<Point> points_;
  int first_end_ = 0;
  double centre_x_ = 0, centre_y_ = 0;
  double start_x_ = 0, start_y_ = 0;
  bool texts_only_ = false;
  bool square_ = false;
  int last_placed_ = 0;
};

}  // namespace pluvane
