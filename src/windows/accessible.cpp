#include "windows/accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "windows/formwindow.h"
#include "windows/swatchpatch.h"

namespace tamo {
namespace {

// A swatch is pressed as a button is.
class SwatchAccess : public QAccessibleWidget {
 public:
  explicit SwatchAccess(SwatchPatch* patch)
      : QAccessibleWidget(patch, patch->focusPolicy() == Qt::NoFocus ? QAccessible::Graphic
                                                                     : QAccessible::PushButton) {}
};

QAccessibleInterface* Access(const QString&, QObject* object) {
  if (auto* patch = dynamic_cast<SwatchPatch*>(object)) return new SwatchAccess(patch);
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
