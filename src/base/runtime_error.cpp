#include "base/runtime_error.h"

#include <algorithm>
#include <array>

#include "base/concat.h"
#include "base/numbers.h"

namespace qdix::base {

namespace {

/// The text of an error that the program raises.
struct Description {
  int number;
  std::string_view text;
};

constexpr std::array<Description, 11> kDescriptions{{
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {11, "Division by zero"},
    {53, "File not found"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {76, "Path not found"},
    {380, "Invalid property value"},
    {387, "Set not permitted"},
}};

}  // namespace

std::string RuntimeError::Description() const {
  if (number == NoSuchElement(element).number)
    return Concat({"Control array element '", TextOf(element), "' doesn't exist"});
  const auto* found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                   [this](const auto& entry) { return entry.number == number; });
  return found == kDescriptions.end() ? "Application-defined error" : std::string(found->text);
}

std::string UntrappedErrorText(const RuntimeError& error) {
  return Concat({"Run-time error '", TextOf(error.number), "':\r\n\r\n", error.Description()});
}

}  // namespace qdix::base
