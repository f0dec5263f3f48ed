// The drawing surface: the network's only database. Every element, library
// record and parameter record is an object of the drawing carrying ordered
// text tags. All writing, and the reading of the cursor API, goes through one
// cursor, CurrentObject, which holds an object number (above 10) or a
// pseudo-object: 1 all objects, 2 the selection, 4 the defaults for new
// objects, 5 the page. The const reads take an object number instead and
// leave the cursor alone.
//
// Object numbers are never reused while the drawing is open, and walks follow
// the order of creation, which is also the order of the numbers. Every change
// is recorded in an undo journal. This class knows no widget: the Qt view
// paints it, converts pixels and listens for Refresh.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <absl/container/flat_hash_map.h>

#include "drawing/edit_modes.h"
#include "drawing/surface_journal.h"
#include "drawing/surface_object.h"
#include "drawing/tag_match.h"
#include "drawing/id_holders.h"
#include "drawing/tag_names.h"

namespace pluvane {

inline constexpr int kAllObjects = 1;
inline constexpr int kSelection = 2;
inline constexpr int kDefaults = 4;
inline constexpr int kPage = 5;
inline constexpr int kFirstObjectNumber = 11;
// Format of SaveFile for the native network file.
inline constexpr int kNativeFormat = 10;
// Clipboard type of copied objects.
inline constexpr const char* kClipboardType = "application/x-pluvane-xpr";

class Surface {
 public:
  Surface();
  ~Surface();
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  // --- Cursor and tags ---
  // The current object or pseudo-object, 0 if none. Writing a number that is
  // neither a pseudo-object nor an object of the drawing keeps the cursor as
  // it was. A deleted current object stays current and reads as missing.
  int CurrentObject() const { return current_; }
  void SetCurrentObject(int number);
  // Tag of the current object; "" when missing or on a pseudo-object. Writing
  // creates a missing tag at the end; on 2 it writes to every selected object,
  // on 1 to every object.
  std::string ObjTag(std::string_view name) const;
  void SetObjTag(std::string_view name, std::string_view value);
  void SetObjTag(std::string_view name, const char* value) {
    SetObjTag(name, std::string_view(value));
  }
  void SetObjTag(std::string_view name, const std::string& value) {
    SetObjTag(name, std::string_view(value));
  }
  void SetObjTag(std::string_view name, double value);
  void SetObjTag(std::string_view name, int value) { SetObjTag(name, static_cast<double>(value)); }
  // Searches in creation order for an object whose tag equals `value` (a number
  // matches a text that reads as that number). `first` starts at the first
  // object, else the search goes on after the current object. A hit becomes
  // current and is returned; a miss returns 0 and leaves the page current.
  int FindByTag(std::string_view tag_name, const TagMatch& value, bool first);
  // First object whose Id is `id` in creation order, 0 if none, from the index
  // of Ids. The cursor does not move.
  int FindById(std::string_view id) const;
  // How many objects have that Id, from the same index.
  int CountById(std::string_view id) const;
  // Walks of all objects, and of the selection. Each makes the object found
  // current and returns it; after the last, 0 is returned and the page (or
  // the selection) is current.
  int FirstObject();
  int NextObject();
  int FirstSelected();
  int NextSelected();
  // 2: selected objects; 1 and 5: all objects of the page.
  int ObjectCount(int list) const;
  int ObjectKind() const;
  void SetObjectKind(int kind);
  int ObjTagCount() const;
  void SetObjTagCount(int count);  // truncates, or adds tags with empty names
  std::string ObjTagName(int index) const;
  void SetObjTagName(int index, std::string_view name);
  std::string ObjTagValue(int index) const;
  void SetObjTagValue(int index, std::string_view value);
  void SetObjTagValue(int index, double value);
  int NodeLinkCount() const;
  // The links bound to an object, in creation order.
  std::vector<int> LinksOf(int number) const;

