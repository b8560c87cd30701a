// Captions in the form that Windows expects: an "&" before the access key, the letter that works with Alt.
#pragma once

#include <string>
#include <string_view>

namespace qdix::ui {

/// Returns the caption with an "&" before the first occurrence of `key`, in either case. Doubles every "&" of
/// the caption, because Windows draws "&&" as one "&". Marks nothing if `key` is 0 or not in the caption.
[[nodiscard]] std::string MarkAccessKey(std::string_view caption, char key);

}  // namespace qdix::ui
