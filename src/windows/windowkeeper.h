#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

#include "common/form.h"

namespace tamo {

class Display;
class FormWindow;
class PlanPictures;
class Program;
class SuggestionView;

// A window for each form: made when the form is first shown (or first asked for), then shown,
// hidden, raised and activated as the Desk says, never destroyed before the keeper. Windows
// remember nothing but their place and size.
//
// The keeper takes Desk::onSettled, the observers of all controls and forms,
// Files::onPendingChanged and the paint events of the viewer. It must be made before Program::Start
// and be destroyed before the program.
class WindowKeeper : public QObject {
 public:
  // `pictures` paints the plan; without it the sheet is white with its marks. `placesFile` is the
  // file in which places and sizes are kept; empty: nowhere.
  explicit WindowKeeper(Program& program, PlanPictures* pictures = nullptr,
                        const QString& placesFile = {});
  ~WindowKeeper() override;

  // Before a window is put together.
  std::function<void()> beforeWindow;
  // Asks the estimator for a plan, "" for none; as it stands, by the system's own dialog.
  std::function<QString(QWidget* over)> askForPlan;

  // Brings every widget and window to the state of its control and form, at once. It is done by
  // itself after each event of the Desk; after this call nothing is left to do, and what the window
  // system reported about activation has been taken in.
  void SyncNow();

 protected:
  // What is offered under the field that is being typed in; nullptr when nothing ever was.
  SuggestionView* Offer() const;
  // The window of a form, made when it was never asked for.
  FormWindow& WindowOf(const Form& form);
  Display& GetDisplay();
  Program& GetProgram();

 private:
  struct Parts;
  std::unique_ptr<FormWindow> MakeWindow(Form& form);
  void SyncWindows();
  bool ShowWindow(FormWindow& window);
  void PlaceBesidePlan(FormWindow& shown);
  void HideWindows(bool all);
  void RaiseOwned(const Form& owner);
  void ShowPopups();
  bool eventFilter(QObject* object, QEvent* event) override;

  std::unique_ptr<Parts> parts_;
};

}  // namespace tamo