  // --- Const reads ---
  // Reads by object number beside the cursor API: none of them moves the
  // cursor, and each answers for the drawing as it stands, an open undo step
  // included. A number that is no object of the drawing (0, a pseudo-object,
  // a deleted object) reads as an object without tags, of kind 0.
  bool Exists(int number) const { return Object(number) != nullptr; }
  // The value of the first tag of that name; empty when the tag or the
  // object is missing. The text stays valid until the drawing changes.
  std::string_view TagOf(int number, std::string_view name) const;
  int KindOf(int number) const;
  // Each tag of an object in its order, as name and value.
  void ForEachTagOf(int number,
                    const std::function<void(std::string_view, std::string_view)>& visit) const;
  // The object at end 0 or 1 of a link; 0 when the number is no link.
  int LinkEndOf(int number, int end) const;
  // The objects of the drawing in creation order, for a range-for:
  // `for (int n : surface.Objects())`. The drawing must not change meanwhile.
  class ObjectRange;
  ObjectRange Objects() const;
  // The first object after `after` (0 starts at the first object), in
  // creation order, whose first tag of that name matches; 0 if none.
  int FindByTagFrom(std::string_view name, const TagMatch& value, int after = 0) const;
  // Every such object in creation order.
  std::vector<int> FindAllByTag(std::string_view name, const TagMatch& value) const;
  int CountByTag(std::string_view name, const TagMatch& value) const;
  // Every object, in creation order, whose first tag of that name has a value
  // that `keep` accepts; `keep` is asked once for each distinct value when
  // the values are few (kinds, groups).
  std::vector<int> FindAllWhere(std::string_view name,
                                const std::function<bool(std::string_view)>& keep) const;
  // The same, each object with that value (which lives as long as the
  // drawing does not change).
  std::vector<std::pair<int, std::string_view>> FindAllWhereWithValues(
      std::string_view name, const std::function<bool(std::string_view)>& keep) const;

  // --- Selection ---
  bool Selected() const;
  void SetSelected(bool selected);
  int SelectAll();
  void DeselectAll();
  // Replaces the selection by the visible objects touching the rectangle.
  int SelectInRect(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom,
                   int flags = 0);
  // The topmost visible object under a logical point; lines (and links) are
  // hit within `tolerance` of their segments. It becomes current; 0 if none.
  int HitTest(double x, double y, double tolerance = 0);
  bool SelectionEnabled() const { return selection_enabled_; }
  void SetSelectionEnabled(bool enabled) { selection_enabled_ = enabled; }
  int SelectionAllowed() const { return selection_allowed_; }
  void SetSelectionAllowed(int mask) { selection_allowed_ = mask; }

  // --- Geometry ---
  std::int32_t ObjLeft() const;
  std::int32_t ObjTop() const;
  std::int32_t ObjRight() const;
  std::int32_t ObjBottom() const;
  void GetObjectBounds(std::int32_t& left, std::int32_t& top, std::int32_t& right,
                       std::int32_t& bottom) const;
  void SetObjectBounds(std::int32_t left, std::int32_t top, std::int32_t right,
                       std::int32_t bottom);
  // Moves the current object (or the selection, or all) by a logical offset,
  // and the ends of the links bound to what moved.
  void MoveObject(std::int32_t dx, std::int32_t dy);
  int LinkEndObject(int end) const;
  // Markers of a link at position 0, 1 (ends) or 4 (middle).
  int LinkEndMarker(int position) const;
  void SetLinkEndMarker(int position, int shape);
  double LinkMarkerWidth(int position) const;
  void SetLinkMarkerWidth(int position, double width);
  double LinkMarkerHeight(int position) const;
  void SetLinkMarkerHeight(int position, double height);
  std::int32_t LinkMarkerColor(int position) const;
  void SetLinkMarkerColor(int position, std::int32_t color);
  std::int32_t LinkMarkerFill(int position) const;
  void SetLinkMarkerFill(int position, std::int32_t fill);
  // Vertex `position` (from 1, the first end) of a link. (0, 0) at a position
  // from 2 drops the inner vertices from there, keeping the last end; another
  // point sets an inner vertex, or adds one before the last end when the
  // position is that end's.
  void SetLinkPoint(int position, std::int32_t x, std::int32_t y);
  // Vertices of a polyline, polygon or link (a link's first and last are its ends).
  std::vector<Point> ObjectPoints() const;
  void SetObjectPoints(const std::vector<Point>& points);

  // --- Creation and deletion ---
  int AddObject(int kind, std::int32_t left, std::int32_t top, std::int32_t right,
                std::int32_t bottom);
  // At the centre of the view, of size 0, to be placed by SetObjectBounds.
  int AddObjectAtDefaults(int kind);
  // A link from object1 (end 0) to object2 (end 1), with the defaults' style.
  int AddLink(int object1, int object2);
  // `which`: an object number, 2 the selection, 4 the current object, 1 all.
  // The links bound to a deleted object go with it. Returns how many went.
  int DeleteObject(int which);
  // Removes every object and forgets the undo journal.
  void ClearDrawing();
  bool Redraw() const { return redraw_; }
  void SetRedraw(bool redraw);
  // Tells the listeners (the views) that the drawing changed.
  void Refresh();
  // Returns an id for RemoveListener.
  int AddListener(std::function<void()> listener);
  void RemoveListener(int id);

