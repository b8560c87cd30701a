#include "base/runtime_error.h"

#include <algorithm>
#include <array>

#include "base/numbers.h"

namespace qdix::base {

namespace {

struct Description {
  int number;
  std::string_view text;
};

constexpr int kNoSuchControlElement = 340;

constexpr std::array<Description, 21> kDescriptions{{
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {11, "Division by zero"},
    {13, "Type mismatch"},
    {52, "Bad file name or number"},
    {53, "File not found"},
    {55, "File already open"},
    {57, "Device I/O error"},
    {61, "Disk full"},
    {62, "Input past end of file"},
    {67, "Too many files"},
    {68, "Device unavailable"},
    {70, "Permission denied"},
    {71, "Disk not ready"},
    {75, "Path/File access error"},
    {76, "Path not found"},
    {380, "Invalid property value"},
    {383, "Property is read-only"},
    {387, "Set not permitted"},
}};

}  // namespace

std::string RuntimeError::Description() const {
  if (number == kNoSuchControlElement) return "Control array element '" + TextOf(element) + "' doesn't exist";
  const auto* found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                   [this](const auto& entry) { return entry.number == number; });
  return found == kDescriptions.end() ? "Application-defined error" : std::string(found->text);
}

std::string UntrappedErrorText(const RuntimeError& error) {
  return "Run-time error '" + TextOf(error.number) + "':\r\n\r\n" + error.Description();
}

}  // namespace qdix::base
