// Captions in the form in which windows and menus of the system take them: an "&" stands before the letter
// that works with Alt.
#pragma once

#include <string>
#include <string_view>

namespace qdix::ui {

/// The caption with an "&" before the first occurrence of the key, in either case, and every "&" of the
/// caption doubled so that it shows as itself. A key of 0, or one that the caption does not contain, marks
/// nothing.
[[nodiscard]] std::string MarkAccessKey(std::string_view caption, char key);

}  // namespace qdix::ui
