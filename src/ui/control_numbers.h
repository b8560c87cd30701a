// The numbers of a form's controls. They are the same in every build with the same controls, so a program
// that inspects the window from outside finds a control by the name its screen gives it.
#pragma once

#include "base/callback.h"
#include "ui/control.h"

namespace qdix::ui {

/// Number of the first control. The others follow in the order of the walk: a container comes before its
/// contents.
inline constexpr int kFirstControlNumber = 1001;

using ControlVisitor = base::Callback<void(Control& control, int number)>;

/// Visits every control below `root` with its number, but not `root` itself.
void VisitControls(const Container& root, ControlVisitor visit);

/// Returns the number of a control below `root`; 0 if it is not there.
[[nodiscard]] int NumberOf(const Container& root, const Control& wanted);

}  // namespace qdix::ui
