// The numbers of the controls of a form: stable from build to build, so that a program that looks at the
// window from outside finds a control by the name that the screens give it.
#pragma once

#include <string_view>

#include "base/callback.h"
#include "ui/control.h"

namespace qdix::ui {

/// Number of the first control; the others follow in the order of the walk, containers before their contents.
inline constexpr int kFirstControlNumber = 1001;

using ControlVisitor = base::Callback<void(Control& control, int number)>;

/// Visits every control below `root` (the root itself is not visited) with its number.
void VisitControls(const Container& root, ControlVisitor visit);

/// The number of the first control of this name below `root`, or 0.
[[nodiscard]] int NumberOf(const Container& root, std::string_view name);

}  // namespace qdix::ui
