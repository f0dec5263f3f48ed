// The logic of a data-entry form, apart from any window: its caption, the
// grids it owns, the commands of its buttons. A generic window shows any
// controller; tests fill the grids, run a command or send a cell event, and
// read what was said.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "foundation/grid.h"

namespace pluvane {

// One command of a form: its name, the caption of its button, what it does,
// and whether it may run now.
struct FormCommand {
  std::string name;     // "cmdOk", "cmdAnnul", "mnSave"...
  std::string caption;  // "&Ok", "Annuler"...
  std::function<void()> action;
  bool enabled = true;
};

class FormController {
 public:
  virtual ~FormController() = default;

  virtual std::string Caption() const = 0;
  virtual std::vector<Grid*> Grids() = 0;
  // The form's commands, each once, in the order of their buttons.
  virtual std::vector<FormCommand> Commands() = 0;
  // Runs the command of that name when it is enabled; unknown names do nothing.
  void Run(const std::string& name) {
    for (const FormCommand& command : Commands()) {
      if (command.name != name) continue;
      if (command.enabled && command.action) command.action();
      return;
    }
  }

  // Events of the cells, as the window reports them (columns and rows from 1).
  // A form answers those it cares about; the others do nothing.
  // A click on a button cell.
  virtual void ButtonCell(Grid& /*grid*/, int /*col*/, int /*row*/) {}
  // A click on any other cell.
  virtual void ClickCell(Grid& /*grid*/, int /*col*/, int /*row*/) {}
  // A double click on a cell.
  virtual void DoubleClickCell(Grid& /*grid*/, int /*col*/, int /*row*/) {}
  // The cursor leaves the cell (it may be put back there by the form).
  virtual void LeaveCell(Grid& /*grid*/, int /*col*/, int /*row*/) {}
  // The list of a list cell drops down, before any new choice reaches the
  // cell: the cell still shows the former one.
  virtual void ListDropDown(Grid& /*grid*/, int /*col*/, int /*row*/) {}

  // The Escape key: true when the form took it (it hid a list, say); else
  // the window closes as Cancel would.
  virtual bool Escape() { return false; }

  // A form whose grids are sheets shown one at a time under tabs, one tab per
  // grid: how many, the caption of each (from 0; an empty caption is a tab
  // that cannot be entered), the one shown, and a click on a tab. A form
  // without tabs shows all its grids.
  virtual int TabCount() const { return 0; }
  virtual std::string TabCaption(int /*tab*/) const { return ""; }
  virtual int CurrentTab() const { return 0; }
  virtual void ClickTab(int /*tab*/) {}

  // True once a command has unloaded the form.
  bool Closed() const { return closed_; }

 protected:
  void Close() { closed_ = true; }

 private:
  bool closed_ = false;
};

}  // namespace pluvane