  // --- Style, on the current object, the selection, all, or the defaults ---
  std::int32_t LineColor() const;
  void SetLineColor(std::int32_t color);
  double LineWidth() const;
  void SetLineWidth(double width);
  int LineStyle() const;
  void SetLineStyle(int style);
  std::int32_t FillColor() const;
  void SetFillColor(std::int32_t color);
  int FillStyle() const;
  void SetFillStyle(int style);
  std::string ObjectPicture() const;
  void SetObjectPicture(std::string_view file);
  bool ObjectVisible() const;
  void SetObjectVisible(bool visible);
  // 0 groups the selection, 1 ungroups, 2 sends behind, 3 brings in front, 10
  // (after a picture was loaded) does nothing. False when nothing was done.
  bool Arrange(int action);
  std::string TextString() const;
  void SetTextString(std::string_view text);
  std::string TextFontName() const;
  void SetTextFontName(std::string_view font);
  double TextSize() const;
  void SetTextSize(double size);
  bool TextBold() const;
  void SetTextBold(bool on);
  bool TextItalic() const;
  void SetTextItalic(bool on);
  bool TextUnderline() const;
  void SetTextUnderline(bool on);
  bool TextStrike() const;
  void SetTextStrike(bool on);
  std::int32_t TextColor() const;
  void SetTextColor(std::int32_t color);
  double TextAngle() const;
  void SetTextAngle(double angle);
  int TextAlign() const;
  void SetTextAlign(int align);
  bool TextFillBack() const;
  void SetTextFillBack(bool on);
  // The whole shape of an object (for the view), nullptr if there is none.
  const Shape* ObjectShape(int number) const;
  // For painters, which must not move the cursor: the next object after a
  // number in creation order (0 if none; start from 0), and its selection.
  int NextObjectNumber(int after) const { return NextLive(after); }
  bool IsSelected(int number) const;
  // Grows at every change of an object's existence or shape, so that a view
  // knows when its spatial index is stale. Selection and tags leave it.
  std::uint64_t ShapeRevision() const { return shape_revision_; }

  // --- Interaction state (not recorded) ---
  int EditMode() const { return edit_mode_; }
  void SetEditMode(int mode) { edit_mode_ = mode; }
  int MousePointerKind() const { return mouse_pointer_kind_; }
  void SetMousePointerKind(int kind) { mouse_pointer_kind_ = kind; }
  int MouseIcon() const { return mouse_icon_; }
  void SetMouseIcon(int resource) { mouse_icon_ = resource; }

  // --- View and logical space ---
  double ViewLeft() const { return view_left_; }
  double ViewTop() const { return view_top_; }
  double ViewWidth() const { return view_width_; }
  double ViewHeight() const { return view_height_; }
  void SetViewLeft(double value) { view_left_ = value; }
  void SetViewTop(double value) { view_top_ = value; }
  void SetViewWidth(double value) { view_width_ = value; }
  void SetViewHeight(double value) { view_height_ = value; }
  std::int32_t LogicLeft() const { return page_.logic_left; }
  std::int32_t LogicTop() const { return page_.logic_top; }
  std::int32_t LogicWidth() const { return page_.logic_width; }
  std::int32_t LogicHeight() const { return page_.logic_height; }
  void SetLogicLeft(std::int32_t value);
  void SetLogicTop(std::int32_t value);
  void SetLogicWidth(std::int32_t value);
  void SetLogicHeight(std::int32_t value);
  // Sets the logical extent; flag 16384 fits the view to it, else the view stays.
  void SetScale(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height,
                int flags);
  int AutoScale() const { return auto_scale_; }
  void SetAutoScale(int mode);  // 3 fits the view to the logical extent
  std::int32_t PageColor() const { return page_.page_color; }
  void SetPageColor(std::int32_t color);
  std::int32_t BackColor1() const { return page_.back_color1; }
  void SetBackColor1(std::int32_t color);
  std::int32_t BackColor2() const { return page_.back_color2; }
  void SetBackColor2(std::int32_t color);
  int GridOn() const { return page_.grid_on; }
  void SetGridOn(int mode);
  std::int32_t GridStepX() const { return page_.grid_step_x; }
  void SetGridStepX(std::int32_t step);
  std::int32_t GridStepY() const { return page_.grid_step_y; }
  void SetGridStepY(std::int32_t step);
  int ScrollBars() const { return page_.scroll_bars; }
  void SetScrollBars(int mode);
  const std::string& BackgroundPicture() const { return page_.background_picture; }
  void SetBackgroundPicture(std::string_view file);
  int BackgroundMode() const { return page_.background_mode; }
  void SetBackgroundMode(int mode);
  double BackgroundScale() const { return page_.background_scale; }
  void SetBackgroundScale(double scale);

