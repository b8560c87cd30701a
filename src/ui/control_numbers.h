// The numbers of a form's controls. They are the same in every build with the same controls, so a program
// that inspects the window from outside finds a control by the name its screen gives it.
#pragma once

#include <string_view>

#include "base/callback.h"
#include "ui/control.h"

namespace qdix::ui {

/// Number of the first control. The others follow in the order of the walk: a container comes before its
/// contents.
inline constexpr int kFirstControlNumber = 1001;

using ControlVisitor = base::Callback<void(Control& control, int number)>;

/// Visits every control below `root` with its number, but not `root` itself.
void VisitControls(const Container& root, ControlVisitor visit);

/// Returns the number of the first control of this name below `root`, or 0.
[[nodiscard]] int NumberOf(const Container& root, std::string_view name);

}  // namespace qdix::ui
