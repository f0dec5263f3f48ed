// The message console of long treatments: a list of lines, a gauge and a
// status word that the cancel button sets to "ANNUL". Treatments talk to it
// through this interface; the model and its windows implement it.
#pragma once

#include <string>

namespace pluvane {

class Console {
 public:
  virtual ~Console() = default;

  // Starts a run: caption, status word cleared, cancel button enabled.
  virtual void Debut(const std::string& title) = 0;
  // Adds one line at the end of the list and lets pending events run.
  virtual void AfficheMessage(const std::string& text) = 0;
  // Shows the gauge with a value from 0 to 100 and its text.
  virtual void AfficheJauge(int value, const std::string& text) = 0;
  virtual void EffaceJauge() = 0;
  // Ends the run with "<<< Traitement terminé >>>" or "<<< Traitement annulé >>>";
  // `close` true unloads the window.
  virtual void Fin(bool close) = 0;
  virtual std::string GetStatus() const = 0;
  virtual void SetStatus(const std::string& status) = 0;
  virtual void Clear() = 0;
};

}  // namespace pluvane