  // --- Files and clipboard ---
  // Mode 0 replaces the drawing by the file's and forgets the journal; mode 2
  // adds the file's objects, which arrive as the selection; mode 1 makes the
  // file the defaults' picture. False, with the drawing as it was, when the
  // file cannot be read or is not a network file.
  bool LoadFile(const std::string& path, int mode);
  // Format 10 writes the native network file, through a temporary file in the
  // same folder renamed over the old one. Pictures are the view's business:
  // other formats give false here.
  bool SaveFile(const std::string& path, int format, int flag = 0);
  int FileFormat() const { return file_format_; }
  // The selected objects (mode 0) or all objects (mode 1) as the text of the
  // clipboard type kClipboardType. Links go along when both ends do.
  std::string CopySelection(int mode) const;
  // Adds objects copied by CopySelection, which arrive as the selection.
  // 0 for an empty text, 1 when it was in our format, 2 otherwise.
  int PasteClipboard(std::string_view text);

  // --- Undo journal ---
  // Brackets one user command; nested brackets join the outer one. Changes
  // made outside any bracket form one step per operation.
  void BeginStep(std::string_view label);
  void EndStep();
  bool Undo();
  bool Redo();
  bool CanUndo() const { return journal_.CanUndo(); }
  bool CanRedo() const { return journal_.CanRedo(); }
  const std::string& UndoLabel() const { return journal_.UndoLabel(); }
  const std::string& RedoLabel() const { return journal_.RedoLabel(); }

  const TagNames& tag_names() const { return names_; }

 private:
  class Step;

  SurfaceObject* Object(int number);
  const SurfaceObject* Object(int number) const;
  SurfaceObject* CurrentReal() { return Object(current_); }
  const SurfaceObject* CurrentReal() const { return Object(current_); }
  // The objects a write goes to: current, selection (2) or all (1).
  std::vector<int> WriteTargets() const;
  // The shape a style read comes from: current object or defaults.
  const Shape& ReadShape() const;
  std::size_t SlotOf(int number) const { return static_cast<std::size_t>(number - base_); }
  int NumberOfSlot(std::size_t slot) const { return base_ + static_cast<int>(slot); }
  int NextLive(int after) const;  // next object after a number, 0 if none
  int NextSelectedAfter(int after) const;
  // The value of an object's first tag of that interned name, none if it has no such tag.
  static std::optional<std::string_view> FirstTag(const SurfaceObject& object,
                                                  std::uint32_t name);

  bool Fresh(const SurfaceObject& object) const;
  // Recorded changes; every change of the drawing goes through these.
  int InsertNew(SurfaceObject object);
  void Remove(int number);
  template <typename Edit>
  void EditShape(int number, Edit edit);
  template <typename Edit>
  void EditStyle(Edit edit);
  template <typename Edit>
  void EditPage(Edit edit);
  void WriteTag(int number, std::uint32_t name, std::string_view value);
  void WriteTagValue(int number, std::size_t position, std::string_view value);
  void WriteTagName(int number, std::size_t position, std::uint32_t name);
  void ReplaceTagTail(int number, std::size_t position, TagBlock tail);
  void FollowLinks(int number);
  void PlaceLinkEnds(int link);
  void ShiftShape(int number, std::int32_t dx, std::int32_t dy);
  int DeleteWithLinks(const std::vector<int>& numbers);
  bool Group();
  bool Ungroup();
  void Restack(bool to_front);
  // Adds objects, numbered in their order and stacked above what is there.
  // Links are bound by position among them, or by object number.
  std::vector<int> InsertBatch(ObjectBatch objects, bool ends_by_position);
  std::vector<int> InsertBatch(std::vector<SurfaceObject> objects, bool ends_by_position);
  int AddObjects(ObjectBatch objects);  // as the new selection
  void Mark(SurfaceObject& object, bool selected);

