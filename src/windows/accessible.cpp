#include "windows/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QRadioButton>

#include "windows/formwindow.h"
#include "windows/plancanvas.h"
#include "windows/swatchpatch.h"

namespace tamo {
namespace {

// A swatch is pressed as a button is.
class SwatchAccess : public QAccessibleWidget {
 public:
  explicit SwatchAccess(SwatchPatch* patch)
      : QAccessibleWidget(patch, patch->GetKind() == SwatchPatch::Kind::Line
                                     ? QAccessible::Graphic
                                     : QAccessible::PushButton) {}
};

// One of a group, of which the form itself takes care; the toolkit would call it a check box.
class OptionAccess : public QAccessibleWidget {
 public:
  explicit OptionAccess(QRadioButton* button)
      : QAccessibleWidget(button, QAccessible::RadioButton), button_(button) {}
  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name || !button_->accessibleName().isEmpty())
      return QAccessibleWidget::text(kind);
    return button_->text().remove(QLatin1Char('&'));
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = button_->isChecked();
    return state;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction()) button_->click();
  }

 private:
  QRadioButton* button_;
};

QAccessibleInterface* Access(const QString&, QObject* object) {
  if (auto* patch = dynamic_cast<SwatchPatch*>(object)) return new SwatchAccess(patch);
  if (auto* option = dynamic_cast<QRadioButton*>(object)) return new OptionAccess(option);
  if (auto* plan = dynamic_cast<PlanCanvas*>(object))
    return new QAccessibleWidget(plan, QAccessible::Canvas);
  if (auto* window = dynamic_cast<FormWindow*>(object))
    return new QAccessibleWidget(window, QAccessible::Window);
  return nullptr;
}

}  // namespace

void InstallAccessibility() {
  static const bool once = [] {
    QAccessible::installFactory(&Access);
    return true;
  }();
  (void)once;
}

}  // namespace tamo