  // Applying a record swaps its content with the drawing's.
  void Apply(JournalRecord& record);
  // Places an object; a link is also bound to its ends unless `bind_ends` is
  // false (BindBatchLinks then binds a whole batch at once).
  void Attach(int number, std::unique_ptr<SurfaceObject> object, bool bind_ends = true);
  void BindBatchLinks(int first, int count);
  std::unique_ptr<SurfaceObject> Detach(int number);
  void IndexIds(int number, const SurfaceObject& object, bool add);
  std::optional<std::string_view> FirstId(const SurfaceObject& object) const;
  std::optional<std::string> IdOf(const SurfaceObject& object) const;
  void ReindexAround(int number, const std::optional<std::string>& old_id);
  // Applies a change made as a record, and keeps the record for undo unless
  // the object was created in the open step.
  void Commit(JournalRecord record, const SurfaceObject& object);
  void Reset();

  TagNames names_;
  std::uint32_t id_name_;                              // the interned "Id"
  std::vector<std::unique_ptr<SurfaceObject>> slots_;  // by number - base_
  int base_ = kFirstObjectNumber;
  int live_count_ = 0;
  int selected_count_ = 0;
  absl::flat_hash_map<std::string, IdHolders, TextHash, std::equal_to<>> id_index_;
  // Values of one tag name and the objects whose first tag of that name holds
  // each (ascending), for the searches of FindByTag. Built when a search of
  // that name comes again with no tag changed in between, and only for names
  // of few values (kinds, groups), which the writers of model files search
  // over and over.
  struct TagIndex {
    std::uint32_t name = 0;
    std::uint64_t asked = 0;  // the tag revision of the last search
    std::uint64_t built = 0;  // the tag revision it was built at, 0 never
    bool usable = false;
    std::vector<std::pair<std::string, std::vector<int>>> values;
  };
  const TagIndex* IndexOfTag(std::uint32_t name) const;
  // The same built at once, for the reads that would otherwise walk the
  // whole drawing.
  const TagIndex* IndexOfTagNow(std::uint32_t name) const;
  // A tag of that name was written, added, renamed or taken away: its index
  // goes stale, those of other names stay.
  void TagsChanged(std::uint32_t name);
  // Grows at every change of the objects that exist.
  std::uint64_t tag_revision_ = 1;
  // A cache of the searches, built by the const ones too.
  mutable std::vector<TagIndex> tag_indexes_;
  SurfaceObject defaults_;
  PageState page_;
  std::int64_t top_layer_ = 0;
  std::int64_t bottom_layer_ = 0;
  int current_ = 0;
  std::uint64_t shape_revision_ = 0;
  Journal journal_;

  bool selection_enabled_ = true;
  int selection_allowed_ = -1;
  bool redraw_ = true;
  int edit_mode_ = kEditSelection;
  int mouse_pointer_kind_ = 0;
  int mouse_icon_ = 0;
  double view_left_ = 0;
  double view_top_ = 0;
  double view_width_ = 100000;
  double view_height_ = 100000;
  int auto_scale_ = 0;
  int file_format_ = kNativeFormat;
  // Members of the file this program does not know, as written back.
  std::string document_extra_;
  std::string page_extra_;
  std::vector<std::pair<int, std::function<void()>>> listeners_;
  int last_listener_ = 0;
};

// The live objects in creation order (see Surface::Objects).
class Surface::ObjectRange {
 public:
  class Iterator {
   public:
    using value_type = int;
    using difference_type = std::ptrdiff_t;
    Iterator() = default;
    Iterator(const Surface* surface, int number) : surface_(surface), number_(number) {}
    int operator*() const { return number_; }
    Iterator& operator++() {
      number_ = surface_->NextLive(number_);
      return *this;
    }
    Iterator operator++(int) {
      Iterator before = *this;
      ++*this;
      return before;
    }
    bool operator==(const Iterator& other) const { return number_ == other.number_; }

   private:
    const Surface* surface_ = nullptr;
    int number_ = 0;
  };
  explicit ObjectRange(const Surface& surface) : surface_(&surface) {}
  Iterator begin() const { return {surface_, surface_->NextLive(0)}; }
  Iterator end() const { return {surface_, 0}; }

 private:
  const Surface* surface_;
};

inline Surface::ObjectRange Surface::Objects() const { return ObjectRange(*this); }

}  // namespace pluvane
